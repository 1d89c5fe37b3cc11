#pragma once

#include "core/common/Records.h"
#include "support/NetworkAdapters.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

class QTcpSocket;
class QTimer;

namespace Zandrove {

/// Knows this machine's addresses, and, for two PCs joined by one cable, which address of a peer leads
/// through it; sweeps the addresses around this machine's own with TCP connects until a listener answers.
///
/// Main thread only. Nothing blocks.
class CableModeHelper : public QObject
{
    Q_OBJECT

public:
    /// `adapters` is asked each time addresses are needed.
    explicit CableModeHelper(AdapterSource adapters, QObject *parent = nullptr);
    ~CableModeHelper() override;

    void setTargetPort(quint16 port) { m_targetPort = port; }

    /// Refreshes the known local addresses. Never changes an adapter. Returns whether cable mode had been
    /// initialised before, which is always false.
    bool enableCableMode();

    /// Reads this machine's addresses anew: adapters come and go.
    void refreshLocalIPs();
    /// The same for who asks all the time: the log hears of it only when they have changed.
    void watchLocalIPs();

    /// The address to announce in cable mode: private, else internet-sharing (192.168.137.x), else
    /// link-local, else "127.0.0.1".
    [[nodiscard]] QString getCableIP() const;

    /// `ip` without a "::ffff:" prefix, a "%zone" suffix and blanks.
    [[nodiscard]] static QString normalizeIP(const QString &ip);

    /// Whether `ip`, normalised, is one of this machine's own addresses, as they were when last refreshed.
    [[nodiscard]] bool isLocalIP(const QString &ip);

    /// `candidates`, addresses of one peer, with those before the others that lead through a cable:
    /// link-local ones, then those in a subnet of a wired adapter. The adapters are as they were when last
    /// refreshed.
    [[nodiscard]] QStringList cableFirst(const QStringList &candidates) const;

    /// The sweep pauses while a handshake of this copy is open: probes in flight are aborted and count as
    /// tried, and no new batch starts until this is called with false.
    void setHandshakeOpen(bool open);

    /// Says where a connection to an address really goes, so that a made-up network can be swept on the
    /// loopback. Without it, to that address.
    void setRoute(std::function<QString(const QString &ip)> route) { m_route = std::move(route); }

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

private:
    [[nodiscard]] QStringList getLocalIPs() const;
    [[nodiscard]] bool readLocalIPs();
    void logLocalIPs() const;

    void collectScanTargets();
    void scanNextBatch();
    [[nodiscard]] bool startNextLayer();
    void launchBatch(qsizetype count);
    void launchProbe(const QString &ip);
    void onProbeConnected(QTcpSocket *probe);
    void onProbeFailed(QTcpSocket *probe);
    void onScanBatchTimeout();
    void abortPending();
    [[nodiscard]] int totalHint() const;
    [[nodiscard]] QString routeTo(const QString &ip) const { return m_route ? m_route(ip) : ip; }

    AdapterSource m_adapters;
    int m_currentLayer = 0;
    bool m_foundDevice = false;
    quint16 m_targetPort = TcpPort;
    bool m_cableModeInitialized = false;
    QSet<QString> m_localIPs;
    QList<NetworkAdapter> m_knownAdapters; ///< as last refreshed
    bool m_localIPsValid = false;
    bool m_scanning = false;
    QStringList m_scanTargets;
    qsizetype m_currentIndex = 0;
    int m_scannedCount = 0;
    QList<QTcpSocket *> m_pendingSockets;
    QTimer *m_batchTimer;
    bool m_launching = false; ///< probes that fail at once must not start the next batch from within this one
    bool m_handshakeOpen = false;
    std::function<QString(const QString &ip)> m_route;
};

} // namespace Zandrove
