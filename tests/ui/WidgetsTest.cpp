#include "UiTests.h"
#include "WizardView.h"

#include "core/common/Records.h"
#include "ui/WinButton.h"
#include "ui/widgets/AccountListItem.h"
#include "ui/widgets/AppIconHelper.h"
#include "ui/widgets/AppListItem.h"
#include "ui/widgets/CircleProgress.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/FolderListItem.h"
#include "ui/widgets/KeyboardFocus.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/ModeCard.h"
#include "ui/widgets/PCListItem.h"
#include "ui/widgets/ProgressCard.h"
#include "ui/widgets/ProgressDots.h"
#include "ui/widgets/RadarWidget.h"
#include "ui/widgets/RoleCard.h"
#include "ui/widgets/SettingListItem.h"
#include "ui/widgets/TransferFileItem.h"
#include "ui/widgets/VerifyCodeWidget.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QEnterEvent>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

using Make = std::function<QWidget *()>;

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

/// What `widget` and its children paint, on nothing.
QImage pictureOf(QWidget &widget)
{
    QImage picture(widget.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
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
    void cardsAndRowsShowTheirState_data()
    {
        columns<Make, bool, bool, QString, QString>("make", "selected", "hovered", "fill", "border");
        const Make mode = [] { return new ModeCard; };
        const Make oldPc = [] { return new RoleCard(OldPC); };
        const Make newPc = [] { return new RoleCard(NewPC); };
        const Make peer = [] { return new PCListItem; };
        const Make row = [] { return new SettingListItem; };
        const Make close = [] { return new WinButton(WinButton::Close); };
        QTest::newRow("mode") << mode << false << false << u"#ffffff"_s << u"#e5e7eb"_s;
        QTest::newRow("mode, hovered") << mode << false << true << u"#fafafa"_s << u"#d1d5db"_s;
        QTest::newRow("mode, both") << mode << true << true << u"#eff6ff"_s << u"#3b82f6"_s;
        QTest::newRow("old PC, selected") << oldPc << true << false << u"#fff7ed"_s << u"#f97316"_s;
        QTest::newRow("new PC, both") << newPc << true << true << u"#ecfdf5"_s << u"#10b981"_s;
        QTest::newRow("new PC, hovered") << newPc << false << true << u"#fafafa"_s << u"#d1d5db"_s;
        QTest::newRow("peer") << peer << false << false << u"#ffffff"_s << u"#00000000"_s;
        QTest::newRow("peer, hovered") << peer << false << true << u"#f9fafb"_s << u"#e5e7eb"_s;
        QTest::newRow("peer, both") << peer << true << true << u"#eff6ff"_s << u"#3b82f6"_s;
        QTest::newRow("row") << row << false << false << u"#ffffff"_s << u"#ffffff"_s;
        QTest::newRow("row, hovered") << row << false << true << u"#f3f4f6"_s << u"#f3f4f6"_s;
        QTest::newRow("row, both") << row << true << true << u"#dbeafe"_s << u"#dbeafe"_s;
        QTest::newRow("close, hovered") << close << false << true << u"#e81123"_s << u"#e81123"_s;
    }

    void cardsAndRowsShowTheirState()
    {
        QFETCH(Make, make);
        QFETCH(QString, fill);
        QFETCH(QString, border);
        QFETCH(bool, selected);
        QFETCH(bool, hovered);
        const std::unique_ptr<QWidget> card(make());
        card->resize(300, card->height());
        card->setProperty("selected", selected);
        if (auto *row = qobject_cast<CheckRow *>(card.get()))
            row->setChecked(selected);
        card->setAttribute(Qt::WA_UnderMouse, hovered);
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        if (hovered)
            QCoreApplication::sendEvent(card.get(), &enter);
        const QImage picture = pictureOf(*card);
        const int middle = card->width() / 2;
        QCOMPARE(picture.pixelColor(middle, 4).name(), fill);
        QCOMPARE(picture.pixelColor(middle, 0), QColor(border));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), fill == border ? 255 : 0); // round where there is a border
    }

    void ringFillsClockwiseFromTheTop()
    {
        CircleProgress ring;
        ring.setColors(Qt::red, Qt::green);
        ring.setSize(160);
        const int near = 26; // the ring's middle, 76 from the centre, at 45 degrees
        const int far = 160 - near;
        const QList<QPoint> middles = {{far, near}, {far, far}, {near, far}, {near, near}};
        for (const auto &[value, filled] : {std::pair(-5, 0), {25, 1}, {75, 3}, {150, 4}}) {
            ring.setValue(value);
            QCOMPARE(ring.value(), qBound(0, value, 100));
            const QImage picture = pictureOf(ring);
            for (int quarter = 0; quarter < 4; ++quarter)
                QCOMPARE(picture.pixelColor(middles[quarter]),
                         QColor(quarter < filled ? Qt::green : Qt::red));
        }
    }

    void dotsShowTheStep()
    {
        ProgressDots dots(3);
        dots.resize(48, 16); // as wide as the dots and their gaps
        dots.setCurrent(1);
        dots.setCompleted(0);
        const QImage picture = pictureOf(dots);
        QCOMPARE(picture.pixelColor(4, 9).name(), u"#22c55e"_s);
        QCOMPARE(picture.pixelColor(24, 9).alpha(), 0); // the pill lies above the line of the dots
        QCOMPARE(picture.pixelColor(24, 3).name(), u"#3b82f6"_s);
        QCOMPARE(picture.pixelColor(44, 9).name(), u"#d1d5db"_s);
    }

    void progressBarIsPlacedByHand()
    {
        ProgressCard card;
        auto *track = card.findChild<QWidget *>(u"barTrack"_s);
        for (const auto &[percent, width] : {std::pair(50, 166), {26'000'000, 680'654}}) {
            track->resize(333, 8);
            card.setProgress(percent);
            track->resize(100, 8);
            QCOMPARE(card.findChild<QWidget *>(u"barFill"_s)->geometry(), QRect(0, 0, width, 8));
        }
    }

    void radarGoesOnAsItIsAndRestsUnseen()
    {
        RadarWidget radar;
        const auto *animation = radar.findChild<QPropertyAnimation *>();
        radar.start();
        QTRY_VERIFY(radar.sweepAngle() > 5.0);
        radar.start();
        QVERIFY(radar.isRunning() && radar.sweepAngle() > 5.0);
        radar.show();
        radar.hide();
        QCOMPARE(animation->state(), QAbstractAnimation::Paused);
        radar.show();
        QCOMPARE(animation->state(), QAbstractAnimation::Running);
        radar.stop();
        QVERIFY(!radar.isRunning());
    }

    void pressFlipsTheRow()
    {
        using Press = std::tuple<CheckRow *, Qt::MouseButton, bool>;
        for (const auto &[made, button, flips] :
             {Press(makeApp(true), Qt::LeftButton, true), Press(makeApp(true), Qt::RightButton, false),
              Press(makeApp(false), Qt::LeftButton, false), Press(new AccountListItem, Qt::LeftButton, true),
              Press(new FolderListItem, Qt::LeftButton, true)}) {
            const std::unique_ptr<CheckRow> row(made);
            row->resize(400, row->height());
            row->show();
            const QSignalSpy states(made, &CheckRow::checkStateChanged);
            const QPoint onBox = row->findChild<QCheckBox *>()->geometry().center();
            for (const QPoint &position : {onBox, QPoint(390, 2)}) {
                const bool before = row->isChecked();
                QTest::mousePress(row->windowHandle(), button, {}, position);
                QCOMPARE(row->isChecked() != before, flips);
                QTest::mouseRelease(row->windowHandle(), button, {}, position);
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
        using Clicks = std::pair<QWidget *, int>;
        for (const auto &[made, clicks] : {Clicks(new ModeCard, 1), Clicks(new RoleCard(OldPC), 1),
                                           Clicks(makePeer(true), 1), Clicks(makePeer(false), 0)}) {
            const std::unique_ptr<QWidget> card(made);
            const QSignalSpy clicked(made, SIGNAL(clicked()));
            QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(made);
            QTest::mousePress(made, Qt::LeftButton);
            QCOMPARE(clicked.count(), clicks);
            QTest::mouseRelease(made, Qt::LeftButton);
            QTest::mouseClick(made, Qt::RightButton);
            QTest::keyClick(made, Qt::Key_A);
            QCOMPARE(clicked.count(), clicks);
            for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
                QTest::keyClick(made, key);
            heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QCOMPARE(clicked.count(), 5 * clicks);

            QVERIFY(heard->role() == QAccessible::RadioButton && heard->state().checkable);
            for (const bool selected : {true, false}) {
                made->setProperty("selected", selected);
                QCOMPARE(bool(heard->state().checked), selected);
            }
        }
    }

    void modeCardShowsNothingEmpty()
    {
        ModeCard card;
        card.setIcons(u":/icons/nowhere.svg"_s, u":/icons/wifi-white.svg"_s);
        card.setTitle(u"Mode"_s);
        card.setSubtitle(u"What it is for"_s);
        card.setBadge(QString(), u"green"_s);
        card.setSelected(true);
        for (const QLabel *label : card.findChildren<QLabel *>()) {
            const bool hasPicture = !label->pixmap(Qt::ReturnByValue).isNull();
            QCOMPARE(label->isVisibleTo(&card), hasPicture || !label->text().isEmpty());
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
        TransferFileItem file;
        file.setFileName(markup);
        QCOMPARE(peer.accessibleName(), markup + u"\ufffd\ufffdB"_s);
        QVERIFY(peer.accessibleDescription().startsWith(u"%1 | %1"_s));
        for (const QLabel *label : peer.findChildren<QLabel *>() + file.findChildren<QLabel *>())
            QVERIFY(label->textFormat() == Qt::PlainText || !label->text().contains(markup));
        QCOMPARE(plainToolTip(markup), u"<span>&lt;img src='file:///x'&gt;</span>"_s);
        QCOMPARE(plainToolTip(u"a < b & c"_s), u"a < b & c"_s);
    }

    void longTextIsShortened()
    {
        QWidget window;
        auto *label = new ElidedLabel(QString(400, u'W'), 13);
        (new QVBoxLayout(&window))->addWidget(label);
        QVERIFY(window.minimumSizeHint().width() < 200 && label->sizeHint().width() > 2000);
        window.resize(200, 60);
        window.show();
        QHelpEvent ask(QEvent::ToolTip, QPoint(5, 5), label->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(label, &ask);
        QCOMPARE(QToolTip::text(), label->text());
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        label->setText(u"short"_s);
        QCoreApplication::sendEvent(label, &ask);
        QVERIFY(!QToolTip::isVisible());
    }

    void iconIsAlwaysThere()
    {
        const QTemporaryDir folder;
        QVERIFY(QImage(48, 48, QImage::Format_RGB32).save(folder.filePath(u"picture.PNG"_s)));
        for (const QString &name : {u"broken.png"_s, u"plain.exe"_s}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nothing to see") > 0);
        }
        for (const QString &name : {u"picture.PNG"_s, u"broken.png"_s, u"plain.exe"_s, u"missing.png"_s}) {
            const QIcon icon = AppIconHelper::iconForPath(folder.filePath(name));
            const bool isStandIn = icon.cacheKey() == AppIconHelper::defaultAppIcon().cacheKey();
            QCOMPARE(isStandIn, name != "picture.PNG"_L1);
            QCOMPARE(icon.pixmap(32, 32).size(), QSize(32, 32));
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

    void missingCharactersAreDashes()
    {
        VerifyCodeWidget widget;
        widget.setCode(u"12"_s);
        widget.show();
        QCOMPARE(WizardView(&widget).texts().join(u'|'),
                 u"Verification Code|1|2|-|-|Enter on the other PC"_s);
    }
};

ZANDROVE_UI_TEST(WidgetsTest)

#include "WidgetsTest.moc"
