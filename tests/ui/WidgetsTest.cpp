#include "UiTests.h"
#include "WizardView.h"

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
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

using MakeRow = std::function<CheckRow *()>;
using MakeCard = std::function<QWidget *()>;

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

/// What the cards and rows do, by mouse, by key and for a screen reader.
class WidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pressFlipsTheRow_data()
    {
        columns<MakeRow, Qt::MouseButton, bool>("make", "button", "flips");
        const MakeRow app = [] { return makeApp(true); };
        QTest::newRow("application") << app << Qt::LeftButton << true;
        QTest::newRow("right button") << app << Qt::RightButton << false;
        QTest::newRow("system application")
            << MakeRow([] { return makeApp(false); }) << Qt::LeftButton << false;
        QTest::newRow("account") << MakeRow([] { return new AccountListItem; }) << Qt::LeftButton << true;
        QTest::newRow("folder") << MakeRow([] { return new FolderListItem; }) << Qt::LeftButton << true;
        QTest::newRow("setting") << MakeRow([] { return new SettingListItem; }) << Qt::LeftButton << true;
    }

    void pressFlipsTheRow()
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

    void whatTheUserCannotTickCanBeTicked()
    {
        const std::unique_ptr<CheckRow> row(makeApp(false));
        row->setChecked(true);
        const QAccessibleInterface *box =
            QAccessible::queryAccessibleInterface(row->findChild<QCheckBox *>());
        QCOMPARE(box->text(QAccessible::Name), u"Driver"_s);
        QCOMPARE(box->text(QAccessible::Description), u"System App"_s);
        QVERIFY(box->state().checked && box->state().disabled);
    }

    void cardsAreClicked_data()
    {
        columns<MakeCard, int>("make", "clicks");
        QTest::newRow("mode") << MakeCard([] { return new ModeCard; }) << 1;
        QTest::newRow("role") << MakeCard([] { return new RoleCard(OldPC); }) << 1;
        QTest::newRow("peer") << MakeCard([] { return makePeer(true); }) << 1;
        QTest::newRow("peer that is gone") << MakeCard([] { return makePeer(false); }) << 0;
    }

    void cardsAreClicked()
    {
        QFETCH(MakeCard, make);
        QFETCH(int, clicks);
        const std::unique_ptr<QWidget> card(make());
        const QSignalSpy clicked(card.get(), SIGNAL(clicked()));
        QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(card.get());
        QTest::mousePress(card.get(), Qt::LeftButton);
        QCOMPARE(clicked.count(), clicks);
        QTest::mouseRelease(card.get(), Qt::LeftButton);
        QTest::mouseClick(card.get(), Qt::RightButton);
        QTest::keyClick(card.get(), Qt::Key_A);
        QCOMPARE(clicked.count(), clicks);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(card.get(), key);
        heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 5 * clicks);

        QVERIFY(heard->role() == QAccessible::RadioButton && heard->state().checkable);
        for (const bool selected : {true, false}) {
            card->setProperty("selected", selected);
            QCOMPARE(bool(heard->state().checked), selected);
        }
    }

    void modeCardShowsItsPictureAndBadge()
    {
        ModeCard card;
        QTest::ignoreMessage(QtDebugMsg, "Invalid SVG: \":/nowhere.svg\"");
        card.setIcons(u":/nowhere.svg"_s, u":/icons/wifi-white.svg"_s);
        card.setBadge(u"Fast"_s, u"green"_s);
        const QLabel *icon = nullptr;
        const QLabel *badge = nullptr;
        for (const QLabel *label : card.findChildren<QLabel *>()) {
            icon = label->size() == QSize(28, 28) ? label : icon;
            badge = label->text() == u"Fast"_s ? label : badge;
        }
        QVERIFY(icon && icon->pixmap(Qt::ReturnByValue).isNull());
        card.setSelected(true);
        QCOMPARE(icon->pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(28, 28));
        QVERIFY(badge && badge->isVisibleTo(&card) && badge->styleSheet().contains(u"#059669"_s));
        card.setBadge(QString(), u"red"_s);
        QVERIFY(!badge->isVisibleTo(&card) && badge->styleSheet().contains(u"#6b7280"_s));
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

    void iconIsAlwaysThere_data()
    {
        columns<QString, bool>("name", "isPicture");
        QTest::newRow("picture") << u"app.PNG"_s << true;
        QTest::newRow("broken picture") << u"app.png"_s << false;
        QTest::newRow("program without icon") << u"app.exe"_s << false;
    }

    void iconIsAlwaysThere()
    {
        QFETCH(QString, name);
        QFETCH(bool, isPicture);
        const QTemporaryDir folder;
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QImage picture(48, 48, QImage::Format_RGB32);
        QVERIFY(isPicture ? picture.save(&file, "PNG") : file.write("nothing to see") > 0);
        file.close();
        const auto icon = [&file] { return AppIconHelper::iconForPath(file.fileName()); };
        const qint64 standIn = AppIconHelper::defaultAppIcon().cacheKey();
        QCOMPARE(icon().cacheKey() != standIn, isPicture);
        QCOMPARE(icon().pixmap(32, 32).size(), QSize(32, 32));
        file.remove();
        QCOMPARE(icon().cacheKey(), standIn);
        QCOMPARE(AppIconHelper::iconForPath(QString()).cacheKey(), standIn);
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

QObject *makeWidgetsTest()
{
    return new WidgetsTest;
}

#include "WidgetsTest.moc"
