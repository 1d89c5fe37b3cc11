#include "peer/NetworkManager.h"

#include "peer/Beacon.h"
#include "peer/CableModeHelper.h"
#include "peer/Link.h"
#include "peer/Log.h"
#include "peer/WaitingRoom.h"
#include "support/Json.h"
#include "support/Utilities.h"

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

/// How long the end of the program waits for the last frames to leave.
constexpr auto FarewellTime = 200ms;
/// What a peer that has been dialled, and has not said yes, may keep waiting here in an unfinished frame.
constexpr qsizetype UnacceptedLimitBytes = 16 << 20;

} // namespace

NetworkManager::NetworkManager(QObject *parent, LinkEnvironment environment)
    : QObject(parent)
    , m_environment(std::move(environment))
    , m_cableHelper(new CableModeHelper(m_environment.adapters, this))
    , m_beacon(new Beacon(
          m_environment, [this] { return discoveryFrame(); }, this))
    , m_timeoutTimer(new QTimer(this))
    , m_scanDelayTimer(new QTimer(this))
    , m_peers([this](const QStringList &candidates) {
        return m_mode == CableMode ? m_cableHelper->cableFirst(candidates) : candidates;
    })
    , m_tcpServer(new QTcpServer(this))
    , m_connectionTimer(new QTimer(this))
    , m_waitingRoom(new WaitingRoom(
          m_environment.watchSecond, [this](const QString &ip) { return isBusyFor(ip); }, this))
    , m_pendingBytes(std::make_shared<std::atomic<qint64>>(0))
{
    setupDiscovery();
    m_connectionTimer->setSingleShot(true);
    connect(m_connectionTimer, &QTimer::timeout, this, &NetworkManager::onConnectionTimeout);
    connect(m_waitingRoom, &WaitingRoom::asked, this, &NetworkManager::onAsked);
    connect(m_waitingRoom, &WaitingRoom::ended, this, [this](quint64 question) {
        applyPairing();
        Q_EMIT questionEnded(question);
    });
    m_tcpServer->setProxy(QNetworkProxy::NoProxy);
    connect(m_tcpServer, &QTcpServer::newConnection, this, &NetworkManager::onNewConnection);
    setupServer();
}

/// Says goodbye, and lets what waits in the current link, and in those that are closing, still go out.
NetworkManager::~NetworkManager()
{
    stopDiscovery();
    if (m_link && !m_link->isDialling())
        sendCommand(Protocol::MessageType::Disconnect);
    m_waitingRoom->disconnect(this);
    m_waitingRoom->refuseAll();
    const QDeadlineTimer deadline(FarewellTime);
    const auto links = findChildren<Link *>(Qt::FindDirectChildrenOnly);
    for (Link *link : links)
        link->farewell(deadline);
}

bool NetworkManager::isConnected() const
{
    return m_pairing.isPaired();
}

PCInfo NetworkManager::connectedPC() const
{
    return m_pairing.peer();
}

bool NetworkManager::isAccepted() const
{
    return m_pairing.state() == Pairing::State::Accepted;
}

quint64 NetworkManager::acceptedLink() const
{
    return m_pairing.acceptedLink();
}

QList<ConnectionQuestion> NetworkManager::openQuestions() const
{
    return m_waitingRoom->questions();
}

quint16 NetworkManager::serverPort() const
{
    return m_tcpServer->serverPort();
}

std::shared_ptr<const std::atomic<qint64>> NetworkManager::pendingBytes() const
{
    return m_pendingBytes;
}

void NetworkManager::setReadGate(std::function<bool()> mayRead)
{
    m_readGate = std::move(mayRead);
}

void NetworkManager::resumeReading()
{
    if (m_link)
        m_link->resumeReading();
}

void NetworkManager::sendSessionEnd()
{
    qCDebug(logPeer) << "Sending SessionEnd to peer";
    sendCommand(Protocol::MessageType::SessionEnd);
}

void NetworkManager::sendData(const QByteArray &data)
{
    if (m_link && isConnected())
        m_link->sendRaw(data);
}

void NetworkManager::sendCommand(Protocol::MessageType type, const QByteArray &payload)
{
    if (m_link)
        m_link->send(type, payload);
}

void NetworkManager::disconnect()
{
    sendCommand(Protocol::MessageType::Disconnect);
    hangUp();
    askDeferred();
}

void NetworkManager::acceptConnection(quint64 question)
{
    qCDebug(logPeer) << "acceptConnection() called";
    const QList<ConnectionQuestion> open = openQuestions();
    const auto asker = std::find_if(open.cbegin(), open.cend(), [question](const ConnectionQuestion &each) {
        return question == 0 || each.number == question;
    });
    Link *const link = asker != open.cend() ? m_waitingRoom->take(asker->number) : nullptr;
    if (!link)
        return;
    giveWay();
    adopt(link);
    PCInfo peer;
    peer.id = peer.name = asker->name;
    peer.ip = peer.senderIp = asker->ip;
    peer.os = asker->os;
    m_pairing.admitted(peer);
    sendCommand(Protocol::MessageType::ConnectAccept);
    m_waitingRoom->refuseAll();
    pair();
}

/// Ends the current link for another one that this copy's user prefers.
void NetworkManager::giveWay()
{
    if (!isAccepted()) {
        drop();
        return;
    }
    sendCommand(Protocol::MessageType::Disconnect);
    Link *const link = release();
    endPair();
    link->hangUp();
    tellEnd(link);
    drop(); // whatever the slots have dialled meanwhile
}

/// Makes a link the current one; none is current when it is called.
Link *NetworkManager::adopt(Link *link)
{
    link->join({&m_frames, m_pendingBytes, [this] { return !m_readGate || m_readGate(); },
                m_environment.watchSecond});
    connect(link, &Link::opened, this, &NetworkManager::onLinkOpened);
    connect(link, &Link::frameReceived, this, &NetworkManager::onFrame);
    connect(link, &Link::closed, this, [this, link] { onLinkClosed(link); });
    connect(link, &Link::failed, this, &NetworkManager::onLinkFailed);
    connect(link, &Link::silent, this, &NetworkManager::linkSilent);
    connect(link, &Link::answers, this, &NetworkManager::linkAnswers);
    connect(link, &Link::lost, this, &NetworkManager::onLinkLost);
    m_link = link;
    return link;
}

/// Forgets the current link and its handshake, and returns it; null without one. Who was paired stays so.
Link *NetworkManager::release()
{
    Link *link = std::exchange(m_link, nullptr);
    m_pairing.ended();
    applyPairing();
    return link;
}

/// Ends the current link on the spot, unheard.
void NetworkManager::drop()
{
    if (Link *link = release())
        link->abandon();
}

/// Forgets the current link and the peer at once; what was sent is still delivered.
void NetworkManager::hangUp()
{
    Link *link = release();
    endPair();
    if (link)
        link->hangUp();
}

void NetworkManager::endPair()
{
    m_pairing.forgetPeer();
    m_connectionTimer->stop();
    if (m_link)
        m_link->stopHeartbeat();
}

void NetworkManager::tellEnd(Link *link)
{
    if (link->markEndTold())
        Q_EMIT disconnected();
}

/// Goes on from the handshake's yes.
void NetworkManager::pair()
{
    m_connectionTimer->stop();
    applyPairing();
    m_link->startHeartbeat();
    Q_EMIT connected();
}

/// What hangs on the state of the handshake besides itself.
void NetworkManager::applyPairing()
{
    m_cableHelper->setHandshakeOpen(m_pairing.state() == Pairing::State::Dialling ||
                                    m_waitingRoom->isOpen(0));
    if (m_link)
        m_link->setFrameLimit(isAccepted() ? FrameReader::NoLimit : UnacceptedLimitBytes);
}

void NetworkManager::onLinkOpened()
{
    m_connectionTimer->stop();
    m_dialPlan.reached();
    const QJsonObject json{{u"name"_s, getComputerName()}, {u"os"_s, getOSVersion()}};
    sendCommand(Protocol::MessageType::ConnectRequest, compactJson(json));
    Q_EMIT waitingForAnswer(m_pairing.target().name);
}

void NetworkManager::onLinkClosed(Link *link)
{
    if (link == m_link) {
        const bool broke = isAccepted();
        drop();
        endPair();
        if (broke)
            Q_EMIT linkBroke();
    }
    if (!m_link)
        tellEnd(link);
}

void NetworkManager::onLinkFailed(QAbstractSocket::SocketError error, const QString &reason)
{
    // A peer that closes an answered link ends it by `disconnected`, which comes next. A peer that closes
    // instead of answering has failed the dial.
    if (error == QAbstractSocket::RemoteHostClosedError && m_pairing.state() != Pairing::State::Dialling)
        return;
    m_connectionTimer->stop();
    if (dialNext())
        return;
    const bool wasAccepted = isAccepted();
    Link *const link = release();
    link->abandon();
    if (wasAccepted) {
        endPair();
        Q_EMIT linkBroke();
    }
    Q_EMIT connectionFailed(reason.isEmpty() ? tr("Unknown error") : reason);
    if (wasAccepted)
        tellEnd(link);
    askDeferred();
}

void NetworkManager::onLinkLost()
{
    qCDebug(logPeer) << "Nothing more comes from" << connectedPC().name;
    Link *const link = release();
    link->abandon();
    endPair();
    Q_EMIT linkBroke();
    tellEnd(link);
}

void NetworkManager::onFrame(Protocol::MessageType type, const QByteArray &payload)
{
    switch (type) {
    case Protocol::MessageType::ConnectRequest:
        return; // it asks whoever has come in, and that one is no longer asked
    case Protocol::MessageType::ConnectAccept:
        if (m_pairing.toldYes(m_link->peerIp())) {
            m_waitingRoom->refuseAll();
            pair();
        }
        return;
    case Protocol::MessageType::ConnectReject:
        onConnectReject();
        return;
    case Protocol::MessageType::Disconnect:
        m_pairing.peerLeft();
        applyPairing();
        endPair();
        tellEnd(m_link);
        return;
    case Protocol::MessageType::Heartbeat:
        if (payload.isEmpty())
            return;
        [[fallthrough]];
    default:
        Q_EMIT commandReceived(type, payload);
    }
}

void NetworkManager::onConnectReject()
{
    if (!m_pairing.toldNo())
        return;
    m_connectionTimer->stop();
    applyPairing();
    Q_EMIT connectionFailed(tr("Connection rejected"));
    askDeferred();
}

/// The dial that timed out may have been displaced in the meantime: then only its user hears of it.
void NetworkManager::onConnectionTimeout()
{
    qCDebug(logPeer) << "Connection timeout";
    if (dialNext())
        return;
    if (m_link && m_link->isDialling())
        drop();
    Q_EMIT connectionTimeout();
    Q_EMIT connectionFailed(tr("Connection timeout"));
    askDeferred();
}

} // namespace Zandrove
