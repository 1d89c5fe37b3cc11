#include "TestMain.h"
#include "core/common/AppConfig.h"
#include "core/common/Records.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

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

} // namespace

class CommonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    }

    void peersAreEqualByIdAlone()
    {
        PCInfo pc;
        QCOMPARE(pc.port, quint16(52024));
        QVERIFY(pc == PCInfo());

        pc.id = u"Anna"_s;
        PCInfo other;
        other.id = pc.id;
        other.ip = u"10.0.0.1"_s;
        other.online = true;
        QVERIFY(pc == other);
        other.id = u"anna"_s;
        QVERIFY(!(pc == other));
    }

    void remainingTimeIsText_data()
    {
        addColumns<int, QString>("seconds", "text");
        QTest::newRow("negative") << -1 << u"Calculating..."_s;
        QTest::newRow("zero") << 0 << u"Calculating..."_s;
        QTest::newRow("seconds") << 59 << u"59s"_s;
        QTest::newRow("a minute") << 60 << u"1m 0s"_s;
        QTest::newRow("below an hour") << 3599 << u"59m 59s"_s;
        QTest::newRow("an hour") << 3600 << u"1h 0m"_s;
        QTest::newRow("more than a day") << 90061 << u"25h 1m"_s;
    }
    void remainingTimeIsText()
    {
        QFETCH(int, seconds);
        TransferProgress progress;
        progress.remainingSeconds = seconds;
        QTEST(progress.remainingTimeString(), "text");
    }

    void peersArePrinted()
    {
        PCInfo pc;
        pc.id = u"A \"1\""_s;
        pc.name = u"Anna"_s;
        pc.ip = u"10.0.0.1"_s;
        pc.online = true;
        const QString one = uR"(PCInfo(id:"A \"1\"", name:"Anna", ip:"10.0.0.1":52024, online:true))"_s;
        QCOMPARE(printed(pc), one);
        QCOMPARE(printed(QList<PCInfo>{}), u"()"_s);
        QCOMPARE(printed(QList<PCInfo>{pc, pc}), u"("_s + one + u", "_s + one + u")"_s);
    }

    void progressIsPrinted_data()
    {
        addColumns<double, QString>("bytesPerSecond", "speed");
        QTest::newRow("whole bytes") << 1023.9 << u"1023.00 B/s"_s;
        QTest::newRow("kilobytes") << 1536.0 << u"1.50 KB/s"_s;
        QTest::newRow("terabytes") << 1125899906842624.0 << u"1024.00 TB/s"_s;
        QTest::newRow("negative") << -0.5 << u"0.00 B/s"_s;
    }
    void progressIsPrinted()
    {
        QFETCH(double, bytesPerSecond);
        QFETCH(QString, speed);
        TransferProgress progress;
        progress.stage = 1;
        progress.overallPercent = 42;
        progress.bytesPerSecond = bytesPerSecond;
        progress.remainingSeconds = 61;
        QCOMPARE(printed(progress),
                 u"TransferProgress(stage:1, overall:42%, speed:%1, remaining:1m 1s)"_s.arg(speed));
    }

    void printingLeavesTheStreamAsItWas()
    {
        QString text;
        QDebug(&text) << TransferProgress() << u"a"_s << QList<PCInfo>{} << u"b"_s;
        QVERIFY2(text.endsWith(u") \"a\" () \"b\" "_s), qPrintable(text));
    }

    void configIsOneObjectThatWritesNothing()
    {
        QCOMPARE(&AppConfig::instance(), &AppConfig::instance());
        QCOMPARE(AppConfig::appVersion(), u"5.0"_s);
        const auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        QCOMPARE(QDir(m_settings.path()).entryList(everything), QStringList());
    }

private:
    QTemporaryDir m_settings;
};

ZANDROVE_TEST(CommonTest)
#include "CommonTest.moc"
