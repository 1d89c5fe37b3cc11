#include "TestMain.h"

#include "pipeline/RunLedger.h"

#include <QElapsedTimer>

using namespace std::chrono_literals;

namespace {

QList<FileTransferTask> tasksFrom(int firstId, int count)
{
    QList<FileTransferTask> tasks(count);
    for (int at = 0; at < count; ++at) {
        tasks[at].taskId = firstId + at;
        tasks[at].relativePath = u"Docs/%1"_s.arg(firstId + at);
        tasks[at].sourcePath = u"/home/u/Docs/%1"_s.arg(firstId + at);
        tasks[at].fileSize = 100;
    }
    return tasks;
}

/// A run of the Old PC that is told by words: "l0" a FileEnd left, "x0" one that says changed, "f0" failed
/// here, "q1" a request, "a1" its answer, which may name files ("a1:0,2s": failed, skipped; "i" identical,
/// "d" different, "v" no room, "p" by its path under another number), "b1" an answer that says failure, "n" a
/// second list, "w" time enough, "r" a pause, "e" everything left, "c" the end.
struct Story
{
    RunLedger ledger{OldPC, u"OLDBOX"_s, u"NEWBOX"_s, QDateTime()};
    std::chrono::milliseconds now = 0ms;

    AnsweredFile named(QString word)
    {
        const QChar how = word.back().isLetter() ? word.back() : QChar();
        const int id = (how.isNull() ? word : word.chopped(1)).toInt();
        AnsweredFile file{id, u"Docs/%1"_s.arg(id), u"because"_s, u"sid"_s.contains(how) && !how.isNull(), {},
                          {}};
        if (how == u'i' || how == u'd')
            file.identical = how == u'i';
        if (how == u'v')
            file.fullVolume = u"D:"_s;
        if (how == u'p')
            file.taskId = 1;
        return file;
    }

    void tell(const QString &word)
    {
        const int number = word.mid(1).section(u':', 0, 0).toInt();
        switch (word.front().unicode()) {
        case 'l':
        case 'x':
            ledger.fileEndSent(number, word.front() == u'x');
            break;
        case 'f':
            ledger.failedHere(number, u"here"_s);
            break;
        case 'q':
            ledger.answerRequested(number, 0, now);
            break;
        case 'a':
        case 'b': {
            BatchAnswer answer{number, word.front() == u'a', {}};
            for (const QString &file : word.section(u':', 1).split(u',', Qt::SkipEmptyParts))
                answer.files.append(named(file));
            ledger.answered(answer);
            break;
        }
        case 'n':
            ledger.expect(tasksFrom(10, 2));
            break;
        case 'w':
            ledger.expire(now += 300s);
            break;
        case 'r':
            ledger.restartClocks(now += 299s);
            break;
        case 'e':
            ledger.everythingLeft();
            break;
        case 'c':
            ledger.close(RunEnd::LinkLost, {});
            break;
        default:
            QFAIL(qPrintable(word));
        }
    }

    /// A letter for each file: P pending, A arrived, T there, D different, F failed there, H failed here, N
    /// not confirmed; and "." when nothing is waited for.
    QString told(const QString &words)
    {
        ledger.expect(tasksFrom(0, 4));
        for (const QString &word : words.split(u' ', Qt::SkipEmptyParts))
            tell(word);
        const OutcomeCounts &counts = ledger.summary().files;
        QString letters(counts.total(), u'P');
        for (const ItemResult &item : ledger.takeSettled()) {
            const int id = item.path.section(u'/', -1).toInt();
            letters[id < 10 ? id : id - 6] =
                item.reason == u"here"_s ? QChar(u'H') : QChar(u"PATDFN"_s[int(item.outcome)]);
        }
        const int failed = int(letters.count(u'F') + letters.count(u'H'));
        const bool agrees = counts.arrived == letters.count(u'A') && counts.wasThere == letters.count(u'T') &&
                            counts.wasDifferent == letters.count(u'D') && counts.failed == failed &&
                            counts.notConfirmed == letters.count(u'N') &&
                            ledger.summary().notArrived.size() == failed + letters.count(u'N') &&
                            ledger.summary().different.size() == letters.count(u'D') &&
                            ledger.summary().arrivedBytes == 100 * letters.count(u'A') &&
                            ledger.summary().missingBytes == 100 * counts.missing();
        return letters + (ledger.isSettled() ? u"."_s : u""_s) + (agrees ? u""_s : u" but other counts"_s);
    }
};

} // namespace

class RunLedgerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersDecideWhatArrived_data()
    {
        const auto row = addColumns<QString, QString>("events", "outcomes");
        row("nothing is known before the answer", u"l0 l1 l2 l3 q1"_s, u"PPPP"_s);
        row("the answer covers what left before", u"l0 l1 q1 l2 a1 l3"_s, u"AAPP"_s);
        row("and from the request before on", u"l0 q1 l1 q2 l2 l3 q3 a1 a2 a3"_s, u"AAAA."_s);
        row("names fail", u"l0 l1 l2 l3 q1 a1:0,2v"_s, u"FAFA."_s);
        row("or were there", u"l0 l1 l2 l3 q1 a1:0s,1i,2d"_s, u"TTDA."_s);
        row("the first reason stays", u"l0 l1 q1 a1:0s,0,1,1d l2 q2 a2:1s"_s, u"TFAP"_s);
        row("a failure here needs no answer", u"f0 x1 l2 l3 q1 a1"_s, u"HFAA."_s);
        row("and goes before any", u"l0 l1 l2 l3 q1 a1:1,2d f0 f1 f2"_s, u"HHHA."_s);
        row("numbers begin anew with a list", u"l0 l1 l2 l3 q1 a1 n l10 q1 l11 q2 a1 a2:11"_s, u"AAAAAF."_s);
        row("an answer nobody asked for", u"l0 l1 l2 l3 a1 a0 b1"_s, u"PPPP"_s);
        row("one answer too many", u"l0 l1 q1 a1 l2 l3 a1 a2 q2"_s, u"AAPP"_s);
        row("one speaks for those that never came", u"l0 q1 l1 l2 q2 a2:1 a1 l3"_s, u"AFAP"_s);
        row("out of turn", u"l0 q1 l1 a2:0,1s q2 a1 a2"_s, u"FAPP"_s);
        row("a file that has not left", u"l0 q1 a1:3 l3 q2 a2"_s, u"APPA"_s);
        row("a stranger is named", u"l0 q1 a1:77"_s, u"APPP"_s);
        row("a number and another path", u"l0 l1 l2 q1 a1:2p"_s, u"AAFP"_s);
        row("failure without a name", u"l0 q1 b1 l1 q2 b2:77 l2 l3 q3 b3:3"_s, u"NNAF."_s);
        row("no answer in time", u"l0 l1 l2 l3 q1 w"_s, u"PPPP."_s);
        row("a late one counts", u"l0 l1 l2 l3 q1 w a1:0"_s, u"FAAA."_s);
        row("time stands still in a pause", u"l0 l1 l2 l3 q1 r w q2 r"_s, u"PPPP."_s);
        row("also where its time was over", u"l0 l1 q1 w l2 l3 q2 a2:1 c"_s, u"AFAA."_s);
        row("what has no request", u"l0 f1 e"_s, u"PHNN."_s);
        row("the end", u"l0 l1 q1 a1 l2 q2 c a2 l3"_s, u"AANN."_s);
    }
    void answersDecideWhatArrived()
    {
        QFETCH(QString, events);
        QTEST(Story().told(events), "outcomes");
    }

    void timeRunsForEachRequest()
    {
        RunLedger ledger(OldPC, {}, {}, {});
        QVERIFY(!ledger.nextDeadline());
        ledger.answerRequested(1, qint64(2) << 30, 5ms);
        ledger.answerRequested(2, 0, 6ms);
        QCOMPARE(ledger.nextDeadline().value(), RunLedger::Time(300006));
        ledger.expire(300006ms);
        QCOMPARE(ledger.nextDeadline().value(), RunLedger::Time(540005));
        ledger.restartClocks(300006ms);
        QCOMPARE(ledger.nextDeadline().value(), RunLedger::Time(840006));
    }

    void reasonsAreTold()
    {
        Story story;
        story.ledger.failedBeforehand(u"/home/u/Docs/closed"_s, u"locked"_s);
        story.ledger.expectItem(ItemKind::Application, u"Writer"_s);
        story.ledger.expectItem(ItemKind::Setting, u"Mouse"_s);
        story.ledger.settleItem(ItemKind::Setting, u"Mouse"_s, ItemOutcome::Arrived);
        (void)story.ledger.takeSettled();
        story.told(u"x0 l1 l2 q1 a1:1d,2v c"_s);
        const RunSummary &summary = story.ledger.summary();
        QStringList told;
        for (const ItemResult &item : summary.notArrived + summary.different)
            told.append(item.path.section(u'/', -1) + u": "_s + item.reason);
        QCOMPARE(told,
                 (QStringList{u"closed: locked"_s, u"0: changed while it was sent"_s, u"2: because"_s,
                              u"3: not moved: the transfer ended before its turn"_s,
                              u"Writer: not moved: the transfer ended before its turn"_s,
                              u"1: there already, and different: the one from the Old PC was not moved"_s}));
        QCOMPARE(summary.fullVolumes.size(), 1);
        QCOMPARE(summary.fullVolumes[0].pcName, u"NEWBOX"_s);
        QCOMPARE(summary.items[0].outcome, ItemOutcome::NotConfirmed);
        QVERIFY(summary.settings.arrived == 1 && summary.apps.missing() == 1 && !summary.everythingArrived());
    }

    void newPcCountsWhatCame()
    {
        RunLedger ledger(NewPC, u"NEWBOX"_s, u"OLDBOX"_s, {});
        ledger.announced(4, 400);
        ledger.received({u"a"_s, u"/n/a"_s, ItemOutcome::Arrived, {}, 100, {}});
        ledger.received({u"b"_s, {}, ItemOutcome::Failed, u"no room"_s, 100, u"D:"_s});
        ledger.received({u"c"_s, u"/n/c"_s, ItemOutcome::WasDifferent, {}, 100, {}});
        QVERIFY(!ledger.isSettled() && ledger.summary().files.pending == 1);
        ledger.close(RunEnd::LinkLost, {});
        ledger.received({u"d"_s, u"/n/d"_s, ItemOutcome::Arrived, {}, 100, {}});
        QVERIFY(ledger.summary().files.arrived == 1 && ledger.summary().files.missing() == 3);
        QCOMPARE(ledger.summary().missingBytes, 300);
        QCOMPARE(ledger.summary().fullVolumes.value(0).pcName, u"NEWBOX"_s);

        RunLedger hostile(NewPC, {}, {}, {});
        for (int list = 0; list < 3; ++list)
            hostile.announced(std::numeric_limits<int>::max(), qint64(1) << 53);
        hostile.close(RunEnd::Complete, {});
        QCOMPARE(hostile.summary().files.total(), std::numeric_limits<int>::max());
    }

    void aMillionFilesAreQuick()
    {
        constexpr int Files = 1'000'000;
        const QList<FileTransferTask> tasks = tasksFrom(0, Files);
        QElapsedTimer clock;
        clock.start();
        RunLedger ledger(OldPC, {}, {}, {});
        ledger.expect(tasks);
        int emitted = 0;
        for (int id = 0; id < Files / 2; ++id) {
            if (id % 4 == 0)
                ledger.failedHere(id, u"here"_s);
            else
                ledger.fileEndSent(id, false);
            if (id % 10 != 9)
                continue;
            ledger.answerRequested(id, 0, 0ms);
            ledger.answered({id, true, {{id, tasks[id].relativePath, u"full"_s, false, {}, u"/mnt"_s}}});
            emitted += int(ledger.takeSettled().size());
            QVERIFY(ledger.summary().files.total() == Files);
        }
        ledger.close(RunEnd::LinkLost, {});
        QCOMPARE(emitted, Files / 2);
        QCOMPARE(ledger.summary().files.missing(), Files - ledger.summary().files.arrived);
        QCOMPARE(ledger.summary().notArrived.size(), RunSummary::MaxListed);
        QVERIFY(ledger.takeSettled().size() <= RunSummary::MaxListed);
        QVERIFY(ledger.summary().fullVolumes.size() == 1 && ledger.summary().fullVolumes[0].files > 20000);
        QVERIFY2(clock.elapsed() < 10000, qPrintable(QString::number(clock.elapsed())));
    }
};

ZANDROVE_TEST(RunLedgerTest)
#include "RunLedgerTest.moc"
