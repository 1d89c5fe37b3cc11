#include "TestMain.h"
#include "core/common/Records.h"

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

template <typename T>
QString printed(const T &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

QString remaining(int seconds)
{
    TransferProgress progress;
    progress.remainingSeconds = seconds;
    return progress.remainingTimeString();
}

/// `progress` as it is printed, by its speed.
QString printedAt(double bytesPerSecond)
{
    TransferProgress progress;
    progress.stage = 1;
    progress.overallPercent = 42;
    progress.bytesPerSecond = bytesPerSecond;
    progress.remainingSeconds = 61;
    return printed(progress);
}

} // namespace

class CommonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void peersAreEqualByIdAlone()
    {
        PCInfo pc;
        pc.id = u"Anna"_s;
        PCInfo other;
        other.id = pc.id;
        other.ip = u"10.0.0.1"_s;
        QVERIFY(pc == other);
        other.id = u"anna"_s;
        QVERIFY(!(pc == other));
    }

    void remainingTimeIsText()
    {
        QCOMPARE(remaining(-1), u"Calculating..."_s);
        QCOMPARE(remaining(0), u"Calculating..."_s);
        QCOMPARE(remaining(59), u"59s"_s);
        QCOMPARE(remaining(60), u"1m 0s"_s);
        QCOMPARE(remaining(3599), u"59m 59s"_s);
        QCOMPARE(remaining(3600), u"1h 0m"_s);
        QCOMPARE(remaining(90061), u"25h 1m"_s);
    }

    void recordsArePrinted()
    {
        PCInfo pc;
        pc.id = u"A \"1\""_s;
        pc.name = u"Anna"_s;
        pc.ip = u"10.0.0.1"_s;
        pc.online = true;
        const QString one =
            u"PCInfo(id:\"A \\\"1\\\"\", name:\"Anna\", ip:\"10.0.0.1\":52024, online:true)"_s;
        QCOMPARE(printed(pc), one);
        QCOMPARE(printed(QList<PCInfo>{}), u"()"_s);
        QCOMPARE(printed(QList<PCInfo>{pc, pc}), u"("_s + one + u", "_s + one + u")"_s);

        const QString progress = u"TransferProgress(stage:1, overall:42%, speed:%1, remaining:1m 1s)"_s;
        QCOMPARE(printedAt(1023.9), progress.arg(u"1023.00 B/s"_s)); // whole bytes
        QCOMPARE(printedAt(1536.0), progress.arg(u"1.50 KB/s"_s));
        QCOMPARE(printedAt(1125899906842624.0), progress.arg(u"1024.00 TB/s"_s));
        QCOMPARE(printedAt(-0.5), progress.arg(u"0.00 B/s"_s));

        QString text;
        QDebug(&text) << TransferProgress() << u"a"_s << QList<PCInfo>{} << u"b"_s;
        QVERIFY2(text.endsWith(u") \"a\" () \"b\" "_s), qPrintable(text)); // the stream is as it was
    }
};

ZANDROVE_TEST(CommonTest)
#include "CommonTest.moc"
