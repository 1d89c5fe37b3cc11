#pragma once

#include "core/common/Records.h"
#include "support/NetworkAdapters.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

class QTcpSocket;
class QTimer;

namespace Zandrove {

/// Knows this machine's addresses, chooses which of two candidate addresses of a peer to dial, and, for two
/// PCs joined by one cable, sweeps the addresses around this machine's own with TCP connects until a listener
/// answers.
///
/// Main thread only. `isReachable` (inside `chooseBestIP`) may block for up to 200 ms; nothing else blocks.
class CableModeHelper : public QObject
{
    Q_OBJECT

public:
    /// `adapters` is asked each time addresses are needed.
    explicit CableModeHelper(AdapterSource adapters, QObject *parent = nullptr);
    ~CableModeHelper() override;

    void setRole(int role) { m_role = role; }
    void setTargetPort(quint16 port) { m_targetPort = port; }

    /// Refreshes the known local addresses. Never changes an adapter. Returns whether cable mode had been
    /// initialised before, which is always false.
    bool enableCableMode();

    /// The address to announce in cable mode: private, else internet-sharing (192.168.137.x), else
    /// link-local, else "127.0.0.1".
    [[nodiscard]] QString getCableIP() const;

    /// `ip` without a "::ffff:" prefix, a "%zone" suffix and blanks.
    [[nodiscard]] static QString normalizeIP(const QString &ip);

    /// Whether `ip`, normalised, is one of this machine's own addresses.
    [[nodiscard]] bool isLocalIP(const QString &ip);

    /// Which of a peer's two addresses to dial: the one in a subnet of this machine, else one that answers a
    /// probe where link-local addresses are about, else the sender's.
    [[nodiscard]] QString chooseBestIP(const QString &payloadIP, const QString &senderIP);

    /// The sweep pauses while a handshake of this copy is open: probes in flight are aborted and count as
    /// tried, and no new batch starts until this is called with false.
    void setHandshakeOpen(bool open);

public Q_SLOTS:
    /// Starts the sweep at the interfaces' own /24 networks; it widens by itself, up to layer 5, while
    /// nothing is found.
    void startDirectScan();
    /// Ends a running sweep without `scanFinished`.
    void stopDirectScan();

Q_SIGNALS:
    void scanStarted();
    /// `total` is a hint that grows and shrinks as the sweep widens or finds something.
    void scanProgress(int scanned, int total);
    void scanFinished(bool foundDevices);
    /// A listener answered at `ip`, which is not this machine. Fires once per answer; the sweep goes on.
    void deviceFound(const QString &ip);
};

} // namespace Zandrove
