#include "PlatformTests.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

using namespace std::chrono_literals;

namespace {

/// Far above what a prompt end takes, far below the programs' own minute.
constexpr int PromptMilliseconds = 20000;

} // namespace

/// Programs that are started, and the lines that are typed into one.
class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultTellsHowTheProgramEnded_data()
    {
        const auto row =
            addColumns<QString, int, QByteArray, QByteArray>("words", "exitCode", "output", "complaint");
        row("output and exit code", u"say two exit 3"_s, 3, "two"_ba, ""_ba);
        row("longer than one wait", u"wait 500 say x"_s, 0, "x"_ba, ""_ba);
        row("reads nothing", u"copy"_s, 0, ""_ba, ""_ba);
        row("complaints apart", u"complain no exit 1"_s, 1, ""_ba, "no"_ba);
    }
    void resultTellsHowTheProgramEnded()
    {
        QFETCH(QString, words);
        const auto result = Platform::runProgram(helperProgram(), words.split(u' '));
        QVERIFY(result.finished);
        QTEST(result.exitCode, "exitCode");
        QTEST(result.standardOutput, "output");
        QTEST(result.standardError, "complaint");
    }

    void programIsMissingOrKilledAtTheDeadline()
    {
        const auto missing = Platform::runProgram(u"zandrove-no-such-program"_s, {});
        QVERIFY(!missing.finished && missing.exitCode == -1);

        QElapsedTimer timer;
        timer.start();
        const QStringList words = {u"say"_s, u"two words"_s, u"wait"_s, u"60000"_s};
        const auto killed = Platform::runProgram(helperProgram(), words, 3000ms);
        QVERIFY(!killed.finished && killed.exitCode == -1);
        QCOMPARE(killed.standardOutput, "two words"_ba);
        QVERIFY(timer.elapsed() >= 3000 && timer.elapsed() < PromptMilliseconds);
    }

    void interruptionEndsTheWait()
    {
        bool finished = true;
        const std::unique_ptr<QThread> thread(QThread::create([&finished] {
            finished = Platform::runProgram(helperProgram(), {u"wait"_s, u"60000"_s}).finished;
        }));
        thread->start();
        thread->requestInterruption();
        QVERIFY(thread->wait(PromptMilliseconds));
        QVERIFY(!finished);
    }

    void linesComeAsTheyAreWritten_data()
    {
        const auto row = addColumns<QByteArray, QByteArray>("input", "printed");
        const QByteArray tooLong(70000, 'x');
        row("nothing", "", ".");
        row("both line ends", "one\ntwo\r\n\nü\n", "[one][two][][ü].");
        row("without the last line end", "one\ntwo", "[one][two].");
        row("too long a line", "a\n" + tooLong + "\nb\n", "[a][b].");
        row("too long a last line", "a\n" + tooLong, "[a].");
    }
    void linesComeAsTheyAreWritten()
    {
        QFETCH(QByteArray, input);
        QProcess helper;
        helper.start(helperProgram(), {u"lines"_s});
        helper.write(input);
        helper.closeWriteChannel();
        QVERIFY(helper.waitForFinished());
        QTEST(helper.readAllStandardOutput(), "printed");
        QCOMPARE(helper.exitCode(), 0);
    }

    void lineIsDeliveredBeforeTheEnd()
    {
        QProcess helper;
        helper.start(helperProgram(), {u"lines"_s});
        QByteArray printed;
        for (const QByteArray &line : {"yes"_ba, "no"_ba}) {
            helper.write(line + '\n');
            for (printed.clear(); printed.size() < line.size() + 2;) {
                QVERIFY(helper.waitForReadyRead());
                printed += helper.readAllStandardOutput();
            }
            QCOMPARE(printed, '[' + line + ']');
        }
        helper.closeWriteChannel();
        QVERIFY(helper.waitForFinished());
    }
};

ZANDROVE_TEST(ProgramTest)
#include "ProgramTest.moc"
