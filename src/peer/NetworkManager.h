#pragma once

#include "core/common/Records.h"
#include "peer/Protocol.h"
#include "support/NetworkAdapters.h"

#include <QAbstractSocket>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

namespace Zandrove {

class CableModeHelper;

/// What the link takes from the world. The defaults are the real machine; tests replace single members.
struct LinkEnvironment
{
    quint16 tcpPort = TcpPort; ///< port to listen on
    quint16 udpPort = UdpPort; ///< port to broadcast to and hear on
    AdapterSource adapters = systemNetworkAdapters;
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTime(); };
    /// Replaces the UDP socket for outgoing datagrams when set.
    std::function<void(const QByteArray &datagram, const QHostAddress &target, quint16 port)> sendDatagram;
};

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

    void setRole(int role);
    void setMode(int mode);
    void setVerifyCode(const QString &code);

    /// The peers heard or found, in order of discovery.
    [[nodiscard]] QList<PCInfo> discoveredPCs() const;
    /// Paired. Stays true after a socket error until the next accept or disconnect.
    [[nodiscard]] bool isConnected() const;
    /// The paired peer; a default record when not paired.
    [[nodiscard]] PCInfo connectedPC() const;

    /// Whether the handshake on the current socket is complete: this copy sent or received `ConnectAccept` on
    /// it.
    [[nodiscard]] bool isAccepted() const;

    /// Bytes that wait in the current socket's write buffer, kept up to date by this object; 0 without a
    /// socket.
    [[nodiscard]] std::shared_ptr<const std::atomic<qint64>> pendingBytes() const;

    /// `mayRead` is asked before each read of the socket; while it says no, bytes stay in the socket (a few
    /// MiB there, the rest at the sender). Ask for `resumeReading` when the answer changes. An empty function
    /// always reads.
    void setReadGate(std::function<bool()> mayRead);

    void sendSessionEnd();

public Q_SLOTS:
    void startDiscovery();
    void stopDiscovery();
    void restartBroadcast();

    /// Dials the table's entry with this id. Emits `connected` once the peer's user said yes, or
    /// `connectionFailed`; "PC not found" comes inside the call.
    void connectToPC(const QString &pcId);
    void connectByVerifyCode(const QString &code);
    /// Hides QObject::disconnect on purpose: always write that one qualified.
    void disconnect();
    void acceptConnection();
    void rejectConnection();

    /// Writes bytes without a frame. Only while paired.
    void sendData(const QByteArray &data);
    /// Frames and writes a message. Without a socket nothing happens.
    void sendCommand(Zandrove::Protocol::MessageType type, const QByteArray &payload);
    void sendCommand(Zandrove::Protocol::MessageType type);

    /// Reads, through the event loop, what the read gate held back.
    void resumeReading();

Q_SIGNALS:
    void pcDiscovered(const Zandrove::PCInfo &pc);
    void pcLost(const QString &pcId);
    void directScanStarted();
    void directScanProgress(int scanned, int total);
    void directScanFinished(bool found);

    /// A peer asks to pair; `verifyCode` is this copy's own code. Answer with acceptConnection or
    /// rejectConnection.
    void connectionRequested(const QString &pcName, const QString &verifyCode);
    void connecting(); ///< never emitted
    void connected();
    void disconnected();
    void connectionFailed(const QString &reason);
    void connectionTimeout();                  ///< followed by connectionFailed
    void dataReceived(const QByteArray &data); ///< never emitted
    /// Every message that the connection layer does not consume itself, in order of arrival, from any peer:
    /// whether the peer was accepted is for the listener to ask.
    void commandReceived(Zandrove::Protocol::MessageType type, const QByteArray &payload);
};

} // namespace Zandrove
