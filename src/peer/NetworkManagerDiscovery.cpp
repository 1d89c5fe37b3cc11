#include "peer/NetworkManager.h"

#include "peer/AddressRules.h"
#include "peer/Beacon.h"
#include "peer/CableModeHelper.h"
#include "peer/Link.h"
#include "peer/Log.h"
#include "peer/PeerText.h"
#include "peer/WaitingRoom.h"
#include "platform/PortHolders.h"
#include "support/Json.h"
#include "support/PeerChoice.h"
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
/// Until TCP is up, for all addresses of a peer together.
constexpr auto ConnectTimeout = 5000ms;
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

QString programAt(Platform::Transport transport, quint16 port)
{
    const QList<Platform::PortHolder> holders = Platform::portHolders(transport, port);
    return holders.isEmpty() ? QString() : holders.first().program;
}

PCInfo peerFrom(const QJsonObject &json, const QString &senderIP)
{
    PCInfo pc;
    pc.id = boundedText(json["id"_L1]);
    pc.name = boundedText(json["name"_L1]);
    pc.ip = boundedText(json["ip"_L1]);
    pc.port = portFrom(json["port"_L1]);
    pc.os = boundedText(json["os"_L1]);
    pc.verifyCode = boundedText(json["code"_L1]);
    pc.senderIp = senderIP;
    pc.online = true;
    return pc;
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

/// What stands in the way of being found, or of hearing others, is told each time that the user begins anew.
void NetworkManager::openPorts()
{
    setupServer();
    const quint16 tcpPort = m_environment.tcpPort;
    if (!m_tcpServer->isListening())
        Q_EMIT portTaken(tcpPort, programAt(Platform::Transport::Tcp, tcpPort));
    const quint16 udpPort = m_environment.udpPort;
    if (!m_beacon->bind())
        Q_EMIT portTaken(udpPort, programAt(Platform::Transport::Udp, udpPort));
}

void NetworkManager::startDiscovery()
{
    refreshAddresses();
    openPorts();
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
    openPorts();
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
    const QJsonObject json = parseJsonObject(*payload).value_or(QJsonObject());
    const PCInfo pc = peerFrom(json, senderIP);
    if (pc.id.isEmpty() || pc.name.isEmpty())
        return;
    const QJsonValue role = json["role"_L1];
    if (role.toInt() == m_role) {
        if (role.isDouble() && m_peers.hearSameRole(pc.name, m_environment.now()))
            Q_EMIT sameRolePeer(pc.name);
        return;
    }
    qCDebug(logPeer) << "Discovered PC:" << pc.name << "IP:" << pc.ip << "SenderIP:" << pc.senderIp
                     << "Code:" << pc.verifyCode;
    const auto news = m_peers.hear(pc, m_environment.now());
    tellDisplaced();
    if (news)
        Q_EMIT pcDiscovered(*news);
}

void NetworkManager::tellDisplaced()
{
    const QList<PCInfo> displaced = m_peers.takeDisplaced();
    for (const PCInfo &pc : displaced)
        Q_EMIT pcLost(pc.id, pc.key);
}

/// The slots of `pcLost` may empty the table or hear the peer again, so nothing is taken for granted.
void NetworkManager::checkPCTimeouts()
{
    m_peers.age(m_environment.now());
    while (const PeerTable::Row *row = m_peers.overdue()) {
        const quint64 key = row->pc.key;
        const QString id = row->pc.id;
        qCDebug(logPeer) << "Removing PC:" << id;
        Q_EMIT pcLost(id, key);
        m_peers.giveUp(key);
    }
}

void NetworkManager::onDirectScanDeviceFound(const QString &ip)
{
    qCDebug(logPeer) << "[NetworkManager] Direct scan found device:" << ip;
    const auto news = m_peers.find(ip, tr("PC at %1").arg(ip), m_environment.tcpPort, m_environment.now());
    tellDisplaced();
    if (news)
        Q_EMIT pcDiscovered(*news);
}

/// The addresses of a row in the order in which they are dialled. One that the peer merely announces may be
/// that of an adapter which this PC, or any other one, has as well.
QStringList NetworkManager::dialAddresses(const PeerTable::Row &row)
{
    m_cableHelper->refreshLocalIPs();
    QStringList addresses = m_peers.addressesOf(row);
    const QHostAddress announced(row.announcedIp);
    if (isIPv4(announced) && !announced.isLoopback() && !addresses.contains(row.announcedIp))
        addresses.append(row.announcedIp);
    addresses.removeIf([this](const QString &ip) { return m_cableHelper->isLocalIP(ip); });
    return addresses;
}

void NetworkManager::connectToPC(const QString &pcId, quint64 key)
{
    qCDebug(logPeer) << "=== connectToPC() ===";
    qCDebug(logPeer) << "Target:" << pcId;
    const PeerTable::Row *row = m_peers.rowOf(key, pcId);
    const QStringList addresses = row ? dialAddresses(*row) : QStringList();
    if (addresses.isEmpty()) {
        Q_EMIT connectionFailed(tr("PC not found"));
        return;
    }
    const PCInfo target = row->pc;
    m_peers.noteDialled(target.key);
    dial(target, addresses);
}

void NetworkManager::connectToAddress(const QString &address)
{
    PCInfo target;
    target.id = target.name = target.ip = target.senderIp = address;
    target.port = m_environment.tcpPort;
    if (const PeerTable::Row *row = m_peers.rowAt(address))
        target = row->pc;
    dial(target, {address});
}

void NetworkManager::connectByVerifyCode(const QString &code)
{
    const QList<PCInfo> targets = peersWithCode(m_peers.peers(), code);
    if (targets.isEmpty())
        Q_EMIT connectionFailed(tr("No device found with verification code: %1").arg(code));
    else
        connectToPC(targets.first().id, targets.first().key);
}

void NetworkManager::dial(const PCInfo &target, const QStringList &addresses)
{
    if (isAccepted())
        endPair(); // a live link is given up for the new one
    drop();
    m_pairing.dialled(target);
    m_dialPlan = DialPlan(addresses);
    (void)dialNext();
}

/// Dials the next address of the peer that is being dialled. False, and nothing done, where there is none.
bool NetworkManager::dialNext()
{
    if (m_pairing.state() != Pairing::State::Dialling || m_dialPlan.isThrough())
        return false;
    const PCInfo target = m_pairing.target();
    drop();
    m_pairing.dialled(target);
    Link *link = adopt(new Link(new QTcpSocket, Link::Shared::apart(&m_frames), this));
    applyPairing();
    m_connectionTimer->start(m_dialPlan.timeForEach(ConnectTimeout));
    const QString ip = m_dialPlan.takeNext();
    qCDebug(logPeer) << "Chosen IP:" << ip;
    link->dial(ip, target.port);
    return true;
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
    return m_pairing.state() == Pairing::State::Dialling && m_dialPlan.aimsAt(ip);
}

/// The own dial is over: now the question counts that stood back for it.
void NetworkManager::askDeferred()
{
    if (const quint64 question = std::exchange(m_deferredQuestion, 0))
        m_waitingRoom->askAnew(question);
}

} // namespace Zandrove
