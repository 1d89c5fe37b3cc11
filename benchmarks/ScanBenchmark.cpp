#include "SimulatedPc.h"

#include "inventory/AppScanner.h"
#include "inventory/FolderSize.h"

#include <QDir>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

/// A name of two words that is like no other.
QString inventedName(QRandomGenerator &random)
{
    QString name;
    for (int letter = 0; letter < 14; ++letter) {
        if (letter == 7)
            name += u' ';
        name += QChar(char16_t(u'a' + random.bounded(26)));
    }
    return name;
}

void writeProgram(SimulatedPc &pc, const QString &name)
{
    pc.writeFile(u"C:/Program Files/%1/%1.exe"_s.arg(name), "MZ");
    pc.writeFile(u"C:/Program Files/%1/data/help.txt"_s.arg(name), "help");
}

/// Of three keys one names its folder, one has a folder to be found, and one has none.
void install(SimulatedPc &pc, int keys, int folders)
{
    QRandomGenerator random(1);
    QString registry;
    int written = 0;
    for (int i = 0; i < keys; ++i) {
        const QString name = inventedName(random);
        registry += u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\%1]\n"
                    "\"DisplayName\"=\"%2 %3.0\"\n\"EstimatedSize\"=dword:10\n"_s.arg(i)
                        .arg(name)
                        .arg(i % 9);
        if (i % 3 < 2 && written < folders) {
            writeProgram(pc, name);
            ++written;
        }
        if (i % 3 == 0)
            registry += u"\"InstallLocation\"=\"C:\\\\Program Files\\\\%1\"\n"_s.arg(name);
        registry += u'\n';
    }
    for (; written < folders; ++written)
        writeProgram(pc, inventedName(random));
    pc.addRegistry(registry);
}

} // namespace

/// How long a scan for applications takes, and how that grows with the PC. Wall-clock milliseconds.
class ScanBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules(u"*.debug=false"_s); }
    void scan_data();
    void scan();
    void sizeOfALargeFolder();
};

void ScanBenchmark::scan_data()
{
    QTest::addColumn<int>("keys");
    QTest::addColumn<int>("folders");
    for (const auto &[keys, folders] :
         std::initializer_list<std::pair<int, int>>{{300, 200}, {300, 2000}, {1000, 2000}, {3000, 2000}})
        QTest::addRow("%d keys, %d folders", keys, folders) << keys << folders;
}

void ScanBenchmark::scan()
{
    QFETCH(int, keys);
    QFETCH(int, folders);
    SimulatedPc pc;
    pc.environment().set("ProgramFiles", "C:\\Program Files");
    pc.environment().set("ProgramFiles(x86)", "C:\\Program Files (x86)");
    install(pc, keys, folders);
    AppScanner scanner;
    QSignalSpy finished(&scanner, &AppScanner::finished);
    QBENCHMARK
    {
        finished.clear();
        scanner.start();
        QVERIFY(finished.wait(600000));
    }
    QVERIFY(scanner.appsFound() > keys * 9 / 10);
}

void ScanBenchmark::sizeOfALargeFolder()
{
    SimulatedPc pc;
    for (int i = 0; i < 20000; ++i)
        pc.writeFile(u"many/%1"_s.arg(i), "x");
    qint64 size = 0;
    QBENCHMARK
    {
        size = calculateDirSize(pc.path(u"many"_s));
    }
    QCOMPARE(size, MostFilesMeasured);
}

QTEST_GUILESS_MAIN(ScanBenchmark)

#include "ScanBenchmark.moc"
