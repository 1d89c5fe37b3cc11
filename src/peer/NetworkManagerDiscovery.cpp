#include "peer/Log.h"
#include "peer/NetworkManager.h"

#include "peer/CableModeHelper.h"
#include "peer/PeerText.h"
#include "support/Json.h"
#include "support/Utilities.h"

#include <QJsonObject>
#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QTimer>
#include <QUdpSocket>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto BroadcastInterval = 500ms;
constexpr auto AgeingInterval = 5000ms;
/// A peer not heard for longer than this misses a check.
constexpr qint64 SilenceAllowedMs = 15000;
constexpr int MissedChecksToLose = 3;
constexpr int BurstCount = 5;
constexpr auto BurstInterval = 50ms;
constexpr auto ScanDelayAfterStart = 500ms;
constexpr auto ScanDelayAfterRestart = 100ms;
/// Datagrams are free to send, entries are not free to keep.
constexpr qsizetype MostPeers = 512;
/// Datagrams taken before the event loop gets its turn again.
constexpr int DatagramsPerTurn = 256;

quint16 portFrom(const QJsonValue &value)
{
    const int port = value.toInt();
    return port > 0 && port <= std::numeric_limits<quint16>::max() ? quint16(port) : quint16(0);
}

/// A peer that only the sweep has found goes by its address until its first datagram.
bool isScanDiscovered(const PCInfo &pc)
{
    return pc.id == pc.ip;
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

/// Where one address of an adapter makes a broadcast go.
QList<QHostAddress> broadcastTargets(const AdapterAddress &entry)
{
    QList<QHostAddress> targets;
    if (!entry.broadcast.isNull())
        targets.append(entry.broadcast);
    const QString ip = entry.ip.toString();
    if (ip.startsWith("169.254."_L1))
        targets.append(QHostAddress(u"169.254.255.255"_s));
    const QStringList octets = ip.split(u'.');
    if (octets.size() == 4)
        targets.append(QHostAddress(octets.first(3).join(u'.') + ".255"_L1));
    return targets;
}

} // namespace

void NetworkManager::setupDiscovery()
{
    m_broadcastTimer->setInterval(BroadcastInterval);
    m_timeoutTimer->setInterval(AgeingInterval);
    m_burstTimer->setInterval(BurstInterval);
    m_burstTimer->setSingleShot(true);
    m_scanDelayTimer->setSingleShot(true);
    connect(m_broadcastTimer, &QTimer::timeout, this, &NetworkManager::sendBroadcast);
    connect(m_timeoutTimer, &QTimer::timeout, this, &NetworkManager::checkPCTimeouts);
    connect(m_burstTimer, &QTimer::timeout, this, &NetworkManager::sendBurst);
    connect(m_scanDelayTimer, &QTimer::timeout, this, [this] {
        setupServer();
        m_cableHelper->startDirectScan();
    });

    m_cableHelper->setTargetPort(m_environment.tcpPort);
    connect(m_cableHelper, &CableModeHelper::scanStarted, this, &NetworkManager::directScanStarted);
    connect(m_cableHelper, &CableModeHelper::scanProgress, this, &NetworkManager::directScanProgress);
    connect(m_cableHelper, &CableModeHelper::scanFinished, this, &NetworkManager::directScanFinished);
    connect(m_cableHelper, &CableModeHelper::deviceFound, this, &NetworkManager::onDirectScanDeviceFound);

    m_udpSocket->setProxy(QNetworkProxy::NoProxy);
    connect(m_udpSocket, &QUdpSocket::readyRead, this, &NetworkManager::onBroadcastReceived);
    m_udpSocket->bind(QHostAddress::Any, m_environment.udpPort,
                      QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
}

void NetworkManager::startDiscovery()
{
    if (m_mode == CableMode) {
        qCDebug(logPeer) << "Cable mode detected";
        m_cableHelper->enableCableMode();
    }
    setupServer();
    if (m_broadcastTimer->isActive()) {
        qCDebug(logPeer) << "Broadcast already active, skipping restart";
        return;
    }
    clearTable();
    m_broadcastTimer->start();
    m_timeoutTimer->start();
    startBurst();
    if (m_mode == CableMode)
        m_scanDelayTimer->start(ScanDelayAfterStart);
}

void NetworkManager::restartBroadcast()
{
    qCDebug(logPeer) << "Restarting broadcast with code:" << m_verifyCode;
    clearTable();
    if (m_mode == CableMode) {
        qCDebug(logPeer) << "Cable mode detected";
        m_cableHelper->enableCableMode();
    }
    setupServer();
    if (!m_broadcastTimer->isActive()) {
        m_broadcastTimer->start();
        m_timeoutTimer->start();
    }
    startBurst();
    if (m_mode == CableMode) {
        m_cableHelper->stopDirectScan();
        m_scanDelayTimer->start(ScanDelayAfterRestart);
    }
}

void NetworkManager::stopDiscovery()
{
    m_broadcastTimer->stop();
    m_timeoutTimer->stop();
    m_burstTimer->stop();
    m_scanDelayTimer->stop();
    m_cableHelper->stopDirectScan();
}

void NetworkManager::clearTable()
{
    ++m_tableGeneration;
    m_discoveredPCs.clear();
    m_lastSeen.clear();
    m_missedChecks.clear();
}

void NetworkManager::startBurst()
{
    m_burstLeft = BurstCount;
    sendBurst();
}

void NetworkManager::sendBurst()
{
    sendBroadcast();
    if (--m_burstLeft > 0)
        m_burstTimer->start();
}

void NetworkManager::sendBroadcast()
{
    qCDebug(logPeer) << "Sending broadcast... Role:" << m_role;
    const QByteArray frame = buildPacket(Protocol::MessageType::Discovery, discoveryPayload());
    sendDatagram(frame, QHostAddress(QHostAddress::Broadcast));
    const QList<NetworkAdapter> adapters = m_environment.adapters();
    for (const NetworkAdapter &adapter : adapters) {
        if (!adapter.up || !adapter.canBroadcast || adapter.loopback)
            continue;
        for (const AdapterAddress &entry : adapter.addresses) {
            if (entry.ip.protocol() != QHostAddress::IPv4Protocol)
                continue;
            for (const QHostAddress &target : broadcastTargets(entry))
                sendDatagram(frame, target);
        }
    }
}

void NetworkManager::sendDatagram(const QByteArray &datagram, const QHostAddress &target)
{
    if (m_environment.sendDatagram)
        m_environment.sendDatagram(datagram, target, m_environment.udpPort);
    else if (m_environment.udpPort != 0)
        m_udpSocket->writeDatagram(datagram, target, m_environment.udpPort);
}

QByteArray NetworkManager::discoveryPayload() const
{
    const QString name = getComputerName();
    const quint16 port = m_environment.tcpPort == TcpPort ? TcpPort : serverPort();
    const QString ip =
        m_mode == CableMode ? m_cableHelper->getCableIP() : bestLocalAddress(m_environment.adapters());
    const QJsonObject json{{u"id"_s, name},          {u"name"_s, name},         {u"ip"_s, ip},
                           {u"port"_s, port},        {u"os"_s, getOSVersion()}, {u"role"_s, m_role},
                           {u"code"_s, m_verifyCode}};
    return compactJson(json);
}

void NetworkManager::onBroadcastReceived()
{
    for (int i = 0; i < DatagramsPerTurn && m_udpSocket->hasPendingDatagrams(); ++i) {
        const QNetworkDatagram datagram = m_udpSocket->receiveDatagram();
        handleDatagram(datagram.data(), datagram.senderAddress());
    }
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
    addOrUpdate(*pc);
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
    pc.lastSeen = m_environment.now();
    if (pc.id.isEmpty() || pc.name.isEmpty() || json["role"_L1].toInt() == m_role)
        return std::nullopt;
    return pc;
}

void NetworkManager::addOrUpdate(const PCInfo &pc)
{
    const auto known =
        std::find_if(m_discoveredPCs.begin(), m_discoveredPCs.end(), [&pc](const PCInfo &entry) {
            return entry.id == pc.id || (!pc.ip.isEmpty() && entry.ip == pc.ip);
        });
    if (known != m_discoveredPCs.end())
        update(known - m_discoveredPCs.begin(), pc);
    else if (append(pc))
        Q_EMIT pcDiscovered(pc);
}

void NetworkManager::update(qsizetype index, const PCInfo &pc)
{
    const PCInfo former = m_discoveredPCs.at(index);
    PCInfo upgraded = pc;
    upgraded.senderIp = former.senderIp;
    m_discoveredPCs[index] = upgraded;
    if (former.id != pc.id)
        giveUpId(former.id);
    m_lastSeen[pc.id] = pc.lastSeen;
    m_missedChecks[pc.id] = 0;
    if (!isScanDiscovered(former))
        return;
    qCDebug(logPeer) << "Updated scan-discovered device:" << upgraded.name;
    Q_EMIT pcDiscovered(upgraded);
}

/// False, and nothing done, when the table is full.
bool NetworkManager::append(const PCInfo &pc)
{
    if (m_discoveredPCs.size() >= MostPeers)
        return false;
    m_discoveredPCs.append(pc);
    m_lastSeen[pc.id] = pc.lastSeen;
    m_missedChecks[pc.id] = 0;
    return true;
}

void NetworkManager::forgetTimes(const QString &id)
{
    m_lastSeen.remove(id);
    m_missedChecks.remove(id);
}

/// An entry goes by another id from now on: what is known of the old one goes, unless a second entry bears
/// it.
void NetworkManager::giveUpId(const QString &id)
{
    const bool borne = std::any_of(m_discoveredPCs.cbegin(), m_discoveredPCs.cend(),
                                   [&id](const PCInfo &pc) { return pc.id == id; });
    if (!borne)
        forgetTimes(id);
}

void NetworkManager::checkPCTimeouts()
{
    const QDateTime now = m_environment.now();
    for (qsizetype i = m_discoveredPCs.size() - 1; i >= 0; --i) {
        if (i >= m_discoveredPCs.size())
            continue;
        const QString id = m_discoveredPCs.at(i).id;
        const auto seen = m_lastSeen.constFind(id);
        if (seen == m_lastSeen.cend())
            continue;
        if (seen->msecsTo(now) <= SilenceAllowedMs) {
            m_missedChecks[id] = 0;
        } else if (++m_missedChecks[id] >= MissedChecksToLose) {
            qCDebug(logPeer) << "Removing PC:" << id;
            const int generation = m_tableGeneration;
            Q_EMIT pcLost(id);
            if (generation == m_tableGeneration)
                removeLost(id);
        }
    }
}

/// The slots of `pcLost` may have emptied the table or heard the peer again, so nothing is taken for granted.
void NetworkManager::removeLost(const QString &id)
{
    m_discoveredPCs.removeIf([&id](const PCInfo &pc) { return pc.id == id; });
    forgetTimes(id);
}

void NetworkManager::onDirectScanDeviceFound(const QString &ip)
{
    qCDebug(logPeer) << "[NetworkManager] Direct scan found device:" << ip;
    const auto known = std::find_if(m_discoveredPCs.cbegin(), m_discoveredPCs.cend(),
                                    [&ip](const PCInfo &pc) { return pc.ip == ip || pc.senderIp == ip; });
    if (known != m_discoveredPCs.cend()) {
        qCDebug(logPeer) << "  Device already in list:" << known->name;
        return;
    }
    PCInfo pc;
    pc.id = ip;
    pc.name = tr("PC at %1").arg(ip);
    pc.ip = ip;
    pc.senderIp = ip;
    pc.port = m_environment.tcpPort;
    pc.online = true;
    pc.lastSeen = m_environment.now();
    if (!append(pc))
        return;
    qCDebug(logPeer) << "  Added device from scan:" << ip;
    Q_EMIT pcDiscovered(pc);
}

} // namespace Zandrove
