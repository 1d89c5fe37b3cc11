#include "SilentEngine.h"

#include "ui/pages/CompletePage.h"
#include "ui/pages/TransferPage.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Item = TransferFileItem;

namespace {

/// The texts of all labels that are not hidden within `widget`.
QStringList shownTexts(const QWidget &widget)
{
    QStringList texts;
    for (const QLabel *label : widget.findChildren<QLabel *>()) {
        if (label->isVisibleTo(&widget) && !label->text().isEmpty())
            texts.append(label->text());
    }
    return texts;
}

/// Ready to be looked at.
QLabel *labelOf(QWidget &widget, const QString &text)
{
    for (QLabel *label : widget.findChildren<QLabel *>()) {
        if (label->text() == text) {
            label->ensurePolished();
            return label;
        }
    }
    return nullptr;
}

QPushButton *buttonOf(const QWidget &widget, const QString &text)
{
    for (QPushButton *button : widget.findChildren<QPushButton *>()) {
        if (button->text() == text && button->isVisibleTo(&widget))
            return button;
    }
    return nullptr;
}

QStringList rowNames(const TransferPage &page)
{
    QStringList names;
    for (const Item *item : page.findChildren<Item *>()) {
        if (item->isVisibleTo(&page))
            names.append(item->fileName());
    }
    return names;
}

Item::Status statusOf(const TransferPage &page, const QString &fileName)
{
    for (const Item *item : page.findChildren<Item *>()) {
        if (item->fileName() == fileName && item->isVisibleTo(&page))
            return item->status();
    }
    return Item::Status(-1);
}

/// Answers the next modal question by the button of that text, after `meanwhile` has happened behind it.
void answerQuestion(
    const QString &text, const std::function<void()> &meanwhile = [] {})
{
    QTimer::singleShot(0, qApp, [=] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(question);
        QCOMPARE(question->defaultButton()->text(), u"Continue Transfer"_s);
        meanwhile();
        if (question->isVisible())
            QTest::mouseClick(buttonOf(*question, text), Qt::LeftButton);
    });
}

} // namespace

/// The pages of a run and of its outcome.
class RunPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesAreListedByTheirLastTwoComponents_data();
    void filesAreListedByTheirLastTwoComponents();
    void rowsFollowTheFiles();
    void finishedRowsMakeRoom_data();
    void finishedRowsMakeRoom();
    void titlesFollowTheRun_data();
    void titlesFollowTheRun();
    void completionMarksTheRowsAndReports();
    void cancelAsksFirst_data();
    void cancelAsksFirst();
    void sessionEndStopsTheNewPcFromListeningAgain_data();
    void sessionEndStopsTheNewPcFromListeningAgain();
    void reportIsShownByRole_data();
    void reportIsShownByRole();
    void foldersAreListedOnceAndAsPlainText();
    void newPcFallsBackToTheDownloads();

private:
    std::unique_ptr<TransferEngine> m_engine;
};

void RunPagesTest::init()
{
    m_engine = std::make_unique<TransferEngine>(nullptr, silentEnvironment());
}

void RunPagesTest::filesAreListedByTheirLastTwoComponents_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("shown");

    QTest::newRow("name") << u"a.txt"_s << u"a.txt"_s;
    QTest::newRow("two parts") << u"b\\a.txt"_s << u"b\\a.txt"_s;
    QTest::newRow("four parts") << u"d/c/b/a.txt"_s << u"b/a.txt"_s;
    QTest::newRow("mixed separators") << u"C:\\d/b\\a.txt"_s << u"b/a.txt"_s;
}

void RunPagesTest::filesAreListedByTheirLastTwoComponents()
{
    QFETCH(QString, path);
    QFETCH(QString, shown);
    TransferPage page(m_engine.get());
    QTest::ignoreMessage(QtDebugMsg, "TransferPage: Set 31 files for transfer (showing 30 )");
    page.setFiles(QStringList(31, path));
    QCOMPARE(rowNames(page), QStringList(30, shown));
    QCOMPARE(statusOf(page, shown), Item::Pending);
}

void RunPagesTest::rowsFollowTheFiles()
{
    TransferPage page(m_engine.get());
    page.show();
    Q_EMIT m_engine->fileTransferProgress(u"unknown"_s, 50);
    for (int index = 0; index < 8; ++index)
        Q_EMIT m_engine->fileTransferStarted(u"file %1"_s.arg(index));
    Q_EMIT m_engine->fileTransferStarted(u"file 7"_s);
    Q_EMIT m_engine->fileTransferCompleted(u"file 0"_s);
    Q_EMIT m_engine->fileTransferFailed(u"file 1"_s, u"unreadable"_s);
    Q_EMIT m_engine->fileTransferFailed(u"never begun"_s, u"unreadable"_s);

    QTRY_COMPARE(rowNames(page).size(), 9);
    QVERIFY(!rowNames(page).contains(u"unknown"_s));
    QCOMPARE(statusOf(page, u"file 0"_s), Item::Success);
    QCOMPARE(statusOf(page, u"file 1"_s), Item::Failed);
    QCOMPARE(statusOf(page, u"file 7"_s), Item::Active);
    QCOMPARE(statusOf(page, u"never begun"_s), Item::Failed);
    const QScrollBar *bar = page.findChild<QScrollArea *>()->verticalScrollBar();
    QTRY_VERIFY(bar->value() > 0);
    QVERIFY(!shownTexts(page).contains(u"unreadable"_s));
}

void RunPagesTest::finishedRowsMakeRoom_data()
{
    QTest::addColumn<int>("failed");
    QTest::addColumn<int>("succeeded");
    QTest::addColumn<int>("removed");

    QTest::newRow("all active") << -1 << -1 << -1;
    QTest::newRow("one failed") << 12 << -1 << 12;
    QTest::newRow("success before failure") << 3 << 20 << 20;
}

void RunPagesTest::finishedRowsMakeRoom()
{
    QFETCH(int, failed);
    QFETCH(int, succeeded);
    QFETCH(int, removed);
    TransferPage page(m_engine.get());
    QStringList expected;
    for (int index = 0; index < 30; ++index) {
        expected.append(QString::number(index));
        Q_EMIT m_engine->fileTransferStarted(expected.last());
    }
    if (failed >= 0)
        Q_EMIT m_engine->fileTransferFailed(QString::number(failed), QString());
    if (succeeded >= 0)
        Q_EMIT m_engine->fileTransferCompleted(QString::number(succeeded));
    Q_EMIT m_engine->fileTransferStarted(u"new"_s);
    if (removed >= 0)
        expected.removeAt(removed);
    expected.append(u"new"_s);
    QCoreApplication::processEvents();
    QCOMPARE(rowNames(page), expected);
}

void RunPagesTest::titlesFollowTheRun_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QStringList>("titles"); // role, progress, paused, progress again, resumed, failed

    QTest::newRow("Old PC") << int(OldPC)
                            << QStringList({u"Sending Data"_s, u"Sending Data - 42%"_s, u"Sending Paused"_s,
                                            u"Sending Data - 42%"_s, u"Sending Data"_s,
                                            u"Transfer Failed"_s});
    QTest::newRow("New PC") << int(NewPC)
                            << QStringList({u"Receiving Data"_s, u"Receiving Data - 42%"_s,
                                            u"Receiving Paused"_s, u"Receiving Data - 42%"_s,
                                            u"Receiving Data"_s, u"Transfer Failed"_s});
}

void RunPagesTest::titlesFollowTheRun()
{
    QFETCH(int, role);
    QFETCH(QStringList, titles);
    TransferPage page(m_engine.get());
    page.setRole(role);
    TransferProgress progress;
    progress.overallPercent = 42;
    progress.bytesPerSecond = 1536;
    progress.remainingSeconds = 3661;
    progress.transferredBytes = 1023;
    progress.totalBytes = 1 << 20;
    progress.failedItems = 3;
    const QList<std::function<void()>> steps = {
        [] {},
        [&] { Q_EMIT m_engine->transferProgressChanged(progress); },
        [&] { Q_EMIT m_engine->pausedByPeer(); },
        [&] { Q_EMIT m_engine->transferProgressChanged(progress); },
        [&] { Q_EMIT m_engine->resumedByPeer(); },
        [&] { Q_EMIT m_engine->transferFailed(u"reason"_s); },
    };
    for (int index = 0; index < steps.size(); ++index) {
        steps.at(index)();
        QCoreApplication::processEvents();
        QCOMPARE(shownTexts(page).first(), titles.at(index));
    }
    for (const QString &text :
         {u"42%"_s, u"1.5 KB/s"_s, u"1:01:01"_s, u"1023 B"_s, u"of 1.0 MB"_s, u"3 failed"_s})
        QVERIFY2(shownTexts(page).contains(text), qPrintable(text));
    QVERIFY(!shownTexts(page).contains(u"reason"_s));
}

void RunPagesTest::completionMarksTheRowsAndReports()
{
    TransferPage page(m_engine.get());
    const QSignalSpy reported(&page, &TransferPage::transferFinishedWithReport);
    const QSignalSpy finished(&page, &TransferPage::transferFinished);
    Q_EMIT m_engine->fileTransferStarted(u"active"_s);
    Q_EMIT m_engine->fileTransferFailed(u"failed"_s, QString());
    MigrationReport report;
    report.filesSuccess = 5;
    report.filesFailed = 2;
    QTest::ignoreMessage(QtDebugMsg, "TransferPage::onTransferCompleted() - Success: 5 Failed: 2");
    Q_EMIT m_engine->transferCompleted(report);
    QCoreApplication::processEvents();
    QCOMPARE(statusOf(page, u"active"_s), Item::Success);
    QCOMPARE(statusOf(page, u"failed"_s), Item::Failed);
    QCOMPARE(reported.count(), 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(shownTexts(page).contains(u"100%"_s));
    QVERIFY(shownTexts(page).contains(u"00:00"_s));
}

void RunPagesTest::cancelAsksFirst_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("end"); // of the run behind the question: 0 none, 1 completed, 2 by peer, 3 session
    QTest::addColumn<bool>("cancels");

    const QString yes = u"Yes, Cancel"_s;
    QTest::newRow("no") << int(OldPC) << u"Continue Transfer"_s << 0 << false;
    QTest::newRow("Old PC") << int(OldPC) << yes << 0 << true;
    QTest::newRow("New PC") << int(NewPC) << yes << 0 << true;
    QTest::newRow("completed meanwhile") << int(NewPC) << yes << 1 << false;
    QTest::newRow("cancelled by the peer meanwhile") << int(NewPC) << yes << 2 << false;
    QTest::newRow("session ended meanwhile") << int(OldPC) << yes << 3 << false;
}

void RunPagesTest::cancelAsksFirst()
{
    QFETCH(int, role);
    QFETCH(QString, answer);
    QFETCH(int, end);
    QFETCH(bool, cancels);
    TransferPage page(m_engine.get());
    page.show();
    m_engine->setRole(role);
    page.setRole(role);
    m_engine->startReceiving();
    const QSignalSpy cancelled(m_engine.get(), &TransferEngine::transferCancelled);
    const QSignalSpy left(&page, &TransferPage::transferCancelled);
    const QSignalSpy rearmed(m_engine.get(), &TransferEngine::transferStarted);

    answerQuestion(answer, [this, end] {
        if (end == 1)
            Q_EMIT m_engine->transferCompleted({});
        if (end == 2)
            Q_EMIT m_engine->peerCancelled();
        if (end == 3)
            Q_EMIT m_engine->sessionEndReceived();
    });
    QTest::mouseClick(buttonOf(page, u"Cancel"_s), Qt::LeftButton);

    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(cancelled.count(), cancels ? 1 : 0);
    QCOMPARE(left.count(), cancels && role == OldPC ? 1 : 0);
    if (cancels && role == NewPC) {
        QCOMPARE(shownTexts(page).first(), u"Waiting for Data..."_s);
        QTRY_COMPARE(rearmed.count(), 1);
    }
    if (end == 2)
        QTRY_COMPARE(shownTexts(page).first(), u"Sender cancelled. Waiting..."_s);
}

void RunPagesTest::sessionEndStopsTheNewPcFromListeningAgain_data()
{
    QTest::addColumn<bool>("atOnce");
    QTest::newRow("behind the cancel") << true;
    QTest::newRow("a little later") << false;
}

void RunPagesTest::sessionEndStopsTheNewPcFromListeningAgain()
{
    TransferPage page(m_engine.get());
    m_engine->setRole(NewPC);
    page.setRole(NewPC);
    const QSignalSpy rearmed(m_engine.get(), &TransferEngine::transferStarted);
    QFETCH(bool, atOnce);
    Q_EMIT m_engine->peerCancelled();
    if (!atOnce)
        QCoreApplication::processEvents();
    Q_EMIT m_engine->sessionEndReceived();

    bool later = false;
    QTimer::singleShot(300, &page, [&later] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(rearmed.count(), 0);
}

void RunPagesTest::reportIsShownByRole_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QStringList>("buttons");

    QTest::newRow("Old PC") << int(OldPC) << QStringList()
                            << QStringList({u"✓ Finished"_s, u"📂 Send More Files..."_s});
    QTest::newRow("New PC") << int(NewPC)
                            << QStringList({u"Files saved to:"_s, u"Waiting for more files..."_s})
                            << QStringList();
}

void RunPagesTest::reportIsShownByRole()
{
    QFETCH(int, role);
    QFETCH(QStringList, shown);
    QFETCH(QStringList, buttons);
    m_engine->setRole(role);
    CompletePage page(m_engine.get());
    MigrationReport report;
    report.filesSuccess = 11;
    report.appsSuccess = 22;
    report.settingsSuccess = 33;
    report.filesFailed = 44;
    Q_EMIT m_engine->transferCompleted(report);

    const QStringList texts = shownTexts(page);
    for (const QString &text : {u"11"_s, u"22"_s, u"33"_s, u"Transfer Complete!"_s})
        QVERIFY2(texts.contains(text), qPrintable(text));
    QVERIFY(!texts.contains(u"44"_s));
    QCOMPARE(labelOf(page, u"✓"_s)->grab().toImage().pixelColor(36, 4), QColor(0xdc, 0xfc, 0xe7));
    for (const QString &text : {u"Files saved to:"_s, u"Waiting for more files..."_s})
        QCOMPARE(texts.contains(text), shown.contains(text));
    for (const QString &text : {u"✓ Finished"_s, u"📂 Send More Files..."_s})
        QCOMPARE(buttonOf(page, text) != nullptr, buttons.contains(text));
}

void RunPagesTest::foldersAreListedOnceAndAsPlainText()
{
    m_engine->setRole(NewPC);
    CompletePage page(m_engine.get());
    MigrationReport report;
    const QString hostile = u"<img src='file://host/x'>"_s;
    report.savedFolderPaths = {{hostile, u"/home/anna/<b>x</b>"_s},
                               {u"Documents"_s, u"/home/anna/Documents"_s}};
    report.savedFolderCounts = {{hostile, 7}};
    report.savedFolderSamples = {{hostile, u"(<i>a</i>, b)"_s}};
    page.setReport(report);
    page.setReport(report);

    const QList<QWidget *> rows = page.findChildren<QWidget *>(u"folderItem"_s);
    QCOMPARE(rows.size(), 2);
    QCOMPARE(shownTexts(*rows.at(0)),
             QStringList({u"📂"_s, hostile, u"/home/anna/<b>x</b>"_s, u"(<i>a</i>, b)"_s, u"7 files"_s}));
    QCOMPARE(shownTexts(*rows.at(1)),
             QStringList({u"📂"_s, u"Documents"_s, u"/home/anna/Documents"_s, u"0 files"_s}));
    QVERIFY(labelOf(*rows.at(0), u"(<i>a</i>, b)"_s)->font().italic());
    for (const QLabel *label : rows.at(0)->findChildren<QLabel *>()) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(!label->toolTip().contains("<b>"_L1));
    }
    QCOMPARE(buttonOf(*rows.at(1), u"Open"_s)->property("folderPath").toString(), u"/home/anna/Documents"_s);
}

void RunPagesTest::newPcFallsBackToTheDownloads()
{
    m_engine->setRole(NewPC);
    CompletePage page(m_engine.get());
    const QString target =
        QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) + u"/Zandrove"_s;
    QVERIFY(!QDir(target).exists());
    page.setReport({});
    QVERIFY(page.findChildren<QWidget *>(u"folderItem"_s).isEmpty());
    QVERIFY(shownTexts(page).contains(u"Files saved to:"_s));

    QVERIFY(QDir().mkpath(target));
    MigrationReport report;
    report.filesSuccess = 5;
    page.setReport(report);
    QVERIFY(QDir(target).removeRecursively());
    const QStringList texts = shownTexts(page);
    for (const QString &text : {u"Received Files"_s, target, u"5 files"_s})
        QVERIFY2(texts.contains(text), qPrintable(text));
}

QObject *makeRunPagesTest()
{
    return new RunPagesTest;
}

#include "RunPagesTest.moc"
