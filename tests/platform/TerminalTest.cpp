#include "PlatformTests.h"

#include "platform/Terminal.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

constexpr int LongestStart = 30000; // milliseconds

} // namespace

class TerminalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesComeAsTheyAreWritten_data();
    void linesComeAsTheyAreWritten();
    void lineIsDeliveredBeforeTheEnd();
};

void TerminalTest::linesComeAsTheyAreWritten_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("printed");

    QTest::newRow("nothing") << ""_ba
                             << "."_ba;
    QTest::newRow("both line ends") << "one\ntwo\r\n\nü\n"_ba
                                    << "[one][two][][ü]."_ba;
    QTest::newRow("without the last line end") << "one\ntwo"_ba
                                               << "[one][two]."_ba;
    QTest::newRow("too long a line") << "a\n"_ba + QByteArray(70000, 'x') + "\nb\n"_ba
                                     << "[a][b]."_ba;
    QTest::newRow("too long a last line") << "a\n"_ba + QByteArray(70000, 'x') << "[a]."_ba;
}

void TerminalTest::linesComeAsTheyAreWritten()
{
    QFETCH(QByteArray, input);
    QProcess helper;
    helper.start(helperProgram(), {u"lines"_s});
    helper.write(input);
    helper.closeWriteChannel();
    QVERIFY(helper.waitForFinished(LongestStart));
    QTEST(helper.readAllStandardOutput(), "printed");
    QCOMPARE(helper.exitCode(), 0);
}

void TerminalTest::lineIsDeliveredBeforeTheEnd()
{
    QProcess helper;
    helper.start(helperProgram(), {u"lines"_s});
    QByteArray printed;
    for (const QByteArray &line : {"yes"_ba, "no"_ba}) {
        helper.write(line + '\n');
        for (printed.clear(); printed.size() < line.size() + 2;) {
            QVERIFY(helper.waitForReadyRead(LongestStart));
            printed += helper.readAllStandardOutput();
        }
        QCOMPARE(printed, '[' + line + ']');
    }
    helper.closeWriteChannel();
    QVERIFY(helper.waitForFinished(LongestStart));
    QCOMPARE(helper.readAllStandardOutput(), "."_ba);
}

QObject *makeTerminalTest()
{
    return new TerminalTest;
}

#include "TerminalTest.moc"
