#include "InstalledPrograms.h"
#include "TestMain.h"

#include "inventory/AppScanner.h"

#include <QThread>

#include <algorithm>
#include <atomic>

namespace {

/// All that a scan says of each application, without what a Wine prefix has of its own.
QStringList lines(const QList<AppInfo> &apps)
{
    QStringList all;
    for (const AppInfo &app : apps) {
        if (!app.hkcuRegPath.startsWith(u"HKEY_CURRENT_USER\\Software\\Wine"_s))
            all.append(QStringList{app.name, app.version, app.installPath, QString::number(app.size),
                                   app.canTransfer ? u"can be moved"_s : u"cannot be moved"_s, app.iconPath,
                                   app.hkcuRegPath, app.selected ? u"selected"_s : QString()}
                           .join(u" | "_s));
    }
    return all;
}

/// `texts` without those of `others`.
QString without(QStringList texts, const QStringList &others)
{
    texts.removeIf([&others](const QString &text) { return others.contains(text); });
    return texts.join(u'\n');
}

/// A scanner, and what it reports in order. A QSignalSpy of the progress would append on the scan's thread as
/// well as on this one.
struct Scan
{
    AppScanner scanner;
    QSignalSpy finished{&scanner, &AppScanner::finished};
    QList<std::pair<int, QString>> reports;
    QObject receiver;

    Scan()
    {
        QObject::connect(&scanner, &AppScanner::progress, &receiver,
                         [this](int percent, const QString &item) {
                             reports.append({percent, item});
                         });
    }

    bool run()
    {
        scanner.start();
        return finished.wait(60000);
    }
    [[nodiscard]] QList<AppInfo> apps() const { return finished.last().first().value<QList<AppInfo>>(); }
};

} // namespace

/// A scan of a PC with hundreds of entries, and what may happen to it meanwhile.
class AppScannerTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<SimulatedPc> m_pc;
    std::unique_ptr<InstalledPrograms> m_programs;

    [[nodiscard]] QStringList expected() const
    {
        return lines(m_programs->fromUninstallKeys + m_programs->fromFolders + m_programs->fromUserSoftware);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_pc = std::make_unique<SimulatedPc>();
        m_programs = std::make_unique<InstalledPrograms>(*m_pc);
    }

    void cleanupTestCase()
    {
        m_programs.reset();
        m_pc.reset();
    }

    void listsWhatIsInstalled()
    {
        Scan scan;
        QVERIFY(scan.run());
        QCOMPARE(scan.scanner.appsFound(), int(scan.apps().size()));
        const QStringList found = lines(scan.apps());
        QCOMPARE(without(found, expected()), QString());
        QCOMPARE(without(expected(), found), QString());
        QCOMPARE(found.size(), expected().size());
        // Folders come in the order of the file system, the rest in that of the keys.
        QCOMPARE(found.first(m_programs->fromUninstallKeys.size()), lines(m_programs->fromUninstallKeys));
        QCOMPARE(found.last(m_programs->fromUserSoftware.size()), lines(m_programs->fromUserSoftware));
    }

    void reportsInOrder()
    {
        std::atomic<int> onTheOtherThread = 0;
        Scan scan;
        const QSignalSpy started(&scan.scanner, &AppScanner::started);
        const auto judgeThread = [this, &onTheOtherThread](int percent, const QString &item) {
            const bool comesFromTheScan = percent >= 85 || item.endsWith("..."_L1);
            if (comesFromTheScan == (QThread::currentThread() == thread()))
                ++onTheOtherThread;
        };
        connect(&scan.scanner, &AppScanner::progress, &scan.scanner, judgeThread, Qt::DirectConnection);
        scan.scanner.start();
        QVERIFY(scan.run()); // its start does nothing
        QCOMPARE(started.size(), 1);
        QCOMPARE(onTheOtherThread, 0);

        QVERIFY(std::is_sorted(scan.reports.begin(), scan.reports.end(),
                               [](const auto &a, const auto &b) { return a.first < b.first; }));
        QStringList items;
        for (const auto &[percent, item] : scan.reports)
            items.append(item);
        QVERIFY(!items.contains(u"Matool"_s)); // what is left out isn't reported
        QVERIFY(items.contains(QString()));    // a key without a name is
        QCOMPARE(scan.reports.last(), std::pair(100, u"Scan complete"_s));
    }

    void cancelLeavesNothingBehind_data()
    {
        addColumns<int>("percent");
        for (const int percent : {0, 1, 55, 65, 75, 85, 86, 100})
            QTest::addRow("at %d percent", percent) << percent;
    }
    /// On the scan's own thread for the announcements, on this one for what the passes report.
    void cancelLeavesNothingBehind()
    {
        QFETCH(int, percent);
        std::atomic<int> cancels = 0;
        std::atomic<int> cancelled = 0;
        Scan scan;
        const auto count = [&cancelled] { ++cancelled; };
        const auto cancelTwice = [&](int reached) {
            if (reached >= percent && cancels.exchange(1) == 0) {
                scan.scanner.cancel();
                scan.scanner.cancel();
            }
        };
        connect(&scan.scanner, &AppScanner::cancelled, &scan.scanner, count, Qt::DirectConnection);
        connect(&scan.scanner, &AppScanner::progress, &scan.scanner, cancelTwice, Qt::DirectConnection);
        scan.scanner.start();
        QTRY_COMPARE(cancelled, 2);
        QCoreApplication::sendPostedEvents();
        scan.reports.clear();
        // A late end of the first scan would come before the second one is complete.
        QVERIFY(scan.run());
        QCOMPARE(scan.reports.last().first, 100);
        QCOMPARE(scan.finished.size(), 1);
        QCOMPARE(cancelled, 2);
    }

    void restartGivesTheNewResultOnly()
    {
        Scan scan;
        for (int i = 0; i < 5; ++i) {
            scan.scanner.start();
            scan.scanner.cancel();
        }
        for (const int scans : {1, 2}) {
            QVERIFY(scan.run());
            QCOMPARE(scan.finished.size(), scans);
            QCOMPARE(scan.apps().size(), scan.scanner.appsFound());
            QCOMPARE(lines(scan.apps()).size(), expected().size());
        }
    }

    void destructionWaitsForTheScan_data()
    {
        addColumns<int>("reports");
        for (const int reports : {0, 1, 50, 100})
            QTest::addRow("after %d reports", reports) << reports;
    }
    void destructionWaitsForTheScan()
    {
        QFETCH(int, reports);
        int cancels = 0;
        auto scan = std::make_unique<Scan>();
        connect(&scan->scanner, &AppScanner::cancelled, this, [&cancels] { ++cancels; });
        scan->scanner.start();
        QTRY_VERIFY_WITH_TIMEOUT(scan->reports.size() >= reports, 60000);
        const bool wasOver = !scan->finished.isEmpty(); // a slow test may come too late
        scan.reset();
        QCOMPARE(cancels, wasOver ? 0 : 1);
    }
};

ZANDROVE_TEST(AppScannerTest)
#include "AppScannerTest.moc"
