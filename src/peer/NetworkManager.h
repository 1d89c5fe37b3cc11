#pragma once

#include "core/common/Records.h"
#include "peer/FrameReader.h"
#include "peer/LinkEnvironment.h"
#include "peer/Protocol.h"
#include "peer/SocketHandling.h"
#include "support/NetworkAdapters.h"

#include <QAbstractSocket>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class QTcpServer;
class QTcpSocket;
class QTimer;
class QUdpSocket;

namespace Zandrove {

class CableModeHelper;

/// The link to other copies: discovery by broadcast, the table of peers, and at most one paired TCP
/// connection that carries frames.
///
/// Main thread only, apart from `pendingBytes`, whose counter may be read anywhere. Operations return
/// nothing; a failure to connect leaves through `connectionFailed` with a translated text.
class NetworkManager : public QObject
{
    Q_OBJECT

public:
    explicit NetworkManager(QObject *parent = nullptr, LinkEnvironment environment = {});
    ~NetworkManager() override;

    void setRole(int role);                  ///< a `Role`; peers of the same one are not listed
    void setMode(int mode);                  ///< a `DiscoveryMode`, looked at when discovery starts
    void setVerifyCode(const QString &code); ///< this copy's own code, announced from the next broadcast on

    /// The peers heard or found, in order of discovery.
    [[nodiscard]] QList<PCInfo> discoveredPCs() const;
    /// Paired. Stays true after a socket error until the next accept or disconnect.
    [[nodiscard]] bool isConnected() const;
    /// The paired peer; a default record when not paired.
    [[nodiscard]] PCInfo connectedPC() const;

    /// Whether the handshake on the current socket is complete: this copy sent or received `ConnectAccept` on
    /// it.
    [[nodiscard]] bool isAccepted() const;

    /// The link that is accepted now: another number for each, 0 while there is none.
    [[nodiscard]] quint64 acceptedLink() const;

    /// The question that waits for the user: another number for each, 0 while there is none.
    [[nodiscard]] quint64 openQuestion() const;

    /// Bytes that wait in the current socket's write buffer, kept up to date by this object; 0 without a
    /// socket.
    [[nodiscard]] std::shared_ptr<const std::atomic<qint64>> pendingBytes() const;

    /// `mayRead` is asked before each read of the socket; while it says no, bytes stay in the socket (a few
    /// MiB there, the rest at the sender). Ask for `resumeReading` when the answer changes. An empty function
    /// always reads.
    void setReadGate(std::function<bool()> mayRead);

    /// Tells the peer that this run of the program's flow is over. The link stays.
    void sendSessionEnd();

    /// The port that peers can dial; 0 while this copy cannot listen.
    [[nodiscard]] quint16 serverPort() const;

    /// Takes one datagram as if it had come from `sender`: a discovery frame of the other role enters or
    /// refreshes the table, anything else is dropped. The UDP socket hands over all that it hears here.
    void handleDatagram(const QByteArray &datagram, const QHostAddress &sender);

public Q_SLOTS:
    /// Empties the table and broadcasts twice a second, the first five times 50 ms apart; in cable mode the
    /// sweep starts 500 ms later. Nothing happens while it runs already.
    void startDiscovery();
    /// Ends broadcasts, ageing and sweep. The table stays, and peers are still heard.
    void stopDiscovery();
    /// Empties the table, without `pcLost`, and broadcasts and sweeps anew, whether it runs or not.
    void restartBroadcast();

    /// Dials the table's entry with this id. Emits `connected` once the peer's user said yes, or
    /// `connectionFailed`; "PC not found" comes inside the call.
    void connectToPC(const QString &pcId);
    /// Dials the first entry with this code.
    void connectByVerifyCode(const QString &code);
    /// Says goodbye and forgets the peer at once; what was sent before is still delivered, for as long
    /// as bytes move, up to a minute, and for 2 s without.
    /// `disconnected` follows when the socket has closed, unless another one has taken its place by then.
    /// Hides QObject::disconnect on purpose: always write that one qualified.
    void disconnect();
    /// The user's yes to `question`, 0 for the open one: tells the peer and emits `connected`. Nothing
    /// happens when the one that asked has gone or has been replaced, or the question has been answered; ask
    /// isConnected().
    void acceptConnection(quint64 question = 0);
    /// The user's no: tells the peer and closes. Nothing happens where a yes would do nothing either.
    void rejectConnection(quint64 question = 0);

    /// Writes bytes without a frame. Only while paired.
    void sendData(const QByteArray &data);
    /// Frames and writes a message. Without a socket nothing happens.
    void sendCommand(Zandrove::Protocol::MessageType type, const QByteArray &payload);
    void sendCommand(Zandrove::Protocol::MessageType type);

    /// Reads, through the event loop, what the read gate held back.
    void resumeReading();

    /// Drops the peers that have been silent for too long; a timer calls it while discovery runs.
    void checkPCTimeouts();

Q_SIGNALS:
    void pcDiscovered(const Zandrove::PCInfo &pc); ///< add or update
    void pcLost(const QString &pcId);              ///< comes while the table still has the entry
    void directScanStarted();
    void directScanProgress(int scanned, int total);
    void directScanFinished(bool found);

    /// A peer asks to pair; `verifyCode` is this copy's own code. Answer with acceptConnection or
    /// rejectConnection.
    void connectionRequested(const QString &pcName, const QString &verifyCode);
    void connecting();                            ///< never emitted
    void connected();                             ///< paired, on either side
    void disconnected();                          ///< the link has closed; may come twice for one link
    void connectionFailed(const QString &reason); ///< a dial or the link has failed, or the peer said no
    void connectionTimeout();                     ///< followed by connectionFailed
    void dataReceived(const QByteArray &data);    ///< never emitted
    /// Every message that the connection layer does not consume itself, in order of arrival, from any peer:
    /// whether the peer was accepted is for the listener to ask.
    void commandReceived(Zandrove::Protocol::MessageType type, const QByteArray &payload);

private:
    // NetworkManager.cpp
    [[nodiscard]] QByteArray buildPacket(Protocol::MessageType type, const QByteArray &payload);
    [[nodiscard]] bool isSocketOpen() const;
    void write(const QByteArray &bytes);
    void notePendingBytes();
    void onReadyRead(QTcpSocket *socket);
    void readFrames(QTcpSocket *socket, bool mindGate);
    void dispatch(const Frame &frame);

    // NetworkManagerDiscovery.cpp
    void setupDiscovery();
    void clearTable();
    void startBurst();
    void sendBurst();
    void sendBroadcast();
    void sendDatagram(const QByteArray &datagram, const QHostAddress &target);
    [[nodiscard]] QByteArray discoveryPayload() const;
    void onBroadcastReceived();
    [[nodiscard]] std::optional<PCInfo> peerFrom(const QByteArray &payload, const QString &senderIP) const;
    void addOrUpdate(const PCInfo &pc);
    void update(qsizetype index, const PCInfo &pc);
    void giveUpId(const QString &id);
    [[nodiscard]] bool append(const PCInfo &pc);
    void forgetTimes(const QString &id);
    void removeLost(const QString &id);
    void onDirectScanDeviceFound(const QString &ip);

    // NetworkManagerConnection.cpp
    void setupConnection();
    void setupServer();
    void onNewConnection();
    void adopt(QTcpSocket *socket, bool dialled);
    [[nodiscard]] QTcpSocket *releaseSocket();
    void dropSocket();
    void hangUp(QTcpSocket *socket);
    void closeAllSockets();
    void resetPairing();
    void endLink();
    void completePairing();
    void onSocketConnected(QTcpSocket *socket);
    void onSocketDisconnected(QTcpSocket *socket);
    void onSocketError(QTcpSocket *socket, QAbstractSocket::SocketError error);
    void onConnectionTimeout();
    void onConnectRequest(const QByteArray &payload);
    void onConnectAccept();
    void onConnectReject();
    void sendHeartbeat();
    void setHandshake(bool dialOpen, bool questionOpen);
    [[nodiscard]] bool mayAnswer(quint64 question) const;

    LinkEnvironment m_environment;
    CableModeHelper *m_cableHelper;
    quint32 m_sequence = 0;
    int m_mode = NetworkMode;
    int m_role = OldPC;
    bool m_connected = false;
    QString m_verifyCode;
    QUdpSocket *m_udpSocket;
    QTimer *m_broadcastTimer;
    QTimer *m_timeoutTimer;
    QTimer *m_connectionTimer;
    QList<PCInfo> m_discoveredPCs;
    QMap<QString, QDateTime> m_lastSeen;
    QMap<QString, int> m_missedChecks;
    QTcpServer *m_tcpServer;
    QTcpSocket *m_tcpSocket = nullptr;
    QTimer *m_heartbeatTimer;
    PCInfo m_connectedPC;
    PCInfo m_pendingPC;
    FrameReader m_receiveBuffer;

    QTimer *m_burstTimer;
    int m_burstLeft = 0;          ///< broadcasts of the burst still to be sent
    QTimer *m_scanDelayTimer;     ///< runs from a start of discovery in cable mode to the start of the sweep
    bool m_accepted = false;      ///< of the current socket
    bool m_dialOpen = false;      ///< the current socket is an own dial that has not been answered
    bool m_questionOpen = false;  ///< a ConnectRequest on the current socket waits for the user
    bool m_refused = false;       ///< the current socket was told no: nothing of it is read any more
    quint64 m_linkSerial = 0;     ///< goes up with each pairing
    quint64 m_questionSerial = 0; ///< goes up with each question, 0 before the first
    int m_tableGeneration = 0;    ///< goes up when the table is cleared
    HandledSockets m_handledSockets;
    std::function<bool()> m_readGate;
    bool m_readQueued = false;
    std::shared_ptr<std::atomic<qint64>> m_pendingBytes;
};

} // namespace Zandrove
