#include "SilentEngine.h"
#include "TestMain.h"
#include "WizardView.h"

#include "ui/pages/CompletePage.h"
#include "ui/pages/TransferPage.h"
#include "ui/widgets/NoticeBar.h"
#include "ui/widgets/TransferFileItem.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTimer>

#include <array>

using namespace Qt::StringLiterals;
using namespace Zandrove;

/// The pages of a run and of its outcome.
class RunPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_engine = std::make_unique<TransferEngine>(nullptr, silentEnvironment());
        m_run = std::make_unique<TransferPage>(m_engine.get());
        m_run->show();
        m_outcome = std::make_unique<CompletePage>(m_engine.get());
        m_outcome->show();
    }

    void cleanup()
    {
        m_outcome.reset();
        m_run.reset();
        m_engine.reset();
    }

    void filesAreListedByTheirLastTwoComponents()
    {
        m_run->setFiles({u"a.txt"_s, u"b\\a.txt"_s, u"d/c/b/a.txt"_s, u"C:\\d/b\\a.txt"_s});
        QTRY_COMPARE(rows(), QStringList({u"○ a.txt"_s, u"○ b\\a.txt"_s, u"○ b/a.txt"_s, u"○ b/a.txt"_s}));
        QTest::ignoreMessage(QtDebugMsg, "TransferPage: Set 31 files for transfer (showing 30 )");
        m_run->setFiles(QStringList(31, u"a.txt"_s));
        QTRY_COMPARE(rows().size(), 30);
    }

    void rowsFollowTheFilesToTheEnd()
    {
        const QSignalSpy reported(m_run.get(), &TransferPage::transferFinishedWithReport);
        const QSignalSpy finished(m_run.get(), &TransferPage::transferFinished);
        m_run->setRole(OldPC);
        Q_EMIT m_engine->fileTransferProgress(u"unknown"_s, 50);
        for (const QString &file : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"d"_s})
            Q_EMIT m_engine->fileTransferStarted(file);
        Q_EMIT m_engine->fileTransferProgress(u"d"_s, 40);
        Q_EMIT m_engine->fileTransferCompleted(u"a"_s);
        Q_EMIT m_engine->fileTransferFailed(u"b"_s, u"unreadable"_s);
        Q_EMIT m_engine->fileTransferFailed(u"never begun"_s, u"unreadable"_s);
        QTRY_COMPARE(rows(), QStringList({u"✓ a, sent"_s, u"✕ b, unreadable"_s, u"● c, 0%"_s, u"● d, 40%"_s,
                                          u"✕ never begun, unreadable"_s}));
        QTRY_VERIFY(m_run->findChild<QScrollArea *>()->verticalScrollBar()->value() > 0);

        TransferProgress all;
        all.overallPercent = 100;
        Q_EMIT m_engine->transferProgressChanged(all);
        QVERIFY(!runTexts().contains(u"100%"_s));
        Q_EMIT m_engine->itemSettled({ItemKind::File, ItemOutcome::Arrived, u"/x/c"_s, {}, 1});
        Q_EMIT m_engine->transferCompleted({});
        QTRY_COMPARE(rows(), QStringList({u"✓ a, sent"_s, u"✕ b, unreadable"_s, u"✔ c, moved"_s, u"○ d"_s,
                                          u"✕ never begun, unreadable"_s}));
        QVERIFY(reported.count() == 1 && finished.count() == 1);
        QVERIFY(runTexts().contains(u"100%"_s) && runTexts().contains(u"00:00"_s));
    }

    /// Names come again in other folders: an outcome must not be shown on the row of another file.
    void rowsTellOutcomesOfTheirOwnFiles()
    {
        m_run->setRole(OldPC);
        const auto send = [this](const QString &name) {
            Q_EMIT m_engine->fileTransferStarted(name);
            Q_EMIT m_engine->fileTransferCompleted(name);
        };
        const auto settle = [this](ItemOutcome outcome, const QString &path, const QString &reason = {}) {
            Q_EMIT m_engine->itemSettled(
                {path.startsWith(u'/') ? ItemKind::File : ItemKind::Application, outcome, path, reason, 1});
        };
        send(u"x"_s);
        for (int index = 1; index < 30; ++index) {
            send(QString::number(index));
            settle(ItemOutcome::WasThere, u"/a/%1"_s.arg(index));
        }
        Q_EMIT m_engine->fileTransferStarted(u"[App] Acme Writer"_s);
        settle(ItemOutcome::Arrived, u"Writer"_s);
        Q_EMIT m_engine->fileTransferFailed(u"x"_s, u"denied"_s);
        settle(ItemOutcome::Failed, u"/c/x"_s, u"denied"_s);
        for (int index = 30; index < 57; ++index)
            Q_EMIT m_engine->fileTransferStarted(QString::number(index));
        send(u"x"_s); // the first row of that name has made room, its outcome is still to come
        settle(ItemOutcome::WasDifferent, u"/a/x"_s);
        QTRY_COMPARE(lastRow(), u"✓ x, sent"_s);
        QVERIFY(rows().contains(u"● [App] Acme Writer, 0%"_s) && !rows().contains(u"≠ x"_s));
        settle(ItemOutcome::Arrived, u"/b/x"_s);
        QTRY_COMPARE(lastRow(), u"✔ x, moved"_s);
        settle(ItemOutcome::NotConfirmed, u"/b/x"_s, u"no answer"_s);
        QTRY_COMPARE(lastRow(), u"✕ x, no answer"_s);
    }

    void finishedRowsMakeRoom()
    {
        using Names = std::array<QString, 3>;
        for (const auto &[failed, succeeded, removed] :
             {Names(), Names{u"12"_s, {}, u"12"_s}, Names{u"3"_s, u"20"_s, u"20"_s}}) {
            m_run->setFiles({});
            QStringList expected;
            for (int index = 0; index < 30; ++index) {
                expected.append(QString::number(index));
                Q_EMIT m_engine->fileTransferStarted(expected.last());
            }
            if (!failed.isEmpty())
                Q_EMIT m_engine->fileTransferFailed(failed, QString());
            Q_EMIT m_engine->fileTransferCompleted(succeeded);
            Q_EMIT m_engine->fileTransferStarted(u"new"_s);
            expected.append(u"new"_s);
            expected.removeOne(removed);
            static const QRegularExpression State(u"^. |, .*"_s);
            QTRY_COMPARE(rows().replaceInStrings(State, QString()), expected);
        }
    }

    void titlesFollowTheRun()
    {
        TransferProgress progress;
        progress.overallPercent = 42;
        progress.remainingSeconds = 3661;
        progress.failedItems = 3;
        for (const auto &[role, verb] : {std::pair(OldPC, u"Sending"_s), {NewPC, u"Receiving"_s}}) {
            m_run->setRole(role);
            Q_EMIT m_engine->pausedByPeer();
            QCOMPARE(runTexts().first(), verb + u" Paused"_s);
            Q_EMIT m_engine->resumedByPeer();
            QCOMPARE(runTexts().first(), verb + u" Data"_s);
            Q_EMIT m_engine->transferProgressChanged(progress);
            QCOMPARE(runTexts().first(), verb + u" Data - 42%"_s);
            QVERIFY(runTexts().contains(u"1:01:01"_s));
        }
        Q_EMIT m_engine->transferFailed(u"reason"_s);
        QCOMPARE(runTexts().first(), u"Transfer Failed"_s);
        QVERIFY(runTexts().contains(u"0 failed"_s) && runTexts().contains(u"reason"_s));
    }

    void cancelledNewPCSaysWhatWasDone()
    {
        m_run->setRole(NewPC);
        RunSummary run;
        run.end = RunEnd::CancelledHere;
        run.items = {{ItemKind::Application, ItemOutcome::Failed, u"Acme Writer"_s, u"stopped"_s, 0}};
        run.apps.failed = 1;
        run.files.arrived = 3;
        Q_EMIT m_engine->runEnded(run);
        QTRY_VERIFY(m_run->findChild<NoticeBar *>()->text().contains(u"Acme Writer: failed: stopped"_s));
    }

    void cancelAsksFirst_data()
    {
        using Action = std::function<void()>; // behind the question
        addColumns<int, QString, Action, bool>("role", "answer", "meanwhile", "cancels");
        const QString yes = u"Yes, Cancel"_s;
        const Action nothing = [] {};
        const Action completed = [this] { Q_EMIT m_engine->transferCompleted({}); };
        const Action cancelled = [this] { Q_EMIT m_engine->peerCancelled(); };
        const Action ended = [this] { Q_EMIT m_engine->sessionEndReceived(); };
        QTest::newRow("no") << int(OldPC) << u"Continue Transfer"_s << nothing << false;
        QTest::newRow("Old PC") << int(OldPC) << yes << nothing << true;
        QTest::newRow("New PC") << int(NewPC) << yes << nothing << true;
        QTest::newRow("completed meanwhile") << int(NewPC) << yes << completed << false;
        QTest::newRow("cancelled by the peer meanwhile") << int(NewPC) << yes << cancelled << false;
        QTest::newRow("session ended meanwhile") << int(OldPC) << yes << ended << false;
    }

    void cancelAsksFirst()
    {
        QFETCH(int, role);
        QFETCH(QString, answer);
        QFETCH(std::function<void()>, meanwhile);
        QFETCH(bool, cancels);
        m_engine->setRole(role);
        m_run->setRole(role);
        m_engine->startReceiving();
        const QSignalSpy cancelled(m_engine.get(), &TransferEngine::transferCancelled);
        const QSignalSpy left(m_run.get(), &TransferPage::transferCancelled);
        const QSignalSpy rearmed(m_engine.get(), &TransferEngine::transferStarted);

        const WizardView view(m_run.get());
        QTimer::singleShot(0, this, [&] {
            const auto *question = qobject_cast<QMessageBox *>(view.front());
            QVERIFY(question);
            QCOMPARE(question->defaultButton()->text(), u"Continue Transfer"_s);
            meanwhile();
            view.click(answer);
        });
        view.click(u"Cancel"_s);

        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(cancelled.count(), cancels ? 1 : 0);
        QCOMPARE(left.count(), cancels && role == OldPC ? 1 : 0);
        if (cancels && role == NewPC) {
            QCOMPARE(runTexts().first(), u"Waiting for Data..."_s);
            QTRY_COMPARE(rearmed.count(), 1);
        }
        if (QLatin1StringView(QTest::currentDataTag()).contains("peer"_L1))
            QTRY_COMPARE(runTexts().first(), u"Sender cancelled. Waiting..."_s);
    }

    void foldersAreListedOnceAndAsPlainText()
    {
        m_engine->setRole(NewPC);
        MigrationReport report;
        const QString hostile = u"<img src='file://host/x'>"_s;
        report.savedFolderPaths = {{hostile, u"/home/anna/<b>x</b>"_s}, {u"Work"_s, u"/home/anna/Work"_s}};
        report.savedFolderCounts = {{hostile, 7}};
        report.savedFolderSamples = {{hostile, u"(<i>a</i>, b)"_s}};
        m_outcome->setReport(report);
        m_outcome->setReport(report);
        QCOMPARE(outcomeText().section(u"📡|Waiting for more files...|"_s, 1),
                 u"📂|%1|/home/anna/<b>x</b>|(<i>a</i>, b)|7 files|Open|"
                 "📂|Work|/home/anna/Work|0 files|Open"_s.arg(hostile));
        for (const QLabel *label : m_outcome->findChildren<QLabel *>())
            QVERIFY(label->textFormat() == Qt::PlainText && !label->toolTip().contains("<b>"_L1));
        const auto *folder = m_outcome->findChildren<QWidget *>(u"folderItem"_s).at(1);
        QCOMPARE(folder->findChild<QPushButton *>()->property("folderPath"), u"/home/anna/Work"_s);
    }

    void newPcFallsBackToTheDownloads()
    {
        m_engine->setRole(NewPC);
        QDir target(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) + u"/Zandrove"_s);
        QVERIFY(target.mkpath(u"."_s));
        MigrationReport report;
        report.filesSuccess = 5;
        m_outcome->setReport(report);
        QVERIFY(target.removeRecursively());
        QVERIFY(outcomeText().endsWith(u"|📂|Received Files|%1|5 files|Open"_s.arg(target.path())));
    }

    void headlineSaysWhatDidNotArrive()
    {
        RunSummary summary;
        summary.end = RunEnd::Complete;
        summary.files = {20, 3, 2, 39, 1, 0};
        summary.notArrived =
            QList<ItemResult>(39, {ItemKind::File, ItemOutcome::Failed, u"/a"_s, u"full"_s, 1});
        Q_EMIT m_engine->transferCompleted({});
        QVERIFY(outcomeText().startsWith(u"✓|Transfer Complete!|"_s) && !outcomeText().contains("Copy"_L1));
        Q_EMIT m_engine->runEnded(summary);
        QVERIFY(outcomeText().startsWith(u"!|Transfer finished, 42 of 65 files did not arrive|"_s));
        QVERIFY(outcomeText().contains(u"|And 3 more.|Copy list|"_s));
        QVERIFY(WizardView(m_outcome.get()).click(u"Copy list"_s));
        QCOMPARE(QGuiApplication::clipboard()->text(), u"/a\tfull\n"_s.repeated(39));
    }

private:
    /// The rows of the files, as "● a.txt, 40%" or "✓ b.txt, sent".
    [[nodiscard]] QStringList rows() const
    {
        QCoreApplication::processEvents();
        QStringList rows;
        for (const TransferFileItem *item : m_run->findChildren<TransferFileItem *>()) {
            const QString said = item->accessibleDescription();
            const QString glyph = u"○●✔✕✓=≠"_s.at(item->status());
            if (item->isVisible())
                rows.append(glyph + u' ' + item->fileName() + (said.isEmpty() ? said : u", "_s + said));
        }
        return rows;
    }

    [[nodiscard]] QString lastRow() const { return rows().value(rows().size() - 1); }

    /// What a page says, its title first, once it has heard all that is queued.
    [[nodiscard]] static QStringList textsOf(QWidget *page)
    {
        QCoreApplication::processEvents();
        return WizardView(page).texts();
    }
    [[nodiscard]] QStringList runTexts() const { return textsOf(m_run.get()); }
    [[nodiscard]] QString outcomeText() const { return textsOf(m_outcome.get()).join(u'|'); }

    std::unique_ptr<TransferEngine> m_engine;
    std::unique_ptr<TransferPage> m_run;
    std::unique_ptr<CompletePage> m_outcome;
};

ZANDROVE_TEST(RunPagesTest)

#include "RunPagesTest.moc"
