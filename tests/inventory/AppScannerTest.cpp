#include "InventoryTests.h"

#include "InstalledPrograms.h"

#include "inventory/AppScanner.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

QString line(const AppInfo &app)
{
    return QStringList{app.name,
                       app.version,
                       app.installPath,
                       QString::number(app.size),
                       app.canTransfer ? u"can be moved"_s : u"cannot be moved"_s,
                       app.iconPath,
                       app.hkcuRegPath,
                       app.selected ? u"selected"_s : QString()}
        .join(u" | "_s);
}

QStringList lines(const QList<AppInfo> &apps)
{
    QStringList all;
    for (const AppInfo &app : apps)
        all.append(line(app));
    return all;
}

/// The lines that stand in one list only: the first word tells where.
QStringList differences(const QStringList &found, const QStringList &expected)
{
    QStringList all;
    for (const QString &text : found) {
        if (!expected.contains(text))
            all.append(u"found: "_s + text);
    }
    for (const QString &text : expected) {
        if (!found.contains(text))
            all.append(u"missing: "_s + text);
    }
    return all;
}

/// What a scanner reports, in order. A QSignalSpy would append on the scan's thread as well as on this one.
struct Reports
{
    explicit Reports(const AppScanner &scanner)
    {
        QObject::connect(&scanner, &AppScanner::progress, &receiver,
                         [this](int percent, const QString &item) {
                             list.append({percent, item});
                         });
    }

    QList<std::pair<int, QString>> list;
    QObject receiver;
};

/// `apps` without what a Wine prefix has of its own.
QList<AppInfo> installed(QList<AppInfo> apps)
{
    apps.removeIf([](const AppInfo &app) {
        return app.hkcuRegPath.startsWith(u"HKEY_CURRENT_USER\\Software\\Wine"_s);
    });
    return apps;
}

} // namespace

/// A scan of a PC with hundreds of entries, and what may happen to it meanwhile.
class AppScannerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_pc = std::make_unique<SimulatedPc>();
        m_programs = std::make_unique<InstalledPrograms>(*m_pc);
        QVERIFY2(m_programs->uninstallKeys() >= 300,
                 qPrintable(QString::number(m_programs->uninstallKeys())));
    }

    void cleanupTestCase()
    {
        m_programs.reset();
        m_pc.reset();
    }

    void listsWhatIsInstalled()
    {
        AppScanner scanner;
        QSignalSpy finished(&scanner, &AppScanner::finished);
        scanner.start();
        QVERIFY(finished.wait(60000));
        const auto apps = finished.first().first().value<QList<AppInfo>>();
        QCOMPARE(scanner.appsFound(), int(apps.size()));

        const QStringList found = lines(installed(apps));
        const QStringList different = differences(found, expectedLines());
        QVERIFY2(different.isEmpty(), qPrintable(different.join(u'\n')));
        QCOMPARE(found.size(), expectedLines().size());
        // Folders come in the order of the file system, the rest in that of the keys.
        QCOMPARE(found.first(m_programs->fromUninstallKeys().size()), lines(m_programs->fromUninstallKeys()));
        QCOMPARE(found.last(m_programs->fromUserSoftware().size()), lines(m_programs->fromUserSoftware()));
    }

    void reportsInOrder()
    {
        std::atomic<int> onTheOtherThread = 0;
        AppScanner scanner;
        const Reports reports(scanner);
        QSignalSpy started(&scanner, &AppScanner::started);
        QSignalSpy finished(&scanner, &AppScanner::finished);
        const auto judgeThread = [this, &onTheOtherThread](int percent, const QString &item) {
            const bool comesFromTheScan = percent >= 85 || item.endsWith("..."_L1);
            if (comesFromTheScan == (QThread::currentThread() == thread()))
                ++onTheOtherThread;
        };
        connect(&scanner, &AppScanner::progress, &scanner, judgeThread, Qt::DirectConnection);
        scanner.start();
        scanner.start(); // does nothing
        QVERIFY(finished.wait(60000));
        QCOMPARE(started.size(), 1);
        QCOMPARE(onTheOtherThread, 0);

        QHash<QString, int> percents;
        for (const auto &[percent, item] : reports.list)
            percents.insert(item, percent);
        QVERIFY(std::is_sorted(reports.list.begin(), reports.list.end(),
                               [](const auto &a, const auto &b) { return a.first < b.first; }));
        for (const auto &[text, percent] : std::initializer_list<std::pair<QString, int>>{
                 {u"Scanning installed applications..."_s, 0},
                 {u"Scanning user installed applications..."_s, 65},
                 {u"Scanning Program Files..."_s, 75},
                 {u"Scanning user software registry..."_s, 85},
                 {u"Scan complete"_s, 100}})
            QCOMPARE(percents.value(text, -1), percent);
        QCOMPARE(percents.value(u"Amber Chat"_s), 65 + 25 * 10 / 36);
        QVERIFY(!percents.contains(u"Matool"_s)); // what is left out isn't reported
        QVERIFY(percents.contains(QString()));    // a key without a name is
    }

    void cancelLeavesNothingBehind_data()
    {
        addColumns<int>("percent");
        for (const int percent : {0, 1, 20, 55, 65, 75, 85, 86, 100})
            QTest::addRow("at %d percent", percent) << percent;
    }
    /// On the scan's own thread for the announcements, on this one for what the passes report.
    void cancelLeavesNothingBehind()
    {
        QFETCH(int, percent);
        std::atomic<int> cancels = 0;
        std::atomic<int> cancelled = 0;
        AppScanner scanner;
        Reports reports(scanner);
        connect(
            &scanner, &AppScanner::cancelled, &scanner, [&cancelled] { ++cancelled; }, Qt::DirectConnection);
        connect(
            &scanner, &AppScanner::progress, &scanner,
            [&](int reached) {
                if (reached >= percent && cancels.exchange(1) == 0) {
                    scanner.cancel();
                    scanner.cancel();
                }
            },
            Qt::DirectConnection);
        QSignalSpy finished(&scanner, &AppScanner::finished);
        scanner.start();
        QTRY_COMPARE(cancelled, 2);
        QCoreApplication::sendPostedEvents();
        reports.list.clear();
        // A late end of the first scan would come before the second one is complete.
        scanner.start();
        QVERIFY(finished.wait(60000));
        QCOMPARE(reports.list.last().first, 100);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(cancelled, 2);
    }

    void restartGivesTheNewResultOnly()
    {
        AppScanner scanner;
        QSignalSpy finished(&scanner, &AppScanner::finished);
        for (int i = 0; i < 5; ++i) {
            scanner.start();
            scanner.cancel();
        }
        scanner.start();
        QVERIFY(finished.wait(60000));
        QCOMPARE(finished.first().first().value<QList<AppInfo>>().size(), scanner.appsFound());
        QCOMPARE(lines(installed(finished.first().first().value<QList<AppInfo>>())).size(),
                 expectedLines().size());
        scanner.start();
        QVERIFY(finished.wait(60000));
        QCOMPARE(finished.size(), 2);
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
        auto scanner = std::make_unique<AppScanner>();
        int cancels = 0;
        connect(scanner.get(), &AppScanner::cancelled, this, [&cancels] { ++cancels; });
        const Reports made(*scanner);
        QSignalSpy finished(scanner.get(), &AppScanner::finished);
        scanner->start();
        QTRY_VERIFY_WITH_TIMEOUT(made.list.size() >= reports, 60000);
        const bool wasOver = !finished.isEmpty(); // a slow test may come too late
        scanner.reset();
        QCOMPARE(cancels, wasOver ? 0 : 1);
    }

private:
    [[nodiscard]] QStringList expectedLines() const
    {
        return lines(m_programs->fromUninstallKeys() + m_programs->fromFolders() +
                     m_programs->fromUserSoftware());
    }

    std::unique_ptr<SimulatedPc> m_pc;
    std::unique_ptr<InstalledPrograms> m_programs;
};

ZANDROVE_TEST(AppScannerTest)
#include "AppScannerTest.moc"
