#include "SilentEngine.h"
#include "UiTests.h"

#include "core/common/AppConfig.h"
#include "core/common/License.h"
#include "ui/TitleBar.h"
#include "ui/WinButton.h"
#include "ui/pages/RolePage.h"
#include "ui/pages/WelcomePage.h"
#include "ui/widgets/ModeCard.h"
#include "ui/widgets/RoleCard.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

class SwitchableLicense final : public License
{
public:
    [[nodiscard]] bool isRegistered() const override { return registered; }
    bool registered = false;
};

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
    void init();
    void cleanup();
    void resourcesAreThere();
    void leftButtonDrags_data();
    void leftButtonDrags();
    void activateIsOfferedToOldPcs();
    void menuLeavesBySignals();
    void otherLanguageIsKeptAndTold();
    void maximizeButtonFollowsTheWindow();
    void frameIsPainted_data();
    void frameIsPainted();
    void modeGoesToTheEngine();
    void roleGoesToTheEngine();

private:
    SwitchableLicense m_license;
    std::unique_ptr<QWidget> m_window;
    TitleBar *m_bar = nullptr;
};

void ChromeTest::init()
{
    userSettings().clear();
    m_license.registered = false;
    m_window = std::make_unique<QWidget>();
    m_window->resize(600, 200);
    m_bar = new TitleBar(m_window.get(), m_license);
    m_bar->resize(600, m_bar->height());
    m_window->show();
}

void ChromeTest::cleanup()
{
    m_window.reset();
}

void ChromeTest::resourcesAreThere()
{
    const QStringList icons = QDir(u":/icons"_s).entryList({u"*.svg"_s});
    QCOMPARE(icons.size(), 32);
    for (const QString &icon : icons)
        QVERIFY2(QSvgRenderer(u":/icons/"_s + icon).isValid(), qPrintable(icon));
    QVERIFY(QFile::exists(u":/icons/app.ico"_s) && QFile::exists(u":/styles/style.qss"_s));
}

void ChromeTest::leftButtonDrags_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("moved");
    QTest::addColumn<int>("maximized");
    QTest::newRow("left") << Qt::LeftButton << QPoint(30, 20) << 1;
    QTest::newRow("right") << Qt::RightButton << QPoint(0, 0) << 0;
}

void ChromeTest::leftButtonDrags()
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

void ChromeTest::activateIsOfferedToOldPcs()
{
    const auto *activate = m_bar->findChild<QPushButton *>(u"activateBtn"_s);
    QVERIFY(activate->isVisible());
    m_bar->setRole(true);
    QVERIFY(!activate->isVisible());
    m_bar->setRole(false);
    QVERIFY(activate->isVisible());
    m_license.registered = true;
    m_bar->refreshActivateButton();
    QVERIFY(!activate->isVisible());
}

void ChromeTest::menuLeavesBySignals()
{
    const QList<std::pair<QString, void (TitleBar::*)()>> entries = {
        {u"ℹ️  About"_s, &TitleBar::aboutClicked},
        {u"🔑  Register"_s, &TitleBar::activateClicked},
        {u"🛒  Purchase"_s, &TitleBar::purchaseClicked},
        {u"❓  Help"_s, &TitleBar::helpClicked},
        {u"💬  Support"_s, &TitleBar::supportClicked}};
    QStringList texts;
    for (QAction *action : m_bar->findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly)->actions()) {
        texts.append(action->text());
        for (const auto &[text, signal] : entries) {
            const QSignalSpy told(m_bar, signal);
            if (!action->menu())
                action->trigger();
            QCOMPARE(told.size(), action->text() == text ? 1 : 0);
        }
    }
    QCOMPARE(texts, (QStringList{entries[0].first, QString(), entries[1].first, entries[2].first, QString(),
                                 u"🌐  Language"_s, QString(), entries[3].first, entries[4].first}));
}

void ChromeTest::otherLanguageIsKeptAndTold()
{
    const QSignalSpy told(m_bar, &TitleBar::languageChanged);
    const QList<QAction *> actions = m_bar->findChild<QActionGroup *>()->actions();
    QStringList codes;
    for (const QAction *action : actions)
        codes.append(action->data().toString());
    QCOMPARE(codes.join(u' '), u"en zh_TW fr de ja es ko nl pt it"_s);

    QVERIFY(actions.at(0)->isChecked());
    actions.at(0)->trigger();
    QVERIFY(told.isEmpty());
    QVERIFY(!userSettings().contains("language"_L1));
    actions.at(3)->trigger();
    QCOMPARE(told, (QList<QVariantList>{{u"de"_s}}));
    QCOMPARE(userSettings().value("language"_L1).toString(), u"de"_s);
    QVERIFY(TitleBar().findChild<QActionGroup *>()->actions().at(3)->isChecked());
}

void ChromeTest::maximizeButtonFollowsTheWindow()
{
    const WinButton *button = m_bar->findChildren<WinButton *>().at(2);
    for (const bool maximized : {true, false}) {
        m_bar->setMaximized(maximized);
        QCOMPARE(button->type(), int(maximized ? WinButton::Restore : WinButton::Maximize));
        QCOMPARE(button->toolTip(), maximized ? u"Restore"_s : u"Maximize"_s);
        QCOMPARE(button->accessibleName(), button->toolTip());
    }
}

void ChromeTest::frameIsPainted_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QColor>("colour");
    const QPoint corner(0, 0);
    QTest::newRow("plain") << int(WinButton::Close) << false << corner << QColor(Qt::transparent);
    QTest::newRow("close hovered") << int(WinButton::Close) << true << corner << QColor(0xE8, 0x11, 0x23);
    QTest::newRow("menu hovered") << int(WinButton::Menu) << true << corner << QColor(255, 255, 255, 25);
    QTest::newRow("in front of the other")
        << int(WinButton::Restore) << false << QPoint(21, 17) << QColor(0x1e, 0x29, 0x3b);
    QTest::newRow("round corner of the bar") << -1 << false << corner << QColor(Qt::transparent);
    QTest::newRow("left end of the bar") << -1 << false << QPoint(0, 40) << QColor(0x1d, 0x4e, 0xd8);
    QTest::newRow("middle of the bar") << -1 << false << QPoint(300, 2) << QColor(0x3b, 0x82, 0xf6);
}

void ChromeTest::frameIsPainted()
{
    QFETCH(int, type);
    QFETCH(bool, hovered);
    QFETCH(QPoint, at);
    QFETCH(QColor, colour);
    WinButton button(WinButton::Type(qMax(type, 0)));
    button.setAttribute(Qt::WA_UnderMouse, hovered);
    QWidget &painted = type < 0 ? static_cast<QWidget &>(*m_bar) : button;
    QImage image(painted.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    painted.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    const QColor seen = image.pixelColor(at);
    const int difference = qAbs(seen.red() - colour.red()) + qAbs(seen.green() - colour.green()) +
                           qAbs(seen.blue() - colour.blue());
    QVERIFY2(seen.alpha() == colour.alpha() && (difference < 12 || colour.alpha() == 0),
             qPrintable(seen.name(QColor::HexArgb)));
}

void ChromeTest::modeGoesToTheEngine()
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
        QCOMPARE(cards.at(NetworkMode)->isSelected(), mode == NetworkMode);
        QCOMPARE(cards.at(CableMode)->isSelected(), mode == CableMode);
    }
}

void ChromeTest::roleGoesToTheEngine()
{
    TransferEngine engine(nullptr, silentEnvironment());
    const RolePage page(&engine);
    const QSignalSpy changes(&page, &RolePage::selectionChanged);
    const QList<RoleCard *> cards = page.findChildren<RoleCard *>();
    QVERIFY(!page.hasSelection() && !cards.at(OldPC)->isSelected() && !cards.at(NewPC)->isSelected());
    int clicks = 0;
    for (const int role : {NewPC, NewPC, OldPC}) {
        QTest::mouseClick(cards.at(role), Qt::LeftButton);
        QVERIFY(page.hasSelection());
        QCOMPARE(changes.size(), ++clicks);
        QCOMPARE(engine.role(), role);
        QVERIFY(cards.at(role)->isSelected() && !cards.at(1 - role)->isSelected());
    }
}

QObject *makeChromeTest()
{
    return new ChromeTest;
}

#include "ChromeTest.moc"
