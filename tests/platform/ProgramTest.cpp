#include "PlatformTests.h"

#include "platform/ExternalProgram.h"

#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace Zandrove;

namespace {

/// Far above what a prompt end takes, far below the programs' own minute.
constexpr qint64 PromptMilliseconds = 20000;

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultTellsHowTheProgramEnded_data();
    void resultTellsHowTheProgramEnded();
    void programIsKilledAtTheDeadline();
    void interruptionEndsTheWait();
};

void ProgramTest::resultTellsHowTheProgramEnded_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("finished");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QByteArray>("complaint");

    const auto row = [](const char *name, const QStringList &arguments, int exitCode,
                        const QByteArray &output, const QByteArray &complaint) {
        QTest::newRow(name) << helperProgram() << arguments << true << exitCode << output << complaint;
    };
    row("output and exit code", {u"say"_s, u"two words"_s, u"exit"_s, u"3"_s}, 3, "two words"_ba, ""_ba);
    row("longer than one wait", {u"wait"_s, u"500"_s, u"say"_s, u"x"_s}, 0, "x"_ba, ""_ba);
    row("reads nothing", {u"copy"_s}, 0, ""_ba, ""_ba);
    row("complaints apart", {u"complain"_s, u"no"_s, u"exit"_s, u"1"_s}, 1, ""_ba, "no"_ba);
    QTest::newRow("missing") << u"zandrove-no-such-program"_s << QStringList() << false << -1 << ""_ba
                             << ""_ba;
}

void ProgramTest::resultTellsHowTheProgramEnded()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const auto result = Platform::runProgram(program, arguments);
    QTEST(result.finished, "finished");
    QTEST(result.exitCode, "exitCode");
    QTEST(result.standardOutput, "output");
    QTEST(result.standardError, "complaint");
}

void ProgramTest::programIsKilledAtTheDeadline()
{
    QElapsedTimer timer;
    timer.start();
    const auto result =
        Platform::runProgram(helperProgram(), {u"say"_s, u"early"_s, u"wait"_s, u"60000"_s}, 3000ms);
    QVERIFY(!result.finished);
    QCOMPARE(result.exitCode, -1);
    QCOMPARE(result.standardOutput, "early"_ba);
    QVERIFY(timer.elapsed() >= 3000);
    QVERIFY(timer.elapsed() < PromptMilliseconds);
}

void ProgramTest::interruptionEndsTheWait()
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

QObject *makeProgramTest()
{
    return new ProgramTest;
}

#include "ProgramTest.moc"
