#include "SimulatedPc.h"
#include "TestMain.h"

#include "core/engine/TransferEngine.h"
#include "inventory/AppScanner.h"
#include "inventory/FileScanner.h"

namespace {

constexpr int LongestScan = 60000;  // milliseconds
constexpr int SilenceAfterIt = 300; // milliseconds in which a late result would have come

const QString UninstallKey =
    u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s;

} // namespace

/// The engine's join of the four scanners, on a PC with one application of 1024 bytes.
class ScanTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<SimulatedPc> m_pc;
    std::unique_ptr<TransferEngine> m_engine;
    std::unique_ptr<QSignalSpy> m_completed;

private Q_SLOTS:
    void init()
    {
        m_pc = std::make_unique<SimulatedPc>();
        m_pc->addRegistry(
            u"[%1Lonely Sketch]\n\"DisplayName\"=\"Lonely Sketch\"\n\"EstimatedSize\"=dword:1\n"_s.arg(
                UninstallKey));
        m_engine = std::make_unique<TransferEngine>();
        m_completed = std::make_unique<QSignalSpy>(m_engine.get(), &TransferEngine::scanCompleted);
    }

    void cleanup()
    {
        m_engine.reset();
        m_pc.reset();
    }

    void joinsTheFourScanners()
    {
        QStringList events;
        connect(m_engine.get(), &TransferEngine::scanStarted, this, [&] { events.append(u"started"_s); });
        connect(m_engine.get(), &TransferEngine::info, this,
                [&](const QString &text) { events.append(text); });
        const QSignalSpy progress(m_engine.get(), &TransferEngine::scanProgress);
        const QSignalSpy failed(m_engine.get(), &TransferEngine::transferFailed);

        m_engine->startScan();
        m_engine->setSelectedPaths({m_pc->homePath()});
        m_engine->startTransfer();
        QCOMPARE(failed.size(), 1);
        QVERIFY(m_completed->wait(LongestScan));
        QCOMPARE(events, QStringList({u"started"_s, u"Starting system scan..."_s}));

        const auto result = m_completed->first().first().value<ScanResult>();
        QStringList names;
        qint64 size = 0;
        for (const AppInfo &app : result.apps) {
            names.append(app.name);
            size += app.size;
        }
        QVERIFY(names.contains(u"Lonely Sketch"_s));
        for (const FolderInfo &folder : result.folders)
            size += folder.totalSize;
        QCOMPARE(result.totalSize, size);
        QVERIFY(!result.settings.isEmpty() && !result.accounts.isEmpty() && result.scanTime.isValid());
        QCOMPARE(progress.last().mid(2, 2), (QVariantList{int(result.apps.size()), 0}));

        m_engine->setSelectedApps({int(names.indexOf(u"Lonely Sketch"_s)), 99, -1});
        QCOMPARE(m_engine->selectedCount(), 2);
        m_engine->setSelectedApps({});
        QCOMPARE(m_engine->selectedCount(), 1);
    }

    void refusesWhatCannotBegin()
    {
        const QSignalSpy failed(m_engine.get(), &TransferEngine::scanFailed);
        const QSignalSpy warnings(m_engine.get(), &TransferEngine::warning);
        const QSignalSpy started(m_engine.get(), &TransferEngine::scanStarted);
        m_engine->setRole(NewPC);
        m_engine->startScan();
        QCOMPARE(failed, (QList<QVariantList>{{u"Not connected to source PC"_s}}));
        m_engine->setRole(OldPC);
        m_engine->startScan();
        m_engine->startScan();
        QCOMPARE(warnings, (QList<QVariantList>{{u"Scan already in progress"_s}}));
        QCOMPARE(started.size(), 1);
    }

    void cancelledScanGivesNoResult_data()
    {
        const auto row = addColumns<QString>("end");
        for (const char *end :
             {"cancel", "reset", "cancel from a scanner's progress", "reset behind the join"})
            row(end, QString::fromLatin1(end));
    }
    void cancelledScanGivesNoResult()
    {
        QFETCH(QString, end);
        QSignalSpy cancelled(m_engine.get(), &TransferEngine::scanCancelled);
        QSignalSpy applications(m_engine->findChild<AppScanner *>(), &AppScanner::finished);
        if (end == "cancel from a scanner's progress"_L1)
            connect(m_engine->findChild<FileScanner *>(), &FileScanner::progress, m_engine.get(),
                    &TransferEngine::cancelScan);
        m_engine->startScan();
        if (end == "cancel"_L1)
            m_engine->cancelScan();
        if (end == "reset behind the join"_L1)
            QVERIFY(applications.wait(LongestScan));
        if (end.startsWith("reset"_L1))
            m_engine->reset();
        m_engine->cancelScan(); // nothing is running any more
        QTest::qWait(SilenceAfterIt);
        QCOMPARE(m_completed->size(), 0);
        QCOMPARE(cancelled.size(), end == "reset behind the join"_L1 ? 0 : 1);

        QObject::disconnect(m_engine->findChild<FileScanner *>(), &FileScanner::progress, m_engine.get(),
                            &TransferEngine::cancelScan);
        m_engine->startScan();
        QVERIFY(m_completed->wait(LongestScan));
        QVERIFY(!m_engine->scanResult().apps.isEmpty());
    }

    void totalsCountWhatIsDropped()
    {
        auto *const scanner = m_engine->findChild<FileScanner *>();
        // The second result of the folders takes the place of the first, and stands for the fourth scanner.
        m_engine->startScan();
        m_engine->findChild<AppScanner *>()->cancel();
        FolderInfo nameless;
        nameless.totalSize = 100;
        nameless.fileCount = 3;
        Q_EMIT scanner->finished({nameless});
        QVERIFY(m_completed->wait(LongestScan));
        QVERIFY(m_engine->scanResult().folders.isEmpty());
        QCOMPARE(m_engine->scanResult().totalSize, 100);
        QCOMPARE(m_engine->scanResult().totalFiles, 3);
    }
};

ZANDROVE_TEST(ScanTest)
#include "ScanTest.moc"
