#include "peer/NetworkManager.h"

#include "peer/CableModeHelper.h"
#include "peer/Log.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUdpSocket>

#include <utility>

namespace Zandrove {

namespace {

constexpr qint64 MiB = 1 << 20;
/// Above this much waiting in the socket each further frame leaves a log line.
constexpr qint64 HighBufferBytes = 16 * MiB;
/// What a peer that nobody has said yes to may keep waiting here in an unfinished frame.
constexpr qsizetype UnacceptedLimitBytes = 16 * MiB;

} // namespace

NetworkManager::NetworkManager(QObject *parent, LinkEnvironment environment)
    : QObject(parent)
    , m_environment(std::move(environment))
    , m_cableHelper(new CableModeHelper(m_environment.adapters, this))
    , m_udpSocket(new QUdpSocket(this))
    , m_broadcastTimer(new QTimer(this))
    , m_timeoutTimer(new QTimer(this))
    , m_connectionTimer(new QTimer(this))
    , m_tcpServer(new QTcpServer(this))
    , m_heartbeatTimer(new QTimer(this))
    , m_burstTimer(new QTimer(this))
    , m_scanDelayTimer(new QTimer(this))
    , m_pendingBytes(std::make_shared<std::atomic<qint64>>(0))
{
    setupDiscovery();
    setupConnection();
    setupServer();
}

NetworkManager::~NetworkManager()
{
    stopDiscovery();
    closeAllSockets();
}

void NetworkManager::setRole(int role)
{
    m_role = role;
    m_cableHelper->setRole(role);
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
    return m_discoveredPCs;
}

bool NetworkManager::isConnected() const
{
    return m_connected;
}

PCInfo NetworkManager::connectedPC() const
{
    return m_connectedPC;
}

bool NetworkManager::isAccepted() const
{
    return m_accepted;
}

quint64 NetworkManager::acceptedLink() const
{
    return m_accepted ? m_linkSerial : 0;
}

quint16 NetworkManager::serverPort() const
{
    return m_tcpServer->serverPort();
}

quint64 NetworkManager::openQuestion() const
{
    return m_questionOpen ? m_questionSerial : 0;
}

std::shared_ptr<const std::atomic<qint64>> NetworkManager::pendingBytes() const
{
    return m_pendingBytes;
}

void NetworkManager::setReadGate(std::function<bool()> mayRead)
{
    m_readGate = std::move(mayRead);
}

void NetworkManager::sendSessionEnd()
{
    qCDebug(logPeer) << "Sending SessionEnd to peer";
    sendCommand(Protocol::MessageType::SessionEnd);
}

void NetworkManager::sendData(const QByteArray &data)
{
    if (m_connected && isSocketOpen())
        write(data);
}

void NetworkManager::sendCommand(Protocol::MessageType type)
{
    sendCommand(type, {});
}

void NetworkManager::sendCommand(Protocol::MessageType type, const QByteArray &payload)
{
    if (!isSocketOpen())
        return;
    const qint64 waiting = m_tcpSocket->bytesToWrite();
    if (waiting > HighBufferBytes)
        qCDebug(logPeer) << "[NetworkManager] High buffer:" << waiting << "bytes";
    write(buildPacket(type, payload));
}

void NetworkManager::resumeReading()
{
    if (std::exchange(m_readQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_readQueued = false;
            if (m_tcpSocket)
                onReadyRead(m_tcpSocket);
        },
        Qt::QueuedConnection);
}

QByteArray NetworkManager::buildPacket(Protocol::MessageType type, const QByteArray &payload)
{
    return Protocol::buildFrame(type, payload, ++m_sequence);
}

/// Whether there is a socket that bytes can be written to, be it only for later, while it connects.
bool NetworkManager::isSocketOpen() const
{
    return m_tcpSocket && m_tcpSocket->state() != QAbstractSocket::UnconnectedState;
}

void NetworkManager::write(const QByteArray &bytes)
{
    m_tcpSocket->write(bytes);
    notePendingBytes();
}

void NetworkManager::notePendingBytes()
{
    m_pendingBytes->store(isSocketOpen() ? m_tcpSocket->bytesToWrite() : 0);
}

void NetworkManager::onReadyRead(QTcpSocket *socket)
{
    const SocketHandling handling(m_handledSockets, socket);
    readFrames(socket, true);
}

void NetworkManager::readFrames(QTcpSocket *socket, bool mindGate)
{
    while (socket == m_tcpSocket && !m_refused && (!mindGate || !m_readGate || m_readGate())) {
        const auto frame =
            m_receiveBuffer.read(*socket, m_accepted ? FrameReader::NoLimit : UnacceptedLimitBytes);
        if (!frame)
            return;
        dispatch(*frame);
    }
}

void NetworkManager::dispatch(const Frame &frame)
{
    switch (frame.type) {
    case Protocol::MessageType::ConnectRequest:
        onConnectRequest(frame.payload);
        return;
    case Protocol::MessageType::ConnectAccept:
        onConnectAccept();
        return;
    case Protocol::MessageType::ConnectReject:
        onConnectReject();
        return;
    case Protocol::MessageType::Disconnect:
        endLink();
        return;
    case Protocol::MessageType::Heartbeat:
        return;
    default:
        Q_EMIT commandReceived(frame.type, frame.payload);
    }
}

} // namespace Zandrove
