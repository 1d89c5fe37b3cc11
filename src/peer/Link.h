#pragma once

#include "peer/FrameReader.h"
#include "peer/Liveness.h"
#include "peer/Protocol.h"

#include <QAbstractSocket>
#include <QDeadlineTimer>
#include <QHostAddress>
#include <QObject>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <utility>

class QTcpSocket;
class QTimer;

namespace Zandrove {

/// One TCP connection, dialled or come in, from its start to its end: frames out, frames in in their order,
/// and an end that loses nothing. Whether the peer was accepted is not known here.
///
/// A connection that has been given up, by hangUp() or abandon(), hands on no frame any more and deletes
/// itself once it is over. It never does so while code of its own is running further up, be it in a slot with
/// an event loop of its own.
class Link final : public QObject
{
    Q_OBJECT

public:
    /// What one connection takes over from the one before. `frames` has to outlive the link's last frame.
    struct Shared
    {
        Protocol::FrameBuilder *frames = nullptr;         ///< numbers what is sent
        std::shared_ptr<std::atomic<qint64>> unsentBytes; ///< bytes that wait in the socket's write buffer
        std::function<bool()> mayRead;                    ///< asked before each frame
        std::chrono::milliseconds second{1000};           ///< how long a second of the link's watch lasts

        /// For a connection beside the one that counts.
        [[nodiscard]] static Shared apart(Protocol::FrameBuilder *frames)
        {
            return {frames, std::make_shared<std::atomic<qint64>>(0), [] { return true; }};
        }
    };

    /// Over a socket that has come in, or a fresh one to dial with, of which it becomes the owner.
    Link(QTcpSocket *socket, Shared shared, QObject *parent);

    /// Dials. `opened` or `failed` follows; without a limit in time, and perhaps inside the call.
    void dial(const QString &ip, quint16 port);
    /// Takes over from the connection before from now on.
    void join(Shared shared) { m_shared = std::move(shared); }

    [[nodiscard]] bool isDialling() const;    ///< TCP is not up yet
    [[nodiscard]] bool isEstablished() const; ///< TCP is up
    [[nodiscard]] bool isSilent() const { return m_watch.silentSeconds() >= Liveness::SilentAfter; }
    [[nodiscard]] QHostAddress peerAddress() const;
    [[nodiscard]] QString peerIp() const; ///< normalised, as the tables and questions have it

    /// Frames a message and writes it, be it for later while TCP is not up. Dropped when the link is over.
    void send(Protocol::MessageType type, const QByteArray &payload);
    /// The same for bytes that are no frame.
    void sendRaw(const QByteArray &bytes);
    /// Begins to send a heartbeat every 5 s, and to watch whether anything comes from the peer.
    void startHeartbeat();
    void stopHeartbeat();

    /// Says that the end of this link is being told. False where it has been before.
    [[nodiscard]] bool markEndTold() { return !std::exchange(m_endTold, true); }

    /// Bytes that an unfinished frame may keep here, header included; more costs the frame.
    void setFrameLimit(qsizetype bytes) { m_frameLimit = bytes; }
    /// Reads, through the event loop, what the gate held back.
    void resumeReading();

    /// Closes so that what waits still reaches the peer, for as long as bytes move, up to a minute, and for
    /// 2 s without. `closed` follows, unless TCP was never up.
    void hangUp();
    /// Ends on the spot: the peer gets nothing of what waits, and no signal follows.
    void abandon();
    /// Closes within the call, at the end of the program: what waits leaves as far as `deadline` allows.
    void farewell(const QDeadlineTimer &deadline);

Q_SIGNALS:
    void opened(); ///< an own dial has come through
    void frameReceived(Zandrove::Protocol::MessageType type, const QByteArray &payload);
    /// The socket has closed; all that had come was handed on before.
    void closed();
    /// The socket has an error, and the link has not been given up. `closed` follows if TCP was up and the
    /// link is still not given up.
    void failed(QAbstractSocket::SocketError error, const QString &reason);
    void silent(int seconds); ///< nothing has come for so long: after 15 s, then every 5 s; the link stands
    void answers();           ///< something has come after that
    /// Nothing has come for 120 s from a peer that has sent heartbeats. Nothing is ended by that.
    void lost();

private:
    class Handling;

    void onSocketConnected();
    void onSocketDisconnected();
    void onSocketError(QAbstractSocket::SocketError error);
    void onReadyRead();
    void onBytesWritten();
    void onSecondPassed();
    void readFrames(bool mindGate);
    void write(const QByteArray &bytes);
    void noteUnsentBytes();
    void giveUp();
    void endWhenSent();
    void discard();

    QTcpSocket *m_socket;
    Shared m_shared;
    FrameReader m_reader;
    qsizetype m_frameLimit = FrameReader::NoLimit;
    QTimer *m_heartbeat;
    QTimer *m_seconds; ///< beats the time of the watch
    Liveness m_watch;
    QTimer *m_patience; ///< runs while a link that hangs up stands still
    QDeadlineTimer m_latestEnd;
    bool m_givenUp = false;
    bool m_endTold = false;
    bool m_readQueued = false;
    int m_handlingDepth = 0;
    bool m_discarded = false; ///< to be deleted as soon as nothing handles it
};

} // namespace Zandrove
