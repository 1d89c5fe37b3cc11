#include "TestMain.h"
#include "core/common/Records.h"

namespace {

QString remaining(int seconds)
{
    TransferProgress progress;
    progress.remainingSeconds = seconds;
    return progress.remainingTimeString();
}

} // namespace

class CommonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

ZANDROVE_TEST(CommonTest)
#include "CommonTest.moc"
