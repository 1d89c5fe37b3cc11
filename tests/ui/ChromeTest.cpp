#include "SilentEngine.h"
#include "UiTests.h"

#include "core/common/AppConfig.h"
#include "ui/TitleBar.h"
#include "ui/WinButton.h"
#include "ui/pages/RolePage.h"
#include "ui/pages/WelcomePage.h"
#include "ui/widgets/ModeCard.h"
#include "ui/widgets/RoleCard.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

QSettings userSettings()
{
    return QSettings(AppConfig::userOrganisation(), AppConfig::appName());
}

} // namespace

/// The window's own frame, and the two pages of cards.
class ChromeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        userSettings().clear();
        m_license.registered = false;
        m_window = std::make_unique<QWidget>();
        m_window->resize(600, 200);
        m_bar = new TitleBar(m_window.get(), m_license);
        m_bar->resize(600, m_bar->height());
        m_window->show();
    }

    void cleanup() { m_window.reset(); }

    void resourcesAreThere()
    {
        const QStringList icons = QDir(u":/icons"_s).entryList({u"*.svg"_s});
        QCOMPARE(icons.size(), 32);
        for (const QString &icon : icons)
            QVERIFY2(QSvgRenderer(u":/icons/"_s + icon).isValid(), qPrintable(icon));
        QVERIFY(QFile::exists(u":/icons/app.ico"_s) && QFile::exists(u":/styles/style.qss"_s));
    }

    void leftButtonDrags_data()
    {
        columns<Qt::MouseButton, QPoint, int>("button", "moved", "maximized");
        QTest::newRow("left") << Qt::LeftButton << QPoint(30, 20) << 1;
        QTest::newRow("right") << Qt::RightButton << QPoint(0, 0) << 0;
    }

    void leftButtonDrags()
    {
        QFETCH(Qt::MouseButton, button);
        const QSignalSpy maximized(m_bar, &TitleBar::maximizeClicked);
        const QPoint before = m_window->pos();
        const QPointF grip(200.0, 20.0);
        const auto send = [&](QEvent::Type type, const QPoint &moved, Qt::MouseButton changed) {
            QMouseEvent event(type, grip, QPointF(before) + grip + moved, changed, button, Qt::NoModifier);
            QCoreApplication::sendEvent(m_bar, &event);
        };
        send(QEvent::MouseButtonPress, {}, button);
        send(QEvent::MouseMove, QPoint(30, 20), Qt::NoButton);
        send(QEvent::MouseButtonRelease, QPoint(30, 20), button);
        send(QEvent::MouseMove, QPoint(90, 90), Qt::NoButton);
        QTEST(m_window->pos() - before, "moved");
        send(QEvent::MouseButtonDblClick, {}, button);
        QTEST(int(maximized.size()), "maximized");
    }

    void activateIsOfferedToOldPcs()
    {
        const auto *activate = m_bar->findChild<QPushButton *>(u"activateBtn"_s);
        QVERIFY(activate->isVisible());
        for (const bool receives : {true, false}) {
            m_bar->setRole(receives);
            QCOMPARE(activate->isVisible(), !receives);
        }
        m_license.registered = true;
        m_bar->refreshActivateButton();
        QVERIFY(!activate->isVisible());
    }

    void menuLeavesBySignals()
    {
        QStringList told;
        connect(m_bar, &TitleBar::aboutClicked, this, [&] { told.append(u"about"_s); });
        connect(m_bar, &TitleBar::activateClicked, this, [&] { told.append(u"register"_s); });
        connect(m_bar, &TitleBar::purchaseClicked, this, [&] { told.append(u"purchase"_s); });
        connect(m_bar, &TitleBar::helpClicked, this, [&] { told.append(u"help"_s); });
        connect(m_bar, &TitleBar::supportClicked, this, [&] { told.append(u"support"_s); });
        for (QAction *action : m_bar->findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly)->actions()) {
            told.append(action->text());
            if (!action->menu())
                action->trigger();
        }
        QCOMPARE(told.join(u'|'), u"ℹ️  About|about||🔑  Register|register|🛒  Purchase|purchase||"
                                  "🌐  Language||❓  Help|help|💬  Support|support"_s);
    }

    void otherLanguageIsKeptAndTold()
    {
        const QSignalSpy told(m_bar, &TitleBar::languageChanged);
        const QList<QAction *> actions = m_bar->findChild<QActionGroup *>()->actions();
        QStringList codes;
        for (const QAction *action : actions)
            codes.append(action->data().toString());
        QCOMPARE(codes.join(u' '), u"en zh_TW fr de ja es ko nl pt it"_s);

        QVERIFY(actions.at(0)->isChecked());
        actions.at(0)->trigger();
        QVERIFY(told.isEmpty() && !userSettings().contains("language"_L1));
        actions.at(3)->trigger();
        QCOMPARE(told, (QList<QVariantList>{{u"de"_s}}));
        QVERIFY(TitleBar().findChild<QActionGroup *>()->actions().at(3)->isChecked());
    }

    void maximizeButtonFollowsTheWindow()
    {
        const WinButton *button = m_bar->findChildren<WinButton *>().at(2);
        for (const bool maximized : {true, false}) {
            m_bar->setMaximized(maximized);
            QCOMPARE(button->type(), int(maximized ? WinButton::Restore : WinButton::Maximize));
            QCOMPARE(button->toolTip(), maximized ? u"Restore"_s : u"Maximize"_s);
            QCOMPARE(button->accessibleName(), button->toolTip());
        }
    }

    void frameIsPainted_data()
    {
        columns<int, bool, QPoint, QColor>("button", "hovered", "at", "colour");
        const int bar = -1;
        const QPoint corner(0, 0);
        QTest::newRow("plain") << int(WinButton::Close) << false << corner << QColor(Qt::transparent);
        QTest::newRow("close hovered") << int(WinButton::Close) << true << corner << QColor(0xE8, 0x11, 0x23);
        QTest::newRow("menu hovered") << int(WinButton::Menu) << true << corner << QColor(255, 255, 255, 25);
        QTest::newRow("in front of the other")
            << int(WinButton::Restore) << false << QPoint(21, 17) << QColor(0x1e, 0x29, 0x3b);
        QTest::newRow("round corner") << bar << false << corner << QColor(Qt::transparent);
        QTest::newRow("left end") << bar << false << QPoint(0, 40) << QColor(0x1d, 0x4e, 0xd8);
        QTest::newRow("middle") << bar << false << QPoint(300, 2) << QColor(0x3b, 0x82, 0xf6);
    }

    void frameIsPainted()
    {
        QFETCH(int, button);
        QFETCH(bool, hovered);
        QFETCH(QPoint, at);
        QFETCH(QColor, colour);
        WinButton drawn(WinButton::Type(qMax(button, 0)));
        drawn.setAttribute(Qt::WA_UnderMouse, hovered);
        const QColor seen = pictureOf(button < 0 ? static_cast<QWidget &>(*m_bar) : drawn).pixelColor(at);
        const int difference = qAbs(seen.red() - colour.red()) + qAbs(seen.green() - colour.green()) +
                               qAbs(seen.blue() - colour.blue());
        QVERIFY2(seen.alpha() == colour.alpha() && (difference < 12 || colour.alpha() == 0),
                 qPrintable(seen.name(QColor::HexArgb)));
    }

    void modeGoesToTheEngine()
    {
        TransferEngine engine(nullptr, silentEnvironment());
        engine.setMode(CableMode);
        const QSignalSpy changes(&engine, &TransferEngine::stateChanged);
        const WelcomePage page(&engine);
        QCOMPARE(changes.size(), 1);
        const QList<ModeCard *> cards = page.findChildren<ModeCard *>();
        for (const auto &[mode, changed] :
             {std::pair(NetworkMode, 1), {CableMode, 2}, {CableMode, 2}, {NetworkMode, 3}}) {
            QTest::mouseClick(cards.at(mode), Qt::LeftButton);
            QCOMPARE(changes.size(), changed);
            QVERIFY(cards.at(mode)->isSelected() && !cards.at(1 - mode)->isSelected());
        }
    }

    void roleGoesToTheEngine()
    {
        TransferEngine engine(nullptr, silentEnvironment());
        const RolePage page(&engine);
        const QSignalSpy changes(&page, &RolePage::selectionChanged);
        const QList<RoleCard *> cards = page.findChildren<RoleCard *>();
        QVERIFY(!page.hasSelection() && !cards.at(OldPC)->isSelected() && !cards.at(NewPC)->isSelected());
        int clicks = 0;
        for (const int role : {NewPC, NewPC, OldPC}) {
            QTest::mouseClick(cards.at(role), Qt::LeftButton);
            QCOMPARE(changes.size(), ++clicks);
            QCOMPARE(engine.role(), role);
            QVERIFY(page.hasSelection() && cards.at(role)->isSelected() && !cards.at(1 - role)->isSelected());
        }
    }

private:
    UnregisteredCopy m_license;
    std::unique_ptr<QWidget> m_window;
    TitleBar *m_bar = nullptr;
};

QObject *makeChromeTest()
{
    return new ChromeTest;
}

#include "ChromeTest.moc"
