#include "TestMain.h"

#include "core/common/Records.h"
#include "ui/widgets/AppIconHelper.h"
#include "ui/widgets/AppListItem.h"
#include "ui/widgets/FolderListItem.h"
#include "ui/widgets/KeyboardFocus.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/ModeCard.h"
#include "ui/widgets/PCListItem.h"
#include "ui/widgets/RadarWidget.h"
#include "ui/widgets/RoleCard.h"
#include "ui/widgets/SettingListItem.h"

#include <QAccessible>
#include <QCheckBox>
#include <QEnterEvent>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>

namespace {

CheckRow *makeApp(bool canTransfer)
{
    AppInfo info;
    info.name = u"Driver"_s;
    info.canTransfer = canTransfer;
    auto *row = new AppListItem;
    row->setAppInfo(info);
    return row;
}

PCListItem *makePeer(bool online)
{
    PCInfo info;
    info.online = online;
    auto *item = new PCListItem;
    item->setPCInfo(info);
    return item;
}

/// Who is framed as having the focus; null without a frame, or with one that does not fit.
QWidget *framedIn(const QWidget &window)
{
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (QByteArray(widget->metaObject()->className()).endsWith("FocusFrame") &&
            widget->geometry() == widget->parentWidget()->rect())
            return widget->parentWidget();
    }
    return nullptr;
}

} // namespace

/// What the cards, rows and drawings show, and what they do by mouse, by key and for a screen reader.
class WidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void selectedWinsOverHovered()
    {
        ModeCard card;
        card.resize(300, card.height());
        const auto fill = [&card] { return card.grab().toImage().pixelColor(150, 4).name(); };
        QCOMPARE(fill(), u"#ffffff"_s);
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QCoreApplication::sendEvent(&card, &enter);
        QCOMPARE(fill(), u"#fafafa"_s);
        card.setSelected(true);
        QCOMPARE(fill(), u"#eff6ff"_s);
    }

    void radarGoesOnAsItIsAndRestsUnseen()
    {
        RadarWidget radar;
        radar.start();
        QTRY_VERIFY(radar.sweepAngle() > 5.0);
        radar.start();
        QVERIFY(radar.isRunning() && radar.sweepAngle() > 5.0);
        const auto *animation = radar.findChild<QPropertyAnimation *>();
        for (const bool shown : {true, false, true}) {
            radar.setVisible(shown);
            QCOMPARE(animation->state(), shown ? QAbstractAnimation::Running : QAbstractAnimation::Paused);
        }
    }

    void pressFlipsTheRow()
    {
        using Press = std::tuple<CheckRow *, Qt::MouseButton, bool>;
        for (const auto &[made, button, flips] :
             {Press(makeApp(true), Qt::LeftButton, true), Press(makeApp(true), Qt::RightButton, false),
              Press(makeApp(false), Qt::LeftButton, false),
              Press(new FolderListItem, Qt::LeftButton, true)}) {
            const std::unique_ptr<CheckRow> row(made);
            row->resize(400, row->height());
            row->show();
            const QSignalSpy states(made, &CheckRow::checkStateChanged);
            for (const QPoint &position :
                 {row->findChild<QCheckBox *>()->geometry().center(), QPoint(390, 2)}) {
                const bool before = row->isChecked();
                QTest::mouseClick(row->windowHandle(), button, {}, position);
                QCOMPARE(row->isChecked() != before, flips);
            }
            QCOMPARE(states.count(), flips ? 2 : 0);
        }
    }

    void whatTheUserCannotTickCanBeTicked()
    {
        const std::unique_ptr<CheckRow> row(makeApp(false));
        row->setChecked(true);
        const auto *box = QAccessible::queryAccessibleInterface(row->findChild<QCheckBox *>());
        QCOMPARE(box->text(QAccessible::Name), u"Driver"_s);
        QCOMPARE(box->text(QAccessible::Description), u"System App"_s);
        QVERIFY(box->state().checked && box->state().disabled);
    }

    void cardsAreClicked()
    {
        using Clicks = std::pair<SelectableCard *, int>;
        for (const auto &[made, clicks] :
             {Clicks(new RoleCard(OldPC), 1), Clicks(makePeer(true), 1), Clicks(makePeer(false), 0)}) {
            const std::unique_ptr<SelectableCard> card(made);
            const QSignalSpy clicked(made, &SelectableCard::clicked);
            QTest::mousePress(made, Qt::LeftButton);
            QCOMPARE(clicked.count(), clicks);
            QTest::mouseClick(made, Qt::RightButton);
            QTest::keyClick(made, Qt::Key_A);
            for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
                QTest::keyClick(made, key);
            QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(made);
            heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QCOMPARE(clicked.count(), 5 * clicks);
            QVERIFY(heard->role() == QAccessible::RadioButton && heard->state().checkable);
            for (const bool selected : {true, false}) {
                made->setSelected(selected);
                QCOMPARE(bool(heard->state().checked), selected);
            }
        }
    }

    void textsOfOthersAreShownAsTheyAre()
    {
        const QString markup = u"<img src='file:///x'>"_s;
        PCInfo info;
        info.name = markup + u"\u202e\nB"_s;
        info.os = info.ip = u"%1"_s;
        PCListItem peer;
        peer.setPCInfo(info);
        QCOMPARE(peer.accessibleName(), markup + u"\ufffd\ufffdB"_s);
        QVERIFY(peer.accessibleDescription().startsWith(u"%1 | %1"_s));
        for (const QLabel *label : peer.findChildren<QLabel *>())
            QVERIFY(label->textFormat() == Qt::PlainText || !label->text().contains(markup));
        QCOMPARE(plainToolTip(markup), u"<span>&lt;img src='file:///x'&gt;</span>"_s);
        QCOMPARE(plainToolTip(u"a < b & c"_s), u"a < b & c"_s);
    }

    void iconIsAlwaysThere()
    {
        const QTemporaryDir folder;
        QVERIFY(QImage(48, 48, QImage::Format_RGB32).save(folder.filePath(u"picture.PNG"_s)));
        QFile file(folder.filePath(u"broken.png"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nothing to see") > 0);
        for (const QString &name : {u"picture.PNG"_s, u"broken.png"_s, u"missing.png"_s}) {
            const QIcon icon = AppIconHelper::iconForPath(folder.filePath(name));
            const bool isStandIn = icon.cacheKey() == AppIconHelper::defaultAppIcon().cacheKey();
            QCOMPARE(isStandIn, name != "picture.PNG"_L1);
        }
    }

    void frameFollowsTheTabKeyOnly()
    {
        const KeyboardFocus keyboardFocus;
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *button = new QPushButton(u"Button"_s);
        auto *row = new SettingListItem;
        auto *box = row->findChild<QCheckBox *>();
        layout->addWidget(button);
        layout->addWidget(row);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        QTest::mouseClick(button, Qt::LeftButton);
        box->setFocus();
        button->setFocus();
        QVERIFY(!framedIn(window));
        // Takes the focus on by itself, for the reason Tab.
        button->setEnabled(false);
        QVERIFY(box->hasFocus() && !framedIn(window));
        button->setEnabled(true);

        QTest::keyClick(box, Qt::Key_Tab);
        QVERIFY(button->hasFocus() && framedIn(window) == button);
        QTest::keyClick(button, Qt::Key_Backtab);
        QCOMPARE(framedIn(window), row);
        window.resize(window.width() + 100, window.height());
        QCOMPARE(framedIn(window), row);
        button->setFocus();
        QVERIFY2(framedIn(window) == button, "moved on by the program");
        box->setFocus(Qt::MouseFocusReason);
        QVERIFY(!framedIn(window));
    }

    void enterClicksWhatHasTheFocus()
    {
        const KeyboardFocus keyboardFocus;
        QPushButton button;
        const QSignalSpy clicked(&button, &QPushButton::clicked);
        QTest::keyClick(&button, Qt::Key_Return);
        QTest::keyClick(&button, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(clicked.count(), 2);
        QTest::keyClick(&button, Qt::Key_Return, Qt::ControlModifier);
        button.setEnabled(false);
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(clicked.count(), 2);
        SettingListItem row;
        QTest::keyClick(row.findChild<QCheckBox *>(), Qt::Key_Enter);
        QVERIFY(row.isChecked());
    }
};

ZANDROVE_TEST(WidgetsTest)

#include "WidgetsTest.moc"
