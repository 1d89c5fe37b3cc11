#pragma once

#include "core/common/Records.h"
#include "peer/DialPlan.h"
#include "peer/LinkEnvironment.h"
#include "peer/Pairing.h"
#include "peer/PeerTable.h"
#include "peer/Protocol.h"

#include <QAbstractSocket>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class QTcpServer;
class QTcpSocket;
class QTimer;

namespace Zandrove {

class Beacon;
class CableModeHelper;
class Link;
class WaitingRoom;

/// The link to other copies: discovery by broadcast, the table of peers, and at most one paired TCP
/// connection that carries frames. It is the face of the rooms behind it, and joins them: `Beacon` and
/// `PeerTable` for who is there, `Pairing` for who said yes, `Link` for the connection.
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
    /// Paired.
    [[nodiscard]] bool isConnected() const;
    /// The paired peer; a default record when not paired.
    [[nodiscard]] PCInfo connectedPC() const;

    /// Whether the handshake on the current socket is complete: this copy sent
    /// or received `ConnectAccept` on it.
    [[nodiscard]] bool isAccepted() const;

    /// The link that is accepted now: another number for each, 0 while there is none.
    [[nodiscard]] quint64 acceptedLink() const;

    /// The questions that wait for the user, oldest first.
    [[nodiscard]] QList<ConnectionQuestion> openQuestions() const;

    /// Says whether a run is on. While one is, and its link is not silent, whoever asks is turned down at
    /// once, but for one at the address of the accepted link.
    void setBusyCheck(std::function<bool()> isBusy) { m_isBusy = std::move(isBusy); }

    /// Bytes that wait in the current socket's write buffer, kept up to date by this
    /// object; 0 without a socket.
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

    /// Dials the table's entry with this key, or, with 0, the first one with this id: its addresses one after
    /// the other, the announced one last, until one answers. Emits `waitingForAnswer` then, and `connected`
    /// once the peer's user said yes; or `connectionFailed`, of which "PC not found" comes inside the call.
    void connectToPC(const QString &pcId, quint64 key = 0);
    /// Dials this address or host name, and no other, be it that of an entry or not.
    void connectToAddress(const QString &address);
    /// Dials the first entry with this code.
    void connectByVerifyCode(const QString &code);
    /// Says goodbye and forgets the peer at once; what was sent before is still delivered, for as long
    /// as bytes move, up to a minute, and for 2 s without.
    /// `disconnected` follows when the socket has closed, unless another one has taken its place by then.
    /// Hides QObject::disconnect on purpose: always write that one qualified.
    void disconnect();
    /// The user's yes to `question`, 0 for the oldest open one: tells the peer and emits `connected`, after
    /// `disconnected` where another link was accepted. Whoever else waits is turned down. Nothing happens
    /// when the one that asked has gone, or the question has been answered.
    void acceptConnection(quint64 question = 0);
    /// The user's no: tells the peer and closes. Nothing happens where a yes would do nothing either.
    void rejectConnection(quint64 question = 0);

    /// Writes bytes without a frame. Only while paired.
    void sendData(const QByteArray &data);
    /// Frames and writes a message. Without a socket nothing happens.
    void sendCommand(Zandrove::Protocol::MessageType type, const QByteArray &payload);
    void sendCommand(Zandrove::Protocol::MessageType type) { sendCommand(type, {}); }

    /// Reads, through the event loop, what the read gate held back.
    void resumeReading();

    /// Drops the peers that have been silent for too long; a timer calls it while discovery runs.
    void checkPCTimeouts();

Q_SIGNALS:
    void pcDiscovered(const Zandrove::PCInfo &pc); ///< add or update
    /// For one that has fallen silent it comes while the table still has the entry. `key` tells it from
    /// others of the same id.
    void pcLost(const QString &pcId, quint64 key = 0);
    /// A PC of this copy's own role is about, which is never listed: told when it is heard first, and every
    /// 5 s for as long as it is heard.
    void sameRolePeer(const QString &name);
    /// Another program has `port`, found at a start of discovery: peers cannot dial this copy, or it hears no
    /// broadcast. `program` is empty where the system does not tell.
    void portTaken(quint16 port, const QString &program);
    void directScanStarted();
    void directScanProgress(int scanned, int total);
    void directScanFinished(bool found);

    /// A peer asks to pair: the last one of openQuestions(); `verifyCode` is this copy's own code. Answer
    /// with acceptConnection or rejectConnection.
    void connectionRequested(const QString &pcName, const QString &verifyCode);
    void questionEnded(quint64 question); ///< unanswered: its asker has left, or another one was chosen
    /// The own dial is through, and the peer's user has been asked. Followed by connected or
    /// connectionFailed.
    void waitingForAnswer(const QString &name);
    void connecting(); ///< never emitted
    void connected();  ///< paired, on either side
    /// The link is over, once for each and after all frames that had come on it: the peer has left, the
    /// connection broke, or nothing came for 120 s. Not told of a link that connectToPC gives up for a dial.
    /// acceptedLink() is 0 from then on.
    void disconnected();
    /// The accepted link has ended without a goodbye of either side. What else is told of its end follows.
    void linkBroke();
    /// A dial or the link has failed, or the peer said no. For an accepted link `disconnected` follows.
    void connectionFailed(const QString &reason);
    /// Nothing has come on the accepted link for so long: after 15 s, then every 5 s. The link stands.
    void linkSilent(int seconds);
    void linkAnswers();                        ///< something has come after that
    void connectionTimeout();                  ///< followed by connectionFailed
    void dataReceived(const QByteArray &data); ///< never emitted
    /// Every message that the connection layer does not consume itself, in order of arrival, from any peer:
    /// whether the peer was accepted is for the listener to ask. A heartbeat is one if it says something.
    void commandReceived(Zandrove::Protocol::MessageType type, const QByteArray &payload);

private:
    // NetworkManagerDiscovery.cpp: who is there, and how others find and dial this copy
    void setupDiscovery();
    void setupServer();
    [[nodiscard]] bool listen();
    void openPorts();
    void tellDisplaced();
    [[nodiscard]] QStringList dialAddresses(const PeerTable::Row &row);
    void dial(const PCInfo &target, const QStringList &addresses);
    [[nodiscard]] bool dialNext();
    void refreshAddresses();
    void startTimers();
    [[nodiscard]] QByteArray discoveryFrame();
    void onDirectScanDeviceFound(const QString &ip);
    void onNewConnection();
    void onAsked(const ConnectionQuestion &question);
    [[nodiscard]] bool isBusyFor(const QString &ip) const;
    [[nodiscard]] bool isDialling(const QString &ip) const;
    void askDeferred();

    // NetworkManager.cpp: the connection
    void giveWay();
    Link *adopt(Link *link);
    [[nodiscard]] Link *release();
    void drop();
    void hangUp();
    void endPair();
    void tellEnd(Link *link);
    void pair();
    void applyPairing();
    void onLinkOpened();
    void onLinkClosed(Link *link);
    void onLinkFailed(QAbstractSocket::SocketError error, const QString &reason);
    void onLinkLost();
    void onFrame(Protocol::MessageType type, const QByteArray &payload);
    void onConnectReject();
    void onConnectionTimeout();

    const LinkEnvironment m_environment;
    CableModeHelper *m_cableHelper;
    Protocol::FrameBuilder m_frames;
    int m_mode = NetworkMode;
    int m_role = OldPC;
    QString m_verifyCode;

    Beacon *m_beacon;
    QTimer *m_timeoutTimer;
    QTimer *m_scanDelayTimer; ///< runs from a start of discovery in cable mode to the start of the sweep
    PeerTable m_peers;

    QTcpServer *m_tcpServer;
    QTimer *m_connectionTimer; ///< runs for each address that is dialled, until TCP is up
    Pairing m_pairing;
    DialPlan m_dialPlan;
    WaitingRoom *m_waitingRoom;
    quint64 m_deferredQuestion = 0; ///< of a peer that an own dial is open to
    std::function<bool()> m_isBusy;
    Link *m_link = nullptr; ///< the current connection; those that are closing are children only
    std::shared_ptr<std::atomic<qint64>> m_pendingBytes;
    std::function<bool()> m_readGate;
};

} // namespace Zandrove
