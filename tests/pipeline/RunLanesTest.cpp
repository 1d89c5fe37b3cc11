#include "PipelineTests.h"

#include "SimulatedPc.h"

#include "appmigration/AppMessages.h"
#include "pipeline/DestinationGuard.h"
#include "pipeline/DestinationMap.h"
#include "pipeline/FileChecksum.h"
#include "pipeline/MigrationManager.h"
#include "pipeline/TransferMessages.h"
#include "settings/SettingPackage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSemaphore>
#include <QThread>

#include <algorithm>
#include <memory>

using Protocol::MessageType;

namespace {

/// Longer than the New PC waits behind the end of an application.
constexpr int BeyondAppEnd = 700; // milliseconds

bool canLink(const QString &scratch)
{
    const QString link = scratch + u"/link-probe"_s;
    const bool made = QFile::link(scratch, link) && QFileInfo(link).isSymbolicLink();
    return QFile::remove(link) && made;
}

} // namespace

/// The applications and settings of a run: the manager by itself on a PC of its own, fed with the messages of
/// a peer that is not there.
class RunLanesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void appIsInstalledOnceItIsWhole_data();
    void appIsInstalledOnceItIsWhole();
    void pausedRunInstallsWhenItGoesOn();
    void appsOfOneNameAreOne();
    void failedInstallationCostsOneApp();
    void hostileNamesTouchNothing_data();
    void hostileNamesTouchNothing();
    void removalsFollowNoLink();
    void calledOffRunLeavesNothingToInstall_data();
    void calledOffRunLeavesNothingToInstall();
    void peerThatHasEndedItsRunPausesNoMore();

    void vanishedAppFilesDoNotHoldTheRun();
    void cancelledPackingIsOver();
    void nothingLeavesAheadOfTheRunsBeginning();

    void settingsAreAppliedWhenTheRunHasItsReport();
    void nextRunWaitsForTheSettingsOfTheLast();
    void settingsThatNeverEndAreNotWaitedFor();

private:
    void peer(MessageType type, const QByteArray &payload = {})
    {
        m_manager->onNetworkCommandReceived(type, payload);
    }
    void peerBeginsApp(const QString &name);
    void peerEndsApp(const QString &name) { peer(MessageType::AppEnd, heldAppEndPayload(name)); }
    void peerBeginsFile(const QString &relativePath);
    void peerEndsFile(const QString &relativePath);
    void peerSendsFile(const QString &relativePath)
    {
        peerBeginsFile(relativePath);
        peerEndsFile(relativePath);
    }
    void peerSendsSetting(const QString &key);
    void holdThread(const QString &name);
    [[nodiscard]] QString target(const QString &name) const { return m_pc->path(u"Target/"_s + name); }

    QSemaphore m_gate; // what a held thread waits for
    std::unique_ptr<SimulatedPc> m_pc;
    std::unique_ptr<MigrationManager> m_manager;
    std::unique_ptr<QSignalSpy> m_outcomes;
    std::unique_ptr<QSignalSpy> m_completed;
};

void RunLanesTest::init()
{
    m_pc = std::make_unique<SimulatedPc>();
    m_manager = std::make_unique<MigrationManager>();
    m_manager->setRole(NewPC);
    m_manager->setDestinationRoot(m_pc->path(u"Received"_s));
    m_outcomes = std::make_unique<QSignalSpy>(m_manager.get(), &MigrationManager::appOutcome);
    m_completed = std::make_unique<QSignalSpy>(m_manager.get(), &MigrationManager::completed);
}

void RunLanesTest::cleanup()
{
    m_outcomes.reset();
    m_completed.reset();
    m_manager.reset();
    m_pc.reset();
}

void RunLanesTest::peerBeginsApp(const QString &name)
{
    AppPackage package;
    package.name = name;
    package.installLocation = target(makeSafeName(name));
    package.sourceUser = u"bob"_s;
    peer(MessageType::AppStart, appStartPayload(package));
}

void RunLanesTest::peerBeginsFile(const QString &relativePath)
{
    const QByteArray content = relativePath.toUtf8();
    QByteArray chunk(TransferMessages::ChunkHeader::Size, Qt::Uninitialized);
    TransferMessages::ChunkHeader{0, qint32(content.size()), 0}.writeTo(chunk.data());
    peer(MessageType::FileHeader,
         TransferMessages::Header{0, relativePath, {}, content.size(), 0}.toPayload());
    peer(MessageType::FileData, chunk + content);
}

void RunLanesTest::peerEndsFile(const QString &relativePath)
{
    const QByteArray content = relativePath.toUtf8();
    FileChecksum sum;
    sum.update(content);
    peer(MessageType::FileEnd,
         TransferMessages::End{0, relativePath, sum.value(), content.size()}.toPayload());
}

void RunLanesTest::appIsInstalledOnceItIsWhole_data()
{
    QTest::addColumn<QString>("endOfApp");
    QTest::newRow("behind its last file") << u"behind"_s;
    QTest::newRow("ahead of its last file") << u"ahead"_s;
    QTest::newRow("missing") << u"missing"_s;
}

void RunLanesTest::appIsInstalledOnceItIsWhole()
{
    QFETCH(QString, endOfApp);
    const QString file = u"Apps/Tool/Install/Tool/bin/x.dll"_s;
    m_manager->startReceiving();
    peerBeginsApp(u"Tool"_s);
    peerSendsFile(u"Apps/Tool/Install/Tool/a.txt"_s);
    peerBeginsFile(file);
    if (endOfApp == "ahead"_L1) {
        peerEndsApp(u"Tool"_s);
        QVERIFY(!m_outcomes->wait(BeyondAppEnd));
    }
    peerEndsFile(file);
    if (endOfApp == "behind"_L1)
        peerEndsApp(u"Tool"_s);
    if (endOfApp == "missing"_L1)
        peer(MessageType::TransferComplete);
    QTRY_COMPARE(*m_outcomes, (QList<QList<QVariant>>{{u"Tool"_s, true, u""_s}}));
    QVERIFY(QFile::exists(target(u"Tool/bin/x.dll"_s)));
    QVERIFY(QFile::exists(target(u"Tool/a.txt"_s)));
    QVERIFY(!QFile::exists(receivedAppsFolder() + u"/Tool"_s));

    if (endOfApp != "missing"_L1)
        peer(MessageType::TransferComplete);
    QTRY_COMPARE(m_completed->size(), 1);
    QCOMPARE(m_completed->first().first().value<MigrationReport>().appsSuccess, 1);
    QCOMPARE(m_completed->first().first().value<MigrationReport>().filesSuccess, 2);
}

void RunLanesTest::pausedRunInstallsWhenItGoesOn()
{
    m_manager->startReceiving();
    peerBeginsApp(u"Tool"_s);
    peerSendsFile(u"Apps/Tool/Install/Tool/a.txt"_s);
    peerEndsApp(u"Tool"_s);
    peerBeginsFile(u"Apps/Other/Install/Other/b.txt"_s);
    m_manager->pause();
    for (int i = 0; i < 50; ++i) // chunks at which the receiver now waits
        peerSendsFile(u"Apps/Tool/Install/Tool/more/%1"_s.arg(i));
    QVERIFY(!m_outcomes->wait(BeyondAppEnd));
    m_manager->resume();
    QTRY_COMPARE(m_outcomes->size(), 1);
    QCOMPARE(QDir(target(u"Tool/more"_s)).count(), 52u); // all that had arrived, and two dots
}

void RunLanesTest::appsOfOneNameAreOne()
{
    m_manager->startReceiving();
    for (int i = 0; i < 2; ++i)
        peerBeginsApp(u"Tool"_s);
    peerSendsFile(u"Apps/Tool/Install/Tool/a.txt"_s);
    for (int i = 0; i < 2; ++i)
        peerEndsApp(u"Tool"_s);
    QVERIFY(m_outcomes->wait());
    QVERIFY(!m_outcomes->wait(BeyondAppEnd));
    QVERIFY(QFile::exists(target(u"Tool/a.txt"_s)));
}

void RunLanesTest::failedInstallationCostsOneApp()
{
    m_pc->writeFile(u"Target/Bad"_s, "a file where a folder is to be");
    m_manager->startReceiving();
    for (const QString &name : {u"Bad"_s, u"Good"_s}) {
        peerBeginsApp(name);
        peerSendsFile(u"Apps/%1/Install/%1/a.txt"_s.arg(name));
    }
    peer(MessageType::TransferComplete);
    QTRY_COMPARE(m_completed->size(), 1);
    const auto report = m_completed->first().first().value<MigrationReport>();
    QCOMPARE(report.appsSuccess, 1);
    QCOMPARE(report.appsFailed, 1);
    QCOMPARE(m_outcomes->first().value(1).toBool(), false);
    QVERIFY(!m_outcomes->first().value(2).toString().isEmpty());
    QVERIFY(QFile::exists(target(u"Good/a.txt"_s)));
}

void RunLanesTest::hostileNamesTouchNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name :
         {u""_s, u"  "_s, u"."_s, u".."_s, u"../.."_s, u"a/../../b"_s, u"a\\..\\.."_s, u"a\0b"_s})
        QTest::addRow("%s", qPrintable(name)) << name;
}

void RunLanesTest::hostileNamesTouchNothing()
{
    QFETCH(QString, name);
    const QString outside = m_pc->writeFile(receivedAppsFolder() + u"/../keep.txt"_s, "x");
    const QString inside = m_pc->writeFile(receivedAppsFolder() + u"/Tool/keep.txt"_s, "x");
    m_manager->startReceiving();
    peerBeginsApp(name);
    peerEndsApp(name);
    QVERIFY(!m_outcomes->wait(BeyondAppEnd));
    QVERIFY(QFile::exists(outside));
    QVERIFY(QFile::exists(inside));
    QVERIFY(QFile::remove(outside));
}

void RunLanesTest::removalsFollowNoLink()
{
    if (!canLink(m_pc->path(u"."_s)))
        QSKIP("this system's links are ordinary files");
    const QString kept = m_pc->writeFile(u"elsewhere/keep.txt"_s, "x");
    const QString elsewhere = QFileInfo(kept).path();
    const QString app = receivedAppsFolder() + u"/Tool"_s;
    m_pc->writeFile(app + u"/sub/x"_s, "x");
    QVERIFY(QFile::link(elsewhere, app + u"/sub/link"_s));
    QVERIFY(QFile::link(elsewhere, receivedAppsFolder() + u"/Linked"_s));

    for (const QString &refused : {elsewhere, QDir::homePath(), QFileInfo(receivedAppsFolder()).path(),
                                   receivedAppsFolder() + u"/../.."_s, receivedAppsFolder() + u"/Linked"_s})
        QVERIFY2(!removeReceived(refused), qPrintable(refused));
    QVERIFY(removeReceived(app));
    QVERIFY(!QFile::exists(app));
    QVERIFY(removeReceived(receivedAppsFolder()));
    QVERIFY(QFile::exists(kept));
}

void RunLanesTest::calledOffRunLeavesNothingToInstall_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("by the peer") << u"peer"_s;
    QTest::newRow("here") << u"here"_s;
    QTest::newRow("here, when all has arrived") << u"complete"_s;
}

void RunLanesTest::calledOffRunLeavesNothingToInstall()
{
    QFETCH(QString, how);
    m_manager->startReceiving();
    peerBeginsApp(u"Tool"_s);
    peerSendsFile(u"Apps/Tool/Install/Tool/half.txt"_s);
    peerEndsApp(u"Tool"_s);
    peerSendsSetting(u"unknown"_s);
    if (how == "peer"_L1) {
        peer(MessageType::TransferCancel);
    } else {
        if (how == "complete"_L1) {
            m_manager->pause();
            peerSendsFile(u"Apps/Tool/Install/Tool/more.txt"_s);
            peer(MessageType::TransferComplete);
        }
        m_manager->cancel();
    }
    QVERIFY(!m_outcomes->wait(BeyondAppEnd));
    peer(MessageType::TransferStart, TransferMessages::Start{0, 0}.toPayload());
    peer(MessageType::TransferComplete);
    QTRY_COMPARE(m_completed->size(), 1);
    QCOMPARE(m_outcomes->size(), 0);
    QVERIFY(!QFile::exists(target(u"Tool"_s)));
}

void RunLanesTest::peerThatHasEndedItsRunPausesNoMore()
{
    m_manager->startReceiving();
    peer(MessageType::TransferPause);
    peerSendsFile(u"x"_s);
    peer(MessageType::TransferComplete);
    QTRY_COMPARE(m_completed->size(), 1);
    QVERIFY(QFile::exists(m_pc->path(u"Received/x"_s)));
}

void RunLanesTest::vanishedAppFilesDoNotHoldTheRun()
{
    AppInfo app;
    app.name = u"Tool"_s;
    app.selected = true;
    app.installPath = QFileInfo(m_pc->writeFile(u"C:/Program Files/Tool/a.dll"_s, "x")).path();
    m_manager->setRole(OldPC);
    m_manager->start({app}, {}, {}, {});
    QTest::qSleep(500); // both threads are through; what they say waits for this one
    QVERIFY(QFile::remove(app.installPath + u"/a.dll"_s));
    QTRY_COMPARE(m_completed->size(), 1);
    const auto report = m_completed->first().first().value<MigrationReport>();
    QCOMPARE(report.appsSuccess, 1);
    QCOMPARE(report.filesSuccess + report.filesFailed, 0);
    QCOMPARE(*m_outcomes, (QList<QList<QVariant>>{{u"Tool"_s, true, u""_s}}));
}

void RunLanesTest::cancelledPackingIsOver()
{
    AppInfo app;
    app.name = u"Tool"_s;
    app.selected = true;
    app.installPath = QFileInfo(m_pc->writeFile(u"C:/Program Files/Tool/a.dll"_s, "x")).path();
    SettingInfo setting;
    setting.id = u"mouse"_s;
    setting.selected = true;
    m_manager->setRole(OldPC);
    m_manager->start({app}, {}, {}, {setting});
    QTest::qSleep(300);
    m_manager->cancel();
    m_manager->resetAndListen();
    QVERIFY(!m_completed->wait(BeyondAppEnd));
    QCOMPARE(m_outcomes->size(), 0);
}

void RunLanesTest::nothingLeavesAheadOfTheRunsBeginning()
{
    const auto sent = std::make_shared<QList<MessageType>>();
    m_manager->setLink({.send = [sent](MessageType type, const QByteArray &) { sent->append(type); },
                        .acceptedNumber = [] { return quint64(1); }});
    m_manager->setRole(OldPC);
    connect(m_manager.get(), &MigrationManager::started, this, [this] { holdThread(u"Worker"_s); });
    AppInfo app;
    app.name = u"Tool"_s;
    app.selected = true;
    SettingInfo setting;
    setting.id = u"none of this PC"_s;
    setting.selected = true;
    QSignalSpy settings(m_manager.get(), &MigrationManager::settingsFinished);
    m_manager->start({app}, {}, {}, {setting});
    const bool allIsReady = settings.wait() && (!m_outcomes->isEmpty() || m_outcomes->wait());
    m_gate.release();
    QVERIFY(allIsReady && m_completed->wait());
    QCOMPARE(sent->size(), 4);
    std::sort(sent->begin() + 1, sent->end() - 1); // neither lane waits for the other
    QCOMPARE(*sent, (QList{MessageType::TransferStart, MessageType::AppStart, MessageType::SettingComplete,
                           MessageType::TransferComplete}));
}

/// Keeps a thread of the manager from everything it is given from now on, until the gate opens.
void RunLanesTest::holdThread(const QString &name)
{
    auto *obstacle = new QObject;
    obstacle->moveToThread(m_manager->findChild<QThread *>(name));
    QMetaObject::invokeMethod(
        obstacle,
        [this, obstacle] {
            m_gate.acquire();
            delete obstacle;
        },
        Qt::QueuedConnection);
}

void RunLanesTest::peerSendsSetting(const QString &key)
{
    SettingPackage package;
    package.key = package.name = key;
    peer(MessageType::SettingStart, SettingMessages::startPayload(package));
    peer(MessageType::SettingEnd, SettingMessages::End{package.key, package.name}.toPayload());
}

void RunLanesTest::settingsAreAppliedWhenTheRunHasItsReport()
{
    constexpr int Count = 6;
    QSignalSpy outcomes(m_manager.get(), &MigrationManager::settingOutcome);
    QSignalSpy finished(m_manager.get(), &MigrationManager::settingsFinished);
    m_manager->startReceiving();
    for (int i = 0; i < Count; ++i)
        peerSendsSetting(u"unknown%1"_s.arg(i));
    QVERIFY(m_manager->isApplyingSettings());
    peer(MessageType::SettingComplete, SettingMessages::Complete{Count, 0}.toPayload());
    peer(MessageType::TransferComplete);
    QTRY_COMPARE(m_completed->size(), 1);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(outcomes.size(), Count);
    QCOMPARE(finished.first().at(0).toInt() + finished.first().at(1).toInt(), Count);
    QVERIFY(!m_manager->isApplyingSettings());
}

void RunLanesTest::nextRunWaitsForTheSettingsOfTheLast()
{
    QSignalSpy finished(m_manager.get(), &MigrationManager::settingsFinished);
    QSignalSpy begun(m_manager.get(), &MigrationManager::newTransferStarted);
    m_manager->startReceiving();
    holdThread(u"Setting"_s);
    peerSendsSetting(u"unknown"_s);
    peer(MessageType::SettingComplete, SettingMessages::Complete{1, 0}.toPayload());
    peer(MessageType::TransferComplete);
    peer(MessageType::TransferReset); // while the report is still due
    peer(MessageType::TransferStart, TransferMessages::Start{1, 1}.toPayload());
    peerSendsFile(u"x"_s);
    peer(MessageType::TransferComplete);
    QTRY_COMPARE(m_completed->size(), 1);
    QCOMPARE(begun.size(), 0);
    QVERIFY(m_manager->isApplyingSettings());

    m_gate.release();
    QTRY_COMPARE(m_completed->size(), 2);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(begun.size(), 1);
    QVERIFY(QFile::exists(m_pc->path(u"Received/x"_s)));
}

void RunLanesTest::settingsThatNeverEndAreNotWaitedFor()
{
    m_manager->startReceiving();
    peerSendsSetting(u"unknown"_s);
    peer(MessageType::TransferComplete);
    QTRY_COMPARE(m_completed->size(), 1);
    QVERIFY(!m_manager->isApplyingSettings());
}

ZANDROVE_TEST(RunLanesTest)
#include "RunLanesTest.moc"
