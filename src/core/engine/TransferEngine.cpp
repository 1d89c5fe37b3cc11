#include "core/engine/TransferEngine.h"

#include "core/engine/Log.h"
#include "inventory/AccountScanner.h"
#include "inventory/AppScanner.h"
#include "inventory/FileScanner.h"
#include "inventory/SettingScanner.h"
#include "peer/NetworkManager.h"
#include "pipeline/MigrationManager.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

void registerMetaTypes()
{
    static const bool Registered = [] {
        qRegisterMetaType<Zandrove::PCInfo>("Zandrove::PCInfo");
        qRegisterMetaType<Zandrove::ScanResult>("Zandrove::ScanResult");
        qRegisterMetaType<Zandrove::TransferProgress>("Zandrove::TransferProgress");
        qRegisterMetaType<Zandrove::MigrationReport>("Zandrove::MigrationReport");
        qRegisterMetaType<Zandrove::ItemResult>("Zandrove::ItemResult");
        qRegisterMetaType<Zandrove::RunSummary>("Zandrove::RunSummary");
        qRegisterMetaType<QList<Zandrove::AppInfo>>("QList<Zandrove::AppInfo>");
        qRegisterMetaType<QList<Zandrove::FolderInfo>>("QList<Zandrove::FolderInfo>");
        qRegisterMetaType<QList<Zandrove::AccountInfo>>("QList<Zandrove::AccountInfo>");
        qRegisterMetaType<QList<Zandrove::SettingInfo>>("QList<Zandrove::SettingInfo>");
        qRegisterMetaType<QList<Zandrove::FileTransferTask>>("QList<Zandrove::FileTransferTask>");
        return true;
    }();
    Q_UNUSED(Registered)
}

} // namespace

TransferEngine::TransferEngine(QObject *parent, LinkEnvironment environment)
    : QObject(parent)
{
    registerMetaTypes();
    m_networkManager = new NetworkManager(this, std::move(environment));
    m_appScanner = new AppScanner(this);
    m_fileScanner = new FileScanner(this);
    m_accountScanner = new AccountScanner(this);
    m_settingScanner = new SettingScanner(this);
    m_migrationManager = new MigrationManager(this);
    m_destinationRoot = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) + u"/Zandrove"_s;
    setupConnections();
    configureMigration(m_role); // from now on it hears the peer, whoever begins
    m_verifyCode = generateVerifyCode();
}

TransferEngine::~TransferEngine()
{
    cancelScan();
    cancelTransfer();
    if (isConnected())
        disconnectFromPeer();
    const QObjectList backEnd = children();
    for (const QObject *child : backEnd)
        QObject::disconnect(child, nullptr, this, nullptr);
    // While the link it may still want to write to stands.
    m_migrationManager->resetAndListen();
    delete m_migrationManager;
}

void TransferEngine::setupConnections()
{
    setupLinkConnections();
    setupScanConnections();
    setupMigrationConnections();
}

void TransferEngine::setupLinkConnections()
{
    using Net = NetworkManager;
    connect(m_networkManager, &Net::pcDiscovered, this, &TransferEngine::onPCDiscovered);
    connect(m_networkManager, &Net::pcLost, this, &TransferEngine::onPCLost);
    connect(m_networkManager, &Net::connected, this, &TransferEngine::onConnected);
    connect(m_networkManager, &Net::disconnected, this, &TransferEngine::onDisconnected);
    connect(m_networkManager, &Net::connectionFailed, this, &TransferEngine::onConnectionFailed);
    connect(m_networkManager, &Net::linkSilent, this, &TransferEngine::linkSilent);
    connect(m_networkManager, &Net::linkAnswers, this, &TransferEngine::linkAnswers);
    connect(m_networkManager, &Net::connectionTimeout, this, &TransferEngine::onConnectionTimeout);
    connect(m_networkManager, &Net::connectionRequested, this, &TransferEngine::connectionRequested);
    connect(m_networkManager, &Net::sameRolePeer, this, &TransferEngine::sameRolePeer);
    connect(m_networkManager, &Net::portTaken, this, &TransferEngine::portTaken);
    connect(m_networkManager, &Net::waitingForAnswer, this, &TransferEngine::waitingForAnswer);
    connect(m_networkManager, &Net::questionEnded, this, &TransferEngine::questionEnded);
    m_networkManager->setBusyCheck([this] { return m_migrationManager->isUnderWay(); });
    connect(m_networkManager, &Net::directScanStarted, this, &TransferEngine::directScanStarted);
    connect(m_networkManager, &Net::directScanProgress, this, &TransferEngine::directScanProgress);
    connect(m_networkManager, &Net::directScanFinished, this, &TransferEngine::directScanFinished);
}

void TransferEngine::setupScanConnections()
{
    connect(m_appScanner, &AppScanner::finished, this, &TransferEngine::onAppScanFinished);
    connect(m_fileScanner, &FileScanner::finished, this, &TransferEngine::onFileScanFinished);
    connect(m_accountScanner, &AccountScanner::finished, this, &TransferEngine::onAccountScanFinished);
    connect(m_settingScanner, &SettingScanner::finished, this, &TransferEngine::onSettingScanFinished);
    const auto connectProgressOf = [this]<typename Scanner>(const Scanner *scanner) {
        connect(scanner, &Scanner::progress, this, &TransferEngine::onScanProgress);
        connect(scanner, &Scanner::error, this, &TransferEngine::onScanError);
    };
    connectProgressOf(m_appScanner);
    connectProgressOf(m_fileScanner);
    connectProgressOf(m_accountScanner);
    connectProgressOf(m_settingScanner);
}

void TransferEngine::setupMigrationConnections()
{
    using Run = MigrationManager;
    connect(m_migrationManager, &Run::transferReset, this, &TransferEngine::onTransferReset);
    connect(m_migrationManager, &Run::peerCancelled, this, &TransferEngine::onPeerCancelled);
    connect(m_migrationManager, &Run::sessionEndReceived, this, &TransferEngine::sessionEndReceived);
    connect(m_migrationManager, &Run::pausedByPeer, this, [this] { setPausedByPeer(true); });
    connect(m_migrationManager, &Run::resumedByPeer, this, [this] { setPausedByPeer(false); });
    connect(m_migrationManager, &Run::waiting, this, &TransferEngine::onWaiting);
    connect(m_migrationManager, &Run::newTransferStarted, this, &TransferEngine::onNewTransferStarted);
    connect(m_migrationManager, &Run::progressChanged, this, &TransferEngine::onMigrationProgress);
    connect(m_migrationManager, &Run::completed, this, &TransferEngine::onMigrationCompleted);
    connect(m_migrationManager, &Run::failed, this, &TransferEngine::onMigrationFailed);
    connect(m_migrationManager, &Run::fileTransferStarted, this, &TransferEngine::onFileTransferStarted);
    connect(m_migrationManager, &Run::fileTransferProgress, this, &TransferEngine::onFileTransferProgress);
    connect(m_migrationManager, &Run::fileTransferCompleted, this, &TransferEngine::onFileTransferCompleted);
    connect(m_migrationManager, &Run::fileTransferFailed, this, &TransferEngine::onFileTransferFailed);
    connect(m_migrationManager, &Run::appOutcome, this, &TransferEngine::appOutcome);
    connect(m_migrationManager, &Run::settingOutcome, this, &TransferEngine::settingOutcome);
    connect(m_migrationManager, &Run::settingsFinished, this, &TransferEngine::settingsFinished);
    connect(m_migrationManager, &Run::itemSettled, this, &TransferEngine::itemSettled);
    connect(m_migrationManager, &Run::runEnded, this, &TransferEngine::onRunEnded);
    connect(m_migrationManager, &Run::runRevised, this, &TransferEngine::runRevised);
    connect(m_migrationManager, &Run::spaceShort, this, &TransferEngine::spaceShort);
    connect(m_migrationManager, &Run::installing, this, &TransferEngine::installing);
}

void TransferEngine::setRole(int role)
{
    m_role = role;
    m_networkManager->setRole(role);
    qCDebug(logEngine) << "TransferEngine::setRole() ->" << roleName(role);
    m_migrationManager->setRole(role);
    Q_EMIT stateChanged();
}

void TransferEngine::setMode(int mode)
{
    if (mode == m_mode)
        return;
    m_mode = mode;
    m_networkManager->setMode(mode);
    Q_EMIT stateChanged();
}

} // namespace Zandrove
