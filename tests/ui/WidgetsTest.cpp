#include "UiTests.h"

#include "ui/widgets/AccountListItem.h"
#include "ui/widgets/AppIconHelper.h"
#include "ui/widgets/AppListItem.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/FolderListItem.h"
#include "ui/widgets/KeyboardFocus.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/ModeCard.h"
#include "ui/widgets/PCListItem.h"
#include "ui/widgets/RoleCard.h"
#include "ui/widgets/SettingListItem.h"
#include "ui/widgets/TransferFileItem.h"
#include "ui/widgets/VerifyCodeWidget.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

using MakeRow = std::function<CheckRow *()>;
using MakeCard = std::function<QWidget *()>;

PCListItem *makePeer(bool online)
{
    PCInfo info;
    info.name = u"ANNA"_s;
    info.online = online;
    auto *item = new PCListItem;
    item->setPCInfo(info);
    return item;
}

QIcon iconOf(const QString &path)
{
    return AppIconHelper::iconForPath(path);
}

/// The frame around who has the focus, where there is one.
QWidget *frameIn(const QWidget &window)
{
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (QByteArray(widget->metaObject()->className()).endsWith("FocusFrame"))
            return widget;
    }
    return nullptr;
}

} // namespace

/// What the cards and rows do, by mouse, by key and for a screen reader.
class WidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pressFlipsTheRow_data();
    void pressFlipsTheRow();
    void whatTheUserCannotTickCanBeTicked();
    void cardsAreClicked_data();
    void cardsAreClicked();
    void selectionIsToldToTheScreenReader();
    void modeCardTakesBrokenPictures();
    void badgeIsHiddenWithoutText();
    void fileRowShowsItsStatus_data();
    void fileRowShowsItsStatus();
    void textsOfOthersAreShownAsTheyAre();
    void longTextIsShortened();
    void iconIsAlwaysThere_data();
    void iconIsAlwaysThere();
    void frameFollowsTheTabKeyOnly();
    void enterClicksWhatHasTheFocus();
    void missingCharactersAreDashes();
};

void WidgetsTest::pressFlipsTheRow_data()
{
    QTest::addColumn<MakeRow>("make");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("flips");

    const auto app = [](bool canTransfer) {
        return MakeRow([canTransfer] {
            AppInfo info;
            info.canTransfer = canTransfer;
            auto *row = new AppListItem;
            row->setAppInfo(info);
            return row;
        });
    };
    QTest::newRow("application") << app(true) << Qt::LeftButton << true;
    QTest::newRow("system application") << app(false) << Qt::LeftButton << false;
    QTest::newRow("account") << MakeRow([] { return new AccountListItem; }) << Qt::LeftButton << true;
    QTest::newRow("folder") << MakeRow([] { return new FolderListItem; }) << Qt::LeftButton << true;
    QTest::newRow("setting") << MakeRow([] { return new SettingListItem; }) << Qt::LeftButton << true;
    QTest::newRow("right button") << app(true) << Qt::RightButton << false;
}

void WidgetsTest::pressFlipsTheRow()
{
    QFETCH(MakeRow, make);
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, flips);
    const std::unique_ptr<CheckRow> row(make());
    row->resize(400, row->height());
    row->show();
    const QSignalSpy states(row.get(), &CheckRow::checkStateChanged);
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

void WidgetsTest::whatTheUserCannotTickCanBeTicked()
{
    AppInfo info;
    info.name = u"Driver"_s;
    info.canTransfer = false;
    AppListItem row;
    row.setAppInfo(info);
    row.setChecked(true);
    QVERIFY(row.isChecked());
    QAccessibleInterface *box = QAccessible::queryAccessibleInterface(row.findChild<QCheckBox *>());
    QCOMPARE(box->text(QAccessible::Name), u"Driver"_s);
    QCOMPARE(box->text(QAccessible::Description), u"System App"_s);
    QVERIFY(box->state().checked && box->state().disabled);
}

void WidgetsTest::cardsAreClicked_data()
{
    QTest::addColumn<MakeCard>("make");
    QTest::addColumn<int>("clicks");
    QTest::newRow("mode") << MakeCard([] { return new ModeCard; }) << 1;
    QTest::newRow("role") << MakeCard([] { return new RoleCard(OldPC); }) << 1;
    QTest::newRow("peer") << MakeCard([] { return makePeer(true); }) << 1;
    QTest::newRow("peer that is gone") << MakeCard([] { return makePeer(false); }) << 0;
}

void WidgetsTest::cardsAreClicked()
{
    QFETCH(MakeCard, make);
    QFETCH(int, clicks);
    const std::unique_ptr<QWidget> card(make());
    QSignalSpy clicked(card.get(), SIGNAL(clicked()));
    QTest::mousePress(card.get(), Qt::LeftButton);
    QCOMPARE(clicked.count(), clicks);
    QTest::mouseRelease(card.get(), Qt::LeftButton);
    QTest::mouseClick(card.get(), Qt::RightButton);
    QCOMPARE(clicked.count(), clicks);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(card.get(), key);
    QCOMPARE(clicked.count(), 4 * clicks);
    QTest::keyClick(card.get(), Qt::Key_A);
    QAccessible::queryAccessibleInterface(card.get())
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 5 * clicks);
}

void WidgetsTest::selectionIsToldToTheScreenReader()
{
    RoleCard card(NewPC);
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(&card);
    QCOMPARE(heard->role(), QAccessible::RadioButton);
    QCOMPARE(heard->text(QAccessible::Name), u"New PC"_s);
    QVERIFY(heard->state().checkable && !heard->state().checked);
    card.setSelected(true);
    QVERIFY(heard->state().checked);
}

void WidgetsTest::modeCardTakesBrokenPictures()
{
    QTemporaryDir folder;
    QFile broken(folder.filePath(u"broken.svg"_s));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    broken.close();

    ModeCard card;
    QTest::ignoreMessage(QtDebugMsg, qPrintable(u"Invalid SVG: \"%1\""_s.arg(broken.fileName())));
    card.setIcons(broken.fileName(), u":/icons/wifi-white.svg"_s);
    const auto hasPicture = [&card] {
        for (const QLabel *label : card.findChildren<QLabel *>()) {
            if (!label->pixmap(Qt::ReturnByValue).isNull())
                return label->pixmap(Qt::ReturnByValue).deviceIndependentSize() == QSizeF(28, 28);
        }
        return false;
    };
    QVERIFY(!hasPicture());
    card.setSelected(true);
    QVERIFY(hasPicture());
}

void WidgetsTest::badgeIsHiddenWithoutText()
{
    ModeCard card;
    card.setBadge(u"Fast"_s, u"green"_s);
    QLabel *badge = nullptr;
    for (QLabel *label : card.findChildren<QLabel *>()) {
        if (label->text() == u"Fast"_s)
            badge = label;
    }
    QVERIFY(badge && badge->isVisibleTo(&card) && badge->styleSheet().contains(u"#059669"_s));
    card.setBadge(u"Slow"_s, u"red"_s);
    QVERIFY(badge->styleSheet().contains(u"#6b7280"_s));
    card.setBadge(QString(), u"green"_s);
    QVERIFY(!badge->isVisibleTo(&card));
}

void WidgetsTest::fileRowShowsItsStatus_data()
{
    QTest::addColumn<TransferFileItem::Status>("status");
    QTest::addColumn<QString>("glyph");
    QTest::addColumn<int>("progress"); // after 40 was told, -1 where none is shown
    QTest::newRow("pending") << TransferFileItem::Pending << u"○"_s << -1;
    QTest::newRow("active") << TransferFileItem::Active << u"●"_s << 40;
    QTest::newRow("success") << TransferFileItem::Success << u"✓"_s << -1;
    QTest::newRow("failed") << TransferFileItem::Failed << u"✕"_s << -1;
}

void WidgetsTest::fileRowShowsItsStatus()
{
    QFETCH(TransferFileItem::Status, status);
    QFETCH(int, progress);
    TransferFileItem row;
    const auto *bar = row.findChild<QProgressBar *>();
    row.setStatus(TransferFileItem::Active);
    row.setProgress(10);
    row.setStatus(status);
    row.setProgress(40);
    QTEST(row.findChild<QLabel *>()->text(), "glyph");
    QCOMPARE(bar->isVisibleTo(&row), progress >= 0);
    QCOMPARE(bar->value(), progress >= 0 ? progress : 10);
}

void WidgetsTest::textsOfOthersAreShownAsTheyAre()
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
    for (const QWidget *row : {static_cast<QWidget *>(&peer), static_cast<QWidget *>(&file)}) {
        for (const QLabel *label : row->findChildren<QLabel *>()) {
            if (label->text().contains(markup))
                QCOMPARE(label->textFormat(), Qt::PlainText);
        }
    }
    QCOMPARE(plainToolTip(markup), u"<span>&lt;img src='file:///x'&gt;</span>"_s);
    QCOMPARE(plainToolTip(u"a < b & c"_s), u"a < b & c"_s);
}

void WidgetsTest::longTextIsShortened()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *label = new ElidedLabel(QString(400, u'W'), 13);
    layout->addWidget(label);
    QVERIFY(window.minimumSizeHint().width() < 200);
    QVERIFY(label->sizeHint().width() > 2000);
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

void WidgetsTest::iconIsAlwaysThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPicture");
    QTest::addColumn<bool>("isDefault");
    QTest::newRow("picture") << u"app.PNG"_s << true << false;
    QTest::newRow("broken picture") << u"app.png"_s << false << true;
    QTest::newRow("library without icon") << u"app.dll"_s << false << true;
    QTest::newRow("program without icon") << u"app.exe"_s << false << true;
}

void WidgetsTest::iconIsAlwaysThere()
{
    QFETCH(QString, name);
    QFETCH(bool, isPicture);
    QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QImage picture(48, 48, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    QVERIFY(isPicture ? picture.save(&file, "PNG") : file.write("nothing to see") > 0);
    file.close();
    QTEST(iconOf(path).cacheKey() == AppIconHelper::defaultAppIcon().cacheKey(), "isDefault");
    QCOMPARE(iconOf(path).pixmap(32, 32).size(), QSize(32, 32));

    file.remove();
    QTest::ignoreMessage(QtDebugMsg, qPrintable(u"[AppIconHelper] Icon file not found: \"%1\""_s.arg(path)));
    QCOMPARE(iconOf(path).cacheKey(), iconOf(QString()).cacheKey());
}

void WidgetsTest::frameFollowsTheTabKeyOnly()
{
    const KeyboardFocus keyboardFocus;
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *button = new QPushButton(u"Button"_s);
    auto *row = new SettingListItem;
    layout->addWidget(button);
    layout->addWidget(row);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QTest::mouseClick(button, Qt::LeftButton);
    row->findChild<QCheckBox *>()->setFocus();
    button->setFocus();
    QVERIFY(!frameIn(window));
    // Takes the focus on by itself, for the reason Tab.
    button->setEnabled(false);
    QVERIFY(row->findChild<QCheckBox *>()->hasFocus() && !frameIn(window));
    button->setEnabled(true);

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(button->hasFocus() && frameIn(window));
    QCOMPARE(frameIn(window)->parentWidget(), button);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(frameIn(window)->parentWidget(), row);
    window.resize(window.width() + 100, window.height());
    QCOMPARE(frameIn(window)->size(), row->size());
    button->setFocus();
    QVERIFY2(frameIn(window) && frameIn(window)->parentWidget() == button, "moved on by the program");
    row->findChild<QCheckBox *>()->setFocus(Qt::MouseFocusReason);
    QVERIFY(!frameIn(window));
}

void WidgetsTest::enterClicksWhatHasTheFocus()
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

void WidgetsTest::missingCharactersAreDashes()
{
    VerifyCodeWidget widget;
    widget.setCode(u"12"_s);
    QString shown;
    for (const QLabel *label : widget.findChildren<QLabel *>()) {
        if (label->width() == 40)
            shown += label->text();
    }
    QCOMPARE(shown, u"12--"_s);
}

QObject *makeWidgetsTest()
{
    return new WidgetsTest;
}

#include "WidgetsTest.moc"
