#include "peer/Link.h"

#include "peer/CableModeHelper.h"
#include "peer/Log.h"
#include "platform/SocketShutdown.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr qint64 MiB = 1 << 20;
constexpr auto HeartbeatInterval = 5000ms;
/// How long a socket that this copy closes may stand still before it is dropped, and how long
/// it may take at all.
constexpr auto ClosingTime = 2000ms;
constexpr auto LongestClosingTime = 60000ms;
/// The two sides differ on purpose: the one that listens is mostly the one that receives.
constexpr qint64 DialledBufferBytes = 2 * MiB;
constexpr qint64 AcceptedBufferBytes = 16 * MiB;
/// What a socket takes from the system while the read gate is closed.
constexpr qint64 ReadBufferBytes = 8 * MiB;
/// Above this much waiting in the socket each further frame leaves a log line.
constexpr qint64 HighBufferBytes = 16 * MiB;

void setBufferSizes(QTcpSocket *socket, qint64 bytes)
{
    socket->setSocketOption(QAbstractSocket::SendBufferSizeSocketOption, bytes);
    socket->setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, bytes);
}

} // namespace

/// Marks a link as handled for as long as it lives. A slot far down may run a dialog, and while that is open
/// the link may be replaced: deleted there, it and its socket would be missing under the code that emits.
class [[nodiscard]] Link::Handling final
{
public:
    explicit Handling(Link &link)
        : m_link(link)
    {
        ++m_link.m_handlingDepth;
    }
    ~Handling()
    {
        if (--m_link.m_handlingDepth == 0 && m_link.m_discarded)
            m_link.deleteLater();
    }
    Q_DISABLE_COPY_MOVE(Handling)

private:
    Link &m_link;
};

Link::Link(QTcpSocket *socket, Shared shared, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
    , m_shared(std::move(shared))
    , m_heartbeat(new QTimer(this))
    , m_seconds(new QTimer(this))
    , m_patience(new QTimer(this))
{
    m_socket->setParent(this);
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_socket->setReadBufferSize(ReadBufferBytes);
    if (isEstablished())
        setBufferSizes(m_socket, AcceptedBufferBytes);
    connect(m_socket, &QTcpSocket::connected, this, &Link::onSocketConnected);
    connect(m_socket, &QTcpSocket::disconnected, this, &Link::onSocketDisconnected);
    connect(m_socket, &QTcpSocket::errorOccurred, this, &Link::onSocketError);
    connect(m_socket, &QTcpSocket::readyRead, this, &Link::onReadyRead);
    connect(m_socket, &QTcpSocket::bytesWritten, this, &Link::onBytesWritten);
    m_heartbeat->setInterval(HeartbeatInterval);
    connect(m_heartbeat, &QTimer::timeout, this, [this] { send(Protocol::MessageType::Heartbeat, {}); });
    connect(m_seconds, &QTimer::timeout, this, &Link::onSecondPassed);
    m_patience->setSingleShot(true);
    connect(m_patience, &QTimer::timeout, this, [this] {
        m_socket->abort();
        discard();
    });
}

void Link::dial(const QString &ip, quint16 port)
{
    m_socket->connectToHost(ip, port, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
}

bool Link::isDialling() const
{
    return m_socket->state() == QAbstractSocket::HostLookupState ||
           m_socket->state() == QAbstractSocket::ConnectingState;
}

bool Link::isEstablished() const
{
    return m_socket->state() == QAbstractSocket::ConnectedState;
}

QHostAddress Link::peerAddress() const
{
    return m_socket->peerAddress();
}

QString Link::peerIp() const
{
    return CableModeHelper::normalizeIP(peerAddress().toString());
}

void Link::send(Protocol::MessageType type, const QByteArray &payload)
{
    if (m_socket->state() == QAbstractSocket::UnconnectedState)
        return;
    const qint64 waiting = m_socket->bytesToWrite();
    if (waiting > HighBufferBytes)
        qCDebug(logPeer) << "[NetworkManager] High buffer:" << waiting << "bytes";
    write(m_shared.frames->buildPacket(type, payload));
}

void Link::sendRaw(const QByteArray &bytes)
{
    if (m_socket->state() != QAbstractSocket::UnconnectedState)
        write(bytes);
}

void Link::startHeartbeat()
{
    m_heartbeat->start();
    m_seconds->start(m_shared.second);
}

void Link::stopHeartbeat()
{
    m_heartbeat->stop();
    m_seconds->stop();
}

void Link::resumeReading()
{
    if (std::exchange(m_readQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_readQueued = false;
            if (!m_givenUp)
                onReadyRead();
        },
        Qt::QueuedConnection);
}

void Link::hangUp()
{
    giveUp();
    m_latestEnd.setRemainingTime(LongestClosingTime);
    m_patience->start(ClosingTime);
    if (isDialling()) {
        m_socket->abort();
        return;
    }
    // Closing while the peer still sends would make the system throw away what has not left yet: only the
    // sending direction ends here, the peer's own end closes the socket.
    m_socket->setReadBufferSize(0);
    m_socket->readAll();
    m_socket->flush();
    endWhenSent();
}

void Link::abandon()
{
    giveUp();
    m_socket->disconnect(this);
    m_socket->abort();
    discard();
}

void Link::farewell(const QDeadlineTimer &deadline)
{
    giveUp();
    m_socket->disconnect(this);
    if (isDialling())
        m_socket->abort();
    m_socket->flush();
    while (m_socket->bytesToWrite() > 0 && !deadline.hasExpired() &&
           m_socket->waitForBytesWritten(int(deadline.remainingTime()))) {
    }
    if (m_socket->bytesToWrite() > 0) {
        // Too late. Once the stream's end is announced, waiting for it with bytes still to write has none.
        m_socket->abort();
    } else if (isEstablished()) {
        m_socket->setReadBufferSize(0);
        Platform::endSending(m_socket->socketDescriptor());
        m_socket->waitForDisconnected(int(deadline.remainingTime()));
    }
    m_socket->disconnectFromHost();
}

void Link::onSocketConnected()
{
    // Only now is there a system socket that takes them.
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    setBufferSizes(m_socket, DialledBufferBytes);
    if (!m_givenUp)
        Q_EMIT opened();
}

void Link::onSocketDisconnected()
{
    const Handling handling(*this);
    readFrames(false);
    noteUnsentBytes();
    if (m_givenUp)
        discard();
    Q_EMIT closed();
}

void Link::onSocketError(QAbstractSocket::SocketError error)
{
    const Handling handling(*this);
    readFrames(false);
    if (!m_givenUp)
        Q_EMIT failed(error, m_socket->errorString());
}

/// Whatever comes from the peer passes here first, a whole frame or not, and while the gate is closed, too:
/// the one place that knows when anything last came.
void Link::onReadyRead()
{
    const Handling handling(*this);
    if (m_givenUp) {
        m_socket->readAll();
        return;
    }
    if (m_watch.came())
        Q_EMIT answers();
    readFrames(true);
}

void Link::onBytesWritten()
{
    if (m_givenUp)
        endWhenSent();
    else
        noteUnsentBytes();
}

void Link::onSecondPassed()
{
    const Handling handling(*this);
    switch (m_watch.secondPassed(m_shared.mayRead())) {
    case Liveness::Verdict::Nothing:
        return;
    case Liveness::Verdict::Silent:
        Q_EMIT silent(m_watch.silentSeconds());
        return;
    case Liveness::Verdict::Lost:
        Q_EMIT lost();
        return;
    }
}

/// The one way in for frames. A layer that seals the connection would stand between the reader and the
/// socket here, as a device that the reader takes its bytes from.
void Link::readFrames(bool mindGate)
{
    while (!m_givenUp && (!mindGate || m_shared.mayRead())) {
        const auto frame = m_reader.read(*m_socket, m_frameLimit);
        if (!frame)
            return;
        if (frame->type == Protocol::MessageType::Heartbeat)
            m_watch.heartbeatCame();
        Q_EMIT frameReceived(frame->type, frame->payload);
    }
}

/// The one way out, and the other end of such a layer.
void Link::write(const QByteArray &bytes)
{
    m_socket->write(bytes);
    noteUnsentBytes();
}

void Link::noteUnsentBytes()
{
    if (m_givenUp)
        return;
    const bool isOver = m_socket->state() == QAbstractSocket::UnconnectedState;
    m_shared.unsentBytes->store(isOver ? 0 : m_socket->bytesToWrite());
}

void Link::giveUp()
{
    if (std::exchange(m_givenUp, true))
        return;
    stopHeartbeat();
    m_shared.unsentBytes->store(0);
}

/// A link that hangs up ends its sending direction behind the last byte.
void Link::endWhenSent()
{
    if (m_socket->bytesToWrite() == 0)
        Platform::endSending(m_socket->socketDescriptor());
    else if (!m_latestEnd.hasExpired())
        m_patience->start(ClosingTime);
}

void Link::discard()
{
    m_discarded = true;
    if (m_handlingDepth == 0)
        deleteLater();
}

} // namespace Zandrove
