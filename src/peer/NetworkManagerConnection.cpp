#include "peer/Log.h"
#include "peer/NetworkManager.h"

#include "peer/CableModeHelper.h"
#include "peer/PeerText.h"
#include "platform/SocketShutdown.h"
#include "support/Json.h"
#include "support/Utilities.h"

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto ConnectTimeout = 5000ms;
constexpr auto HeartbeatInterval = 5000ms;
constexpr unsigned long ListenRetryMs = 100;
/// How long a socket that this copy closes may stand still before it is dropped, and how long it may take at
/// all.
constexpr auto ClosingTime = 2000ms;
constexpr auto LongestClosingTime = 60000ms;
/// How long the end of the program waits for the last frames to leave.
constexpr auto FarewellTime = 200ms;
/// The two sides differ on purpose: the one that listens is mostly the one that receives.
constexpr int DialledBufferBytes = 2 * 1024 * 1024;
constexpr int AcceptedBufferBytes = 16 * 1024 * 1024;
/// What a socket takes from the system while the read gate is closed.
constexpr qint64 ReadBufferBytes = 8 << 20;

void setBufferSizes(QTcpSocket *socket, int bytes)
{
    socket->setSocketOption(QAbstractSocket::SendBufferSizeSocketOption, bytes);
    socket->setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, bytes);
}

void setDialledOptions(QTcpSocket *socket)
{
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    setBufferSizes(socket, DialledBufferBytes);
}

bool isConnecting(const QTcpSocket *socket)
{
    return socket->state() == QAbstractSocket::HostLookupState ||
           socket->state() == QAbstractSocket::ConnectingState;
}

} // namespace

void NetworkManager::setupConnection()
{
    m_connectionTimer->setSingleShot(true);
    m_connectionTimer->setInterval(ConnectTimeout);
    m_heartbeatTimer->setInterval(HeartbeatInterval);
    connect(m_connectionTimer, &QTimer::timeout, this, &NetworkManager::onConnectionTimeout);
    connect(m_heartbeatTimer, &QTimer::timeout, this, &NetworkManager::sendHeartbeat);
    m_tcpServer->setProxy(QNetworkProxy::NoProxy);
    connect(m_tcpServer, &QTcpServer::newConnection, this, &NetworkManager::onNewConnection);
}

void NetworkManager::setupServer()
{
    const bool listening = m_tcpServer->isListening();
    qCDebug(logPeer) << "setupServer() called, currently listening:" << listening;
    if (listening)
        return;
    bool result = m_tcpServer->listen(QHostAddress::Any, m_environment.tcpPort);
    qCDebug(logPeer) << "TCP Server listen result:" << result << "Port:" << m_environment.tcpPort;
    if (result)
        return;
    qCDebug(logPeer) << "ERROR:" << m_tcpServer->errorString();
    m_tcpServer->close();
    QThread::msleep(ListenRetryMs);
    result = m_tcpServer->listen(QHostAddress::Any, m_environment.tcpPort);
    qCDebug(logPeer) << "Retry result:" << result;
}

void NetworkManager::connectToPC(const QString &pcId)
{
    qCDebug(logPeer) << "=== connectToPC() ===";
    qCDebug(logPeer) << "Target:" << pcId;
    const auto target = std::find_if(m_discoveredPCs.cbegin(), m_discoveredPCs.cend(),
                                     [&pcId](const PCInfo &pc) { return pc.id == pcId; });
    m_pendingPC = target != m_discoveredPCs.cend() ? *target : PCInfo();
    if (m_pendingPC.id.isEmpty()) {
        Q_EMIT connectionFailed(tr("PC not found"));
        return;
    }
    const QString ip = m_cableHelper->chooseBestIP(m_pendingPC.ip, m_pendingPC.senderIp);
    qCDebug(logPeer) << "Payload IP:" << m_pendingPC.ip;
    qCDebug(logPeer) << "Sender IP:" << m_pendingPC.senderIp;
    qCDebug(logPeer) << "Chosen IP:" << ip;
    if (m_accepted)
        resetPairing(); // a live link is given up for the new one
    dropSocket();
    auto *socket = new QTcpSocket(this);
    setDialledOptions(socket);
    connect(socket, &QTcpSocket::connected, this, [this, socket] { onSocketConnected(socket); });
    adopt(socket, true);
    m_connectionTimer->start();
    socket->connectToHost(ip, m_pendingPC.port, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
}

void NetworkManager::connectByVerifyCode(const QString &code)
{
    const auto target = std::find_if(m_discoveredPCs.cbegin(), m_discoveredPCs.cend(),
                                     [&code](const PCInfo &pc) { return pc.verifyCode == code; });
    if (target == m_discoveredPCs.cend()) {
        Q_EMIT connectionFailed(tr("No device found with verification code: %1").arg(code));
        return;
    }
    const QString id = target->id;
    connectToPC(id);
}

void NetworkManager::disconnect()
{
    sendCommand(Protocol::MessageType::Disconnect);
    QTcpSocket *socket = releaseSocket();
    resetPairing();
    if (socket)
        hangUp(socket);
}

void NetworkManager::acceptConnection(quint64 question)
{
    qCDebug(logPeer) << "acceptConnection() called";
    if (!m_tcpSocket || m_tcpSocket->state() != QAbstractSocket::ConnectedState || !mayAnswer(question))
        return;
    sendCommand(Protocol::MessageType::ConnectAccept);
    completePairing();
}

void NetworkManager::rejectConnection(quint64 question)
{
    if (!m_tcpSocket || !mayAnswer(question))
        return;
    sendCommand(Protocol::MessageType::ConnectReject);
    setHandshake(false, false);
    m_accepted = false;
    m_refused = true;
    m_receiveBuffer.clear();
    hangUp(m_tcpSocket);
}

void NetworkManager::onNewConnection()
{
    while (QTcpSocket *socket = m_tcpServer->nextPendingConnection()) {
        dropSocket();
        socket->setParent(this);
        setBufferSizes(socket, AcceptedBufferBytes);
        adopt(socket, false);
        qCDebug(logPeer) << "New TCP connection from:" << socket->peerAddress();
    }
}

/// Makes a fresh socket the current one; none is current when it is called.
void NetworkManager::adopt(QTcpSocket *socket, bool dialled)
{
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setReadBufferSize(ReadBufferBytes);
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] { onSocketDisconnected(socket); });
    connect(socket, &QTcpSocket::errorOccurred, this,
            [this, socket](QAbstractSocket::SocketError error) { onSocketError(socket, error); });
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
    connect(socket, &QTcpSocket::bytesWritten, this, &NetworkManager::notePendingBytes);
    m_tcpSocket = socket;
    m_refused = false;
    setHandshake(dialled, false);
}

/// Forgets the current socket and all that hangs on it, and returns it; null without one.
QTcpSocket *NetworkManager::releaseSocket()
{
    QTcpSocket *socket = std::exchange(m_tcpSocket, nullptr);
    m_receiveBuffer.clear();
    m_accepted = false;
    setHandshake(false, false);
    notePendingBytes();
    return socket;
}

/// Ends the current socket on the spot: the peer gets nothing of what waits, and nobody here hears of it.
void NetworkManager::dropSocket()
{
    QTcpSocket *socket = releaseSocket();
    if (!socket)
        return;
    QObject::disconnect(socket, nullptr, this, nullptr);
    socket->abort();
    m_handledSockets.discard(socket);
}

/// Closes a socket so that what waits in it still reaches the peer, if that can be done soon.
void NetworkManager::hangUp(QTcpSocket *socket)
{
    auto *patience = new QTimer(socket);
    patience->setSingleShot(true);
    patience->start(ClosingTime);
    connect(patience, &QTimer::timeout, this, [this, socket] {
        socket->abort();
        if (socket != m_tcpSocket)
            m_handledSockets.discard(socket);
    });
    if (isConnecting(socket)) {
        socket->abort();
        notePendingBytes();
        return;
    }

    // Closing while the peer still sends would make the system throw away what has not left yet: only the
    // sending direction ends here, the peer's own end closes the socket.
    socket->setReadBufferSize(0);
    const auto discard = [socket] { socket->readAll(); };
    connect(socket, &QTcpSocket::readyRead, socket, discard);
    discard();
    const auto endWhenSent = [socket, patience, latest = QDeadlineTimer(LongestClosingTime)] {
        if (socket->bytesToWrite() == 0)
            Platform::endSending(socket->socketDescriptor());
        else if (!latest.hasExpired())
            patience->start(ClosingTime);
    };
    connect(socket, &QTcpSocket::bytesWritten, socket, endWhenSent);
    socket->flush();
    endWhenSent();
}

/// The end of this object: says goodbye, and lets what waits in the current socket, and in those that
/// disconnect() left closing, still go out.
void NetworkManager::closeAllSockets()
{
    if (m_tcpSocket && !isConnecting(m_tcpSocket))
        sendCommand(Protocol::MessageType::Disconnect);
    const QDeadlineTimer deadline(FarewellTime);
    const auto sockets = findChildren<QTcpSocket *>(Qt::FindDirectChildrenOnly);
    for (QTcpSocket *socket : sockets) {
        QObject::disconnect(socket, nullptr, this, nullptr);
        if (isConnecting(socket))
            socket->abort();
        socket->flush();
        while (socket->bytesToWrite() > 0 && !deadline.hasExpired() &&
               socket->waitForBytesWritten(int(deadline.remainingTime()))) {
        }
        if (socket->bytesToWrite() > 0) {
            // Too late. Once the stream's end is announced, waiting for it with bytes still to write has
            // none.
            socket->abort();
        } else if (socket->state() == QAbstractSocket::ConnectedState) {
            socket->setReadBufferSize(0);
            Platform::endSending(socket->socketDescriptor());
            socket->waitForDisconnected(int(deadline.remainingTime()));
        }
        socket->disconnectFromHost();
    }
    m_pendingBytes->store(0);
}

void NetworkManager::resetPairing()
{
    m_connected = false;
    m_connectedPC = PCInfo();
    m_heartbeatTimer->stop();
    m_connectionTimer->stop();
}

/// The peer has gone, by its word or by the end of the stream.
void NetworkManager::endLink()
{
    m_accepted = false;
    setHandshake(m_dialOpen, false);
    resetPairing();
    Q_EMIT disconnected();
}

void NetworkManager::completePairing()
{
    m_connectionTimer->stop();
    m_connected = true;
    m_accepted = true;
    ++m_linkSerial;
    setHandshake(false, false);
    m_connectedPC = m_pendingPC;
    m_heartbeatTimer->start();
    Q_EMIT connected();
}

void NetworkManager::onSocketConnected(QTcpSocket *socket)
{
    if (socket != m_tcpSocket)
        return;
    m_connectionTimer->stop();
    // Before the connection there was no system socket yet that could have taken them.
    setDialledOptions(socket);
    const QJsonObject json{{u"name"_s, getComputerName()}, {u"os"_s, getOSVersion()}};
    sendCommand(Protocol::MessageType::ConnectRequest, compactJson(json));
}

void NetworkManager::onSocketDisconnected(QTcpSocket *socket)
{
    const SocketHandling handling(m_handledSockets, socket);
    readFrames(socket, false);
    if (socket == m_tcpSocket) {
        m_dialOpen = false;
        notePendingBytes();
        endLink();
        return;
    }
    m_handledSockets.discard(socket);
    if (!m_tcpSocket)
        Q_EMIT disconnected();
}

void NetworkManager::onSocketError(QTcpSocket *socket, QAbstractSocket::SocketError error)
{
    const SocketHandling handling(m_handledSockets, socket);
    readFrames(socket, false);
    if (socket != m_tcpSocket)
        return;
    // A peer that closes an answered link ends it by `disconnected`, which comes next. A peer that closes
    // instead of answering has failed the dial.
    if (error == QAbstractSocket::RemoteHostClosedError && !m_dialOpen)
        return;
    m_connectionTimer->stop();
    const QString reason = socket->errorString();
    dropSocket();
    Q_EMIT connectionFailed(reason.isEmpty() ? tr("Unknown error") : reason);
}

void NetworkManager::onConnectionTimeout()
{
    qCDebug(logPeer) << "Connection timeout";
    if (m_tcpSocket && isConnecting(m_tcpSocket))
        m_tcpSocket->abort();
    notePendingBytes();
    setHandshake(false, m_questionOpen);
    Q_EMIT connectionTimeout();
    Q_EMIT connectionFailed(tr("Connection timeout"));
}

void NetworkManager::onConnectRequest(const QByteArray &payload)
{
    const QJsonObject json = parseJsonObject(payload).value_or(QJsonObject());
    m_pendingPC.name = boundedText(json["name"_L1]);
    m_pendingPC.os = boundedText(json["os"_L1]);
    m_pendingPC.ip = m_tcpSocket->peerAddress().toString();
    m_pendingPC.id = m_pendingPC.name;
    ++m_questionSerial;
    setHandshake(m_dialOpen, true);
    qCDebug(logPeer) << "Received ConnectRequest from:" << m_pendingPC.name;
    Q_EMIT connectionRequested(m_pendingPC.name, m_verifyCode);
}

/// Only the one that dialled can be told the answer: on any other socket it is a stranger who answers for
/// this copy's user.
void NetworkManager::onConnectAccept()
{
    if (m_dialOpen)
        completePairing();
}

void NetworkManager::onConnectReject()
{
    if (!m_dialOpen)
        return;
    m_connectionTimer->stop();
    setHandshake(false, m_questionOpen);
    Q_EMIT connectionFailed(tr("Connection rejected"));
}

void NetworkManager::sendHeartbeat()
{
    if (m_connected && m_tcpSocket)
        sendCommand(Protocol::MessageType::Heartbeat);
}

void NetworkManager::setHandshake(bool dialOpen, bool questionOpen)
{
    m_dialOpen = dialOpen;
    m_questionOpen = questionOpen;
    m_cableHelper->setHandshakeOpen(dialOpen || questionOpen);
}

/// Whether an answer of the user may be taken: one that was asked for, and not for a question that another
/// one has replaced. Where nobody ever asked, an answer means whoever is there.
bool NetworkManager::mayAnswer(quint64 question) const
{
    if (m_questionSerial == 0)
        return true;
    return m_questionOpen && (question == 0 || question == m_questionSerial);
}

} // namespace Zandrove
