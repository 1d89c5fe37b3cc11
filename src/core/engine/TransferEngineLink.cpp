// TransferEngine: discovery and connection.

#include "core/engine/Log.h"
#include "core/engine/TransferEngine.h"
#include "peer/NetworkManager.h"
#include "pipeline/MigrationManager.h"
#include "support/PeerChoice.h"

#include <QRandomGenerator>

#include <algorithm>

namespace Zandrove {

namespace {

constexpr int CodeDigits = 4;

} // namespace

QString TransferEngine::generateVerifyCode()
{
    QString code;
    for (int digit = 0; digit < CodeDigits; ++digit)
        code += QString::number(QRandomGenerator::global()->bounded(10));
    qCDebug(logEngine) << "Generated verify code:" << code;
    return code;
}

/// Says so when there is no link layer, which never happens in a whole engine.
bool TransferEngine::hasLink()
{
    if (!m_networkManager)
        Q_EMIT error(tr("Network manager not initialized"));
    return m_networkManager != nullptr;
}

void TransferEngine::startDiscovery()
{
    if (!hasLink())
        return;
    qCDebug(logEngine) << "startDiscovery() with role:" << roleName(m_role);
    m_networkManager->setRole(m_role);
    m_verifyCode = generateVerifyCode();
    m_networkManager->setVerifyCode(m_verifyCode);
    m_networkManager->startDiscovery();
    Q_EMIT discoveryStarted();
    Q_EMIT info(tr("Discovery started. Verification code: %1").arg(m_verifyCode));
}

void TransferEngine::restartBroadcast()
{
    if (!hasLink())
        return;
    qCDebug(logEngine) << "TransferEngine::restartBroadcast() with code:" << m_verifyCode;
    m_networkManager->setVerifyCode(m_verifyCode);
    m_networkManager->restartBroadcast();
    Q_EMIT info(tr("Broadcast restarted. Verification code: %1").arg(m_verifyCode));
}

void TransferEngine::stopDiscovery()
{
    if (m_networkManager)
        m_networkManager->stopDiscovery();
    Q_EMIT discoveryStopped();
}

QList<PCInfo> TransferEngine::discoveredPCs() const
{
    return m_networkManager ? m_networkManager->discoveredPCs() : QList<PCInfo>();
}

bool TransferEngine::knowsPeer(const QString &id) const
{
    const QList<PCInfo> peers = discoveredPCs();
    return std::any_of(peers.cbegin(), peers.cend(), [&id](const PCInfo &peer) { return peer.id == id; });
}

void TransferEngine::onPCDiscovered(const PCInfo &pc)
{
    Q_EMIT pcDiscovered(pc);
    if (knowsPeer(pc.id))
        Q_EMIT pcUpdated(pc);
}

void TransferEngine::onPCLost(const QString &pcId, quint64 key)
{
    Q_EMIT pcLost(pcId, key);
}

void TransferEngine::connectToPC(const PCInfo &pc)
{
    if (!m_networkManager) {
        Q_EMIT connectionFailed(tr("Network manager not initialized"));
        return;
    }
    m_connectedPC = pc;
    Q_EMIT connecting();
    m_dialingUnknownPeer = !knowsPeer(pc.id);
    m_networkManager->connectToPC(pc.id, pc.key);
    m_dialingUnknownPeer = false;
}

void TransferEngine::connectToAddress(const QString &address)
{
    if (!m_networkManager) {
        Q_EMIT connectionFailed(tr("Network manager not initialized"));
        return;
    }
    m_connectedPC = PCInfo();
    m_connectedPC.id = m_connectedPC.name = m_connectedPC.ip = address;
    Q_EMIT connecting();
    m_networkManager->connectToAddress(address);
}

void TransferEngine::connectByCode(const QString &code)
{
    if (!m_networkManager) {
        Q_EMIT connectionFailed(tr("Network manager not initialized"));
        return;
    }
    Q_EMIT connecting();
    const QList<PCInfo> peers = peersWithCode(discoveredPCs(), code);
    if (peers.isEmpty())
        Q_EMIT connectionFailed(tr("No PC found with verification code: %1").arg(code));
    else if (peers.size() > 1)
        Q_EMIT connectionFailed(
            tr("More than one PC shows the code %1: %2").arg(code, describedPeers(peers)));
    else
        m_networkManager->connectToPC(peers.first().id, peers.first().key);
}

QList<ConnectionQuestion> TransferEngine::openQuestions() const
{
    return m_networkManager ? m_networkManager->openQuestions() : QList<ConnectionQuestion>();
}

void TransferEngine::acceptConnection(const QString &code, quint64 question)
{
    if (code != m_verifyCode) {
        Q_EMIT connectionFailed(tr("Invalid verification code"));
        return;
    }
    if (m_networkManager)
        m_networkManager->acceptConnection(question);
}

void TransferEngine::rejectConnection(quint64 question)
{
    if (m_networkManager)
        m_networkManager->rejectConnection(question);
}

void TransferEngine::disconnectFromPeer()
{
    m_migrationManager->endSession();
    if (m_networkManager)
        m_networkManager->disconnect();
    m_connectedPC = PCInfo();
    Q_EMIT disconnected();
}

bool TransferEngine::hasAcceptedLink() const
{
    return m_networkManager && m_networkManager->isAccepted();
}

bool TransferEngine::isConnected() const
{
    if (!m_connectedPC.id.isEmpty() && !m_connectedPC.ip.isEmpty() && m_connectedPC.port > 0)
        return true;
    return m_networkManager && m_networkManager->isConnected();
}

void TransferEngine::onConnected()
{
    m_connectedPC = m_networkManager->connectedPC();
    Q_EMIT connected();
    Q_EMIT info(tr("Connected to %1").arg(m_connectedPC.name));
    Q_EMIT stateChanged();
}

void TransferEngine::onDisconnected()
{
    m_connectedPC = PCInfo();
    Q_EMIT disconnected();
    Q_EMIT info(tr("Disconnected"));
    Q_EMIT stateChanged();
}

/// A peer that was dialled in vain must not count as connected. One that the table does not know fails inside
/// the call, where the caller asked for it.
void TransferEngine::forgetPeerDialledInVain()
{
    if (!m_dialingUnknownPeer && !m_networkManager->isConnected())
        m_connectedPC = PCInfo();
}

void TransferEngine::onConnectionFailed(const QString &reason)
{
    forgetPeerDialledInVain();
    Q_EMIT connectionFailed(reason);
    Q_EMIT error(tr("Connection failed: %1").arg(reason));
}

void TransferEngine::onConnectionTimeout()
{
    forgetPeerDialledInVain();
    Q_EMIT connectionTimeout();
    Q_EMIT error(tr("Connection timeout"));
}

} // namespace Zandrove
