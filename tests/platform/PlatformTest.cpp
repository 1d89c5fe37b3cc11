#include "platform/ExternalProgram.h"
#include "platform/FileAttributes.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <sys/stat.h>
#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace Zandrove;

namespace {

/// Far above what a prompt end takes, far below the programs' own thirty seconds.
constexpr qint64 PromptMilliseconds = 10000;

} // namespace

class PlatformTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void relativePathLeavingItsRootIsUnsafe_data();
    void relativePathLeavingItsRootIsUnsafe();
    void linkOrForeignFileIsTold();
    void onlyOrdinaryFileIsRegular();
    void programResultTellsHowItEnded_data();
    void programResultTellsHowItEnded();
    void programIsKilledAtTheDeadline();
    void interruptionEndsTheWait();
};

void PlatformTest::relativePathLeavingItsRootIsUnsafe_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isUnsafe");

    QTest::newRow("plain") << u"Documents/a/b.txt"_s << false;
    QTest::newRow("dots in names") << u"a..b/..c/d../...x"_s << false;
    QTest::newRow("single dot") << u"a/./b"_s << false;
    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("leading") << u"../x"_s << true;
    QTest::newRow("in the middle") << u"Documents/../../x"_s << true;
    QTest::newRow("trailing") << u"a/.."_s << true;
    QTest::newRow("alone") << u".."_s << true;
    QTest::newRow("backslashes") << u"a\\..\\x"_s << true;
    QTest::newRow("mixed slashes") << u"a/..\\x"_s << true;
    QTest::newRow("before a line break") << u"..\n/x"_s << false;
    QTest::newRow("NUL character") << u"a.txt"_s + QChar::Null + u".jpg"_s << true;
}

void PlatformTest::relativePathLeavingItsRootIsUnsafe()
{
    QFETCH(QString, path);
    QTEST(Platform::isUnsafeRelativePath(path), "isUnsafe");
}

void PlatformTest::linkOrForeignFileIsTold()
{
    QTemporaryDir directory;
    const QString own = directory.filePath(u"own"_s);
    const QString link = directory.filePath(u"link"_s);
    const QString dangling = directory.filePath(u"dangling"_s);
    QVERIFY(QFile(own).open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(own, link));
    QVERIFY(QFile::link(directory.filePath(u"missing"_s), dangling));

    QVERIFY(!Platform::isForeignOrLink(own));
    QVERIFY(!Platform::isForeignOrLink(directory.path()));
    QVERIFY(!Platform::isForeignOrLink(directory.filePath(u"missing"_s)));
    QVERIFY(!Platform::isForeignOrLink(own + u"/below a file"_s));
    QVERIFY(Platform::isForeignOrLink(link));
    QVERIFY(Platform::isForeignOrLink(dangling));

    QString foreign = u"/"_s;
    if (::geteuid() == 0) {
        foreign = own;
        QCOMPARE(::chown(QFile::encodeName(own).constData(), 1, 1), 0);
    }
    QVERIFY(Platform::isForeignOrLink(foreign));
}

void PlatformTest::onlyOrdinaryFileIsRegular()
{
    QTemporaryDir directory;
    const QString file = directory.filePath(u"file"_s);
    const QString pipe = directory.filePath(u"pipe"_s);
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(QFile::link(file, directory.filePath(u"to file"_s)));
    QVERIFY(QFile::link(pipe, directory.filePath(u"to pipe"_s)));

    QVERIFY(Platform::isRegularFile(file));
    QVERIFY(Platform::isRegularFile(directory.filePath(u"to file"_s)));
    QVERIFY(!Platform::isRegularFile(pipe));
    QVERIFY(!Platform::isRegularFile(directory.filePath(u"to pipe"_s)));
    QVERIFY(!Platform::isRegularFile(directory.path()));
    QVERIFY(!Platform::isRegularFile(directory.filePath(u"missing"_s)));
}

void PlatformTest::programResultTellsHowItEnded_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("script");
    QTest::addColumn<bool>("finished");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("output");

    QTest::newRow("output and exit code") << u"sh"_s << u"printf hello; exit 3"_s << true << 3 << "hello"_ba;
    QTest::newRow("longer than one wait") << u"sh"_s << u"sleep 0.5; echo x"_s << true << 0 << "x\n"_ba;
    QTest::newRow("reads nothing") << u"sh"_s << u"cat"_s << true << 0 << ""_ba;
    QTest::newRow("errors apart") << u"sh"_s << u"echo no >&2"_s << true << 0 << ""_ba;
    QTest::newRow("crashed") << u"sh"_s << u"printf part; kill -9 $$"_s << false << -1 << "part"_ba;
    QTest::newRow("missing") << u"zandrove-no-such-program"_s << u""_s << false << -1 << ""_ba;
}

void PlatformTest::programResultTellsHowItEnded()
{
    QFETCH(QString, program);
    QFETCH(QString, script);
    const auto result = Platform::runProgram(program, {u"-c"_s, script});
    QTEST(result.finished, "finished");
    QTEST(result.exitCode, "exitCode");
    QTEST(result.standardOutput, "output");
}

void PlatformTest::programIsKilledAtTheDeadline()
{
    QElapsedTimer timer;
    timer.start();
    const auto result = Platform::runProgram(u"sh"_s, {u"-c"_s, u"echo early; exec sleep 30"_s}, 500ms);
    QVERIFY(!result.finished);
    QCOMPARE(result.standardOutput, "early\n"_ba);
    QVERIFY(timer.elapsed() >= 500);
    QVERIFY(timer.elapsed() < PromptMilliseconds);
}

void PlatformTest::interruptionEndsTheWait()
{
    bool finished = true;
    const std::unique_ptr<QThread> thread(
        QThread::create([&finished] { finished = Platform::runProgram(u"sleep"_s, {u"30"_s}).finished; }));
    thread->start();
    thread->requestInterruption();
    QVERIFY(thread->wait(PromptMilliseconds));
    QVERIFY(!finished);
}

QTEST_GUILESS_MAIN(PlatformTest)
#include "PlatformTest.moc"
