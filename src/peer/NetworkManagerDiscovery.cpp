#include "peer/NetworkManager.h"

#include "peer/Beacon.h"
#include "peer/CableModeHelper.h"
#include "peer/Link.h"
#include "peer/Log.h"
#include "peer/PeerText.h"
#include "peer/WaitingRoom.h"
#include "support/Json.h"
#include "support/Utilities.h"

#include <QJsonObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto AgeingInterval = 5000ms;
constexpr unsigned long ListenRetryMs = 100;
constexpr auto ScanDelayAfterStart = 500ms;
constexpr auto ScanDelayAfterRestart = 100ms;

quint16 portFrom(const QJsonValue &value)
{
    const int port = value.toInt();
    return port > 0 && port <= std::numeric_limits<quint16>::max() ? quint16(port) : quint16(0);
}

/// The payload of a discovery frame; nothing where the datagram is none.
std::optional<QByteArray> discoveryPayloadOf(const QByteArray &datagram)
{
    const auto header = Protocol::readHeader(datagram);
    if (!header || header->magic != Protocol::Magic ||
        header->type != quint16(Protocol::MessageType::Discovery) ||
        qint64(header->length) + Protocol::HeaderSize > datagram.size())
        return std::nullopt;
    return datagram.mid(Protocol::HeaderSize, qsizetype(header->length));
}

} // namespace

void NetworkManager::setRole(int role)
{
    m_role = role;
}

void NetworkManager::setMode(int mode)
{
    m_mode = mode;
}

void NetworkManager::setVerifyCode(const QString &code)
{
    m_verifyCode = code;
}

QList<PCInfo> NetworkManager::discoveredPCs() const
{
    return m_peers.peers();
}

void NetworkManager::setupDiscovery()
{
    m_timeoutTimer->setInterval(AgeingInterval);
    m_scanDelayTimer->setSingleShot(true);
    connect(m_timeoutTimer, &QTimer::timeout, this, &NetworkManager::checkPCTimeouts);
    connect(m_scanDelayTimer, &QTimer::timeout, this, [this] {
        setupServer();
        m_cableHelper->startDirectScan();
    });
    connect(m_beacon, &Beacon::heard, this, &NetworkManager::handleDatagram);

    m_cableHelper->setTargetPort(m_environment.tcpPort);
    connect(m_cableHelper, &CableModeHelper::scanStarted, this, &NetworkManager::directScanStarted);
    connect(m_cableHelper, &CableModeHelper::scanProgress, this, &NetworkManager::directScanProgress);
    connect(m_cableHelper, &CableModeHelper::scanFinished, this, &NetworkManager::directScanFinished);
    connect(m_cableHelper, &CableModeHelper::deviceFound, this, &NetworkManager::onDirectScanDeviceFound);
}

void NetworkManager::setupServer()
{
    const bool listening = m_tcpServer->isListening();
    qCDebug(logPeer) << "setupServer() called, currently listening:" << listening;
    if (listening)
        return;
    bool result = listen();
    qCDebug(logPeer) << "TCP Server listen result:" << result << "Port:" << m_environment.tcpPort;
    if (result)
        return;
    qCDebug(logPeer) << "ERROR:" << m_tcpServer->errorString();
    m_tcpServer->close();
    QThread::msleep(ListenRetryMs);
    result = listen();
    qCDebug(logPeer) << "Retry result:" << result;
}

bool NetworkManager::listen()
{
    return m_tcpServer->listen(QHostAddress::Any, m_environment.tcpPort);
}

void NetworkManager::startDiscovery()
{
    refreshAddresses();
    setupServer();
    if (m_beacon->isActive()) {
        qCDebug(logPeer) << "Broadcast already active, skipping restart";
        return;
    }
    m_peers.clear();
    startTimers();
    m_beacon->startBurst();
    if (m_mode == CableMode)
        m_scanDelayTimer->start(ScanDelayAfterStart);
}

void NetworkManager::restartBroadcast()
{
    qCDebug(logPeer) << "Restarting broadcast with code:" << m_verifyCode;
    m_peers.clear();
    refreshAddresses();
    setupServer();
    if (!m_beacon->isActive())
        startTimers();
    m_beacon->startBurst();
    if (m_mode == CableMode) {
        m_cableHelper->stopDirectScan();
        m_scanDelayTimer->start(ScanDelayAfterRestart);
    }
}

void NetworkManager::stopDiscovery()
{
    m_beacon->stop();
    m_timeoutTimer->stop();
    m_scanDelayTimer->stop();
    m_cableHelper->stopDirectScan();
}

/// Looks in cable mode, in which they change under way, at this machine's addresses anew.
void NetworkManager::refreshAddresses()
{
    if (m_mode != CableMode)
        return;
    qCDebug(logPeer) << "Cable mode detected";
    m_cableHelper->enableCableMode();
}

void NetworkManager::startTimers()
{
    m_beacon->start();
    m_timeoutTimer->start();
}

QByteArray NetworkManager::discoveryFrame()
{
    qCDebug(logPeer) << "Sending broadcast... Role:" << roleName(m_role);
    m_cableHelper->watchLocalIPs(); // a peer may have the address by now that this machine had
    const QString name = getComputerName();
    const quint16 port = m_environment.tcpPort == TcpPort ? TcpPort : serverPort();
    const QString ip =
        m_mode == CableMode ? m_cableHelper->getCableIP() : bestLocalAddress(m_environment.adapters());
    const QJsonObject json{{u"id"_s, name},          {u"name"_s, name},         {u"ip"_s, ip},
                           {u"port"_s, port},        {u"os"_s, getOSVersion()}, {u"role"_s, m_role},
                           {u"code"_s, m_verifyCode}};
    return m_frames.buildPacket(Protocol::MessageType::Discovery, compactJson(json));
}

void NetworkManager::handleDatagram(const QByteArray &datagram, const QHostAddress &sender)
{
    if (datagram.size() < Protocol::HeaderSize)
        return;
    const QString senderIP = CableModeHelper::normalizeIP(sender.toString());
    if (m_cableHelper->isLocalIP(senderIP))
        return;
    const auto payload = discoveryPayloadOf(datagram);
    if (!payload)
        return;
    const auto pc = peerFrom(*payload, senderIP);
    if (!pc)
        return;
    qCDebug(logPeer) << "Discovered PC:" << pc->name << "IP:" << pc->ip << "SenderIP:" << pc->senderIp
                     << "Code:" << pc->verifyCode;
    if (const auto news = m_peers.hear(*pc, m_environment.now()))
        Q_EMIT pcDiscovered(*news);
}

/// The peer that a payload announces; nothing where it is none, or one of the own role.
std::optional<PCInfo> NetworkManager::peerFrom(const QByteArray &payload, const QString &senderIP) const
{
    const QJsonObject json = parseJsonObject(payload).value_or(QJsonObject());
    PCInfo pc;
    pc.id = boundedText(json["id"_L1]);
    pc.name = boundedText(json["name"_L1]);
    pc.ip = boundedText(json["ip"_L1]);
    pc.port = portFrom(json["port"_L1]);
    pc.os = boundedText(json["os"_L1]);
    pc.verifyCode = boundedText(json["code"_L1]);
    pc.senderIp = senderIP;
    pc.online = true;
    if (pc.id.isEmpty() || pc.name.isEmpty() || json["role"_L1].toInt() == m_role)
        return std::nullopt;
    return pc;
}

/// The slots of `pcLost` may empty the table or hear the peer again, so nothing is taken for granted.
void NetworkManager::checkPCTimeouts()
{
    m_peers.age(m_environment.now());
    while (const PeerTable::Row *row = m_peers.overdue()) {
        const quint64 key = row->key;
        const QString id = row->pc.id;
        qCDebug(logPeer) << "Removing PC:" << id;
        Q_EMIT pcLost(id);
        m_peers.giveUp(key);
    }
}

void NetworkManager::onDirectScanDeviceFound(const QString &ip)
{
    qCDebug(logPeer) << "[NetworkManager] Direct scan found device:" << ip;
    const auto news = m_peers.find(ip, tr("PC at %1").arg(ip), m_environment.tcpPort, m_environment.now());
    if (news)
        Q_EMIT pcDiscovered(*news);
}

void NetworkManager::rejectConnection(quint64 question)
{
    m_waitingRoom->refuse(question);
    applyPairing();
}

void NetworkManager::onNewConnection()
{
    while (QTcpSocket *socket = m_tcpServer->nextPendingConnection()) {
        auto *link = new Link(socket, Link::Shared::apart(&m_frames), this);
        qCDebug(logPeer) << "New TCP connection from:" << link->peerAddress();
        m_waitingRoom->admit(link);
    }
}

/// Two PCs that dial each other at once have both their users' yes: the Old PC's dial goes on, on both.
void NetworkManager::onAsked(const ConnectionQuestion &question)
{
    if (isDialling(question.ip)) {
        if (m_role == OldPC)
            m_deferredQuestion = question.number;
        else
            acceptConnection(question.number);
        return;
    }
    applyPairing();
    Q_EMIT connectionRequested(question.name, m_verifyCode);
}

bool NetworkManager::isBusyFor(const QString &ip) const
{
    return isAccepted() && m_isBusy && m_isBusy() && !m_link->isSilent() && m_link->peerIp() != ip;
}

bool NetworkManager::isDialling(const QString &ip) const
{
    return m_pairing.state() == Pairing::State::Dialling && m_dialledIP == ip;
}

/// The own dial is over: now the question counts that stood back for it.
void NetworkManager::askDeferred()
{
    if (const quint64 question = std::exchange(m_deferredQuestion, 0))
        m_waitingRoom->askAnew(question);
}

} // namespace Zandrove
