#include "peer/CableModeHelper.h"

#include "peer/AddressRules.h"
#include "peer/Log.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr qsizetype ProbesPerBatch = 30;
constexpr auto BatchTimeout = 150ms;
constexpr int HighestLayer = 5;
constexpr auto TargetProperty = "targetIP";

constexpr auto LoopbackPrefix = "127."_L1;
/// The network that Windows gives to the PCs it shares its internet connection with.
constexpr auto SharingPrefix = "192.168.137."_L1;

bool isPlainPrivate(const QString &ip)
{
    return isPrivateIP(ip) && !ip.startsWith(LinkLocalPrefix) && !ip.startsWith(LoopbackPrefix) &&
           !ip.startsWith(SharingPrefix);
}

bool reaches(const NetworkAdapter &adapter, const QString &ip)
{
    return std::any_of(adapter.addresses.cbegin(), adapter.addresses.cend(),
                       [&ip](const AdapterAddress &entry) { return isSameSubnet(entry.ip.toString(), ip); });
}

} // namespace

CableModeHelper::CableModeHelper(AdapterSource adapters, QObject *parent)
    : QObject(parent)
    , m_adapters(std::move(adapters))
    , m_batchTimer(new QTimer(this))
{
    m_batchTimer->setSingleShot(true);
    connect(m_batchTimer, &QTimer::timeout, this, &CableModeHelper::onScanBatchTimeout);
}

CableModeHelper::~CableModeHelper()
{
    stopDirectScan();
}

bool CableModeHelper::enableCableMode()
{
    if (m_cableModeInitialized)
        return true;
    qCDebug(logPeer) << "[CableModeHelper] Cable mode: Using automatic addressing";
    refreshLocalIPs();
    return false;
}

QString CableModeHelper::getCableIP() const
{
    const QStringList ips = getLocalIPs();
    const auto startsWith = [](QLatin1StringView prefix) {
        return [prefix](const QString &ip) { return ip.startsWith(prefix); };
    };
    const std::array<std::function<bool(const QString &)>, 3> preferences = {
        isPlainPrivate, startsWith(SharingPrefix), startsWith(LinkLocalPrefix)};
    for (const auto &fits : preferences) {
        const auto ip = std::find_if(ips.cbegin(), ips.cend(), fits);
        if (ip != ips.cend())
            return *ip;
    }
    return u"127.0.0.1"_s;
}

QString CableModeHelper::normalizeIP(const QString &ip)
{
    QString text = ip;
    if (text.startsWith("::ffff:"_L1))
        text = text.mid(7);
    const qsizetype zone = text.indexOf(u'%');
    if (zone >= 0)
        text.truncate(zone);
    return text.trimmed();
}

bool CableModeHelper::isLocalIP(const QString &ip)
{
    if (!m_localIPsValid)
        refreshLocalIPs();
    return m_localIPs.contains(normalizeIP(ip));
}

QStringList CableModeHelper::cableFirst(const QStringList &candidates) const
{
    const auto isWired = [this](const QString &ip) {
        return std::any_of(m_knownAdapters.cbegin(), m_knownAdapters.cend(),
                           [&ip](const NetworkAdapter &adapter) {
                               return adapter.wired && adapter.up && reaches(adapter, ip);
                           });
    };
    const auto rank = [&isWired](const QString &ip) {
        return ip.startsWith(LinkLocalPrefix) ? 0 : isWired(ip) ? 1 : 2;
    };
    QStringList sorted = candidates;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&rank](const QString &a, const QString &b) { return rank(a) < rank(b); });
    return sorted;
}

void CableModeHelper::setHandshakeOpen(bool open)
{
    if (m_handshakeOpen == open)
        return;
    m_handshakeOpen = open;
    if (!m_scanning)
        return;
    if (open) {
        m_batchTimer->stop();
        abortPending();
    } else {
        m_batchTimer->start(0ms);
    }
}

void CableModeHelper::startDirectScan()
{
    if (m_scanning) {
        qCDebug(logPeer) << "[CableModeHelper] Scan already in progress";
        return;
    }
    m_currentLayer = 0;
    m_foundDevice = false;
    refreshLocalIPs();
    collectScanTargets();
    if (m_scanTargets.isEmpty()) {
        qCDebug(logPeer) << "[CableModeHelper] No scan targets collected";
        Q_EMIT scanFinished(false);
        return;
    }
    m_scanning = true;
    m_currentIndex = 0;
    m_scannedCount = 0;
    qCDebug(logPeer) << "[CableModeHelper] Starting scan, targets:" << m_scanTargets.size()
                     << "layer:" << m_currentLayer;
    Q_EMIT scanStarted();
    scanNextBatch();
}

void CableModeHelper::stopDirectScan()
{
    if (!m_scanning)
        return;
    m_scanning = false;
    m_batchTimer->stop();
    abortPending();
    m_scanTargets.clear();
    qCDebug(logPeer) << "[CableModeHelper] Scan stopped";
}

QStringList CableModeHelper::getLocalIPs() const
{
    QStringList ips;
    const QList<NetworkAdapter> adapters = m_adapters();
    for (const NetworkAdapter &adapter : adapters) {
        if (!adapter.up || !adapter.running || adapter.loopback)
            continue;
        for (const AdapterAddress &entry : adapter.addresses) {
            if (isIPv4(entry.ip))
                ips.append(entry.ip.toString());
        }
    }
    return ips;
}

void CableModeHelper::refreshLocalIPs()
{
    (void)readLocalIPs();
    logLocalIPs();
}

void CableModeHelper::watchLocalIPs()
{
    if (readLocalIPs())
        logLocalIPs();
}

/// Whether they have changed.
bool CableModeHelper::readLocalIPs()
{
    QSet<QString> ips = {u"127.0.0.1"_s};
    m_knownAdapters = m_adapters();
    for (const NetworkAdapter &adapter : std::as_const(m_knownAdapters)) {
        for (const AdapterAddress &entry : adapter.addresses)
            ips.insert(normalizeIP(entry.ip.toString()));
    }
    m_localIPsValid = true;
    return std::exchange(m_localIPs, ips) != ips;
}

void CableModeHelper::logLocalIPs() const
{
    qCDebug(logPeer) << "[CableModeHelper] Local IPs:" << m_localIPs;
}

void CableModeHelper::collectScanTargets()
{
    m_scanTargets = scanTargets(m_adapters(), m_localIPs, m_currentLayer);
    qCDebug(logPeer) << "[CableModeHelper] Collected" << m_scanTargets.size()
                     << "scan targets (APIPA layer:" << m_currentLayer << ")";
}

void CableModeHelper::scanNextBatch()
{
    if (!m_scanning || m_handshakeOpen)
        return;
    if (m_currentIndex >= m_scanTargets.size() && !startNextLayer())
        return;
    const qsizetype count = std::min(ProbesPerBatch, m_scanTargets.size() - m_currentIndex);
    launchBatch(count);
    m_scannedCount += int(count);
    Q_EMIT scanProgress(m_scannedCount, totalHint());
    if (!m_scanning || m_handshakeOpen)
        return;
    // Where every probe failed at once, the next batch still starts from the event loop: from here it would
    // be a recursion as deep as the sweep is long.
    m_batchTimer->start(m_pendingSockets.isEmpty() ? 0ms : BatchTimeout);
}

/// Widens the sweep by one layer. False where there is nothing more to try: the sweep has ended then.
bool CableModeHelper::startNextLayer()
{
    if (m_foundDevice || m_currentLayer >= HighestLayer) {
        qCDebug(logPeer) << "[CableModeHelper] Scan completed, scanned:" << m_scannedCount
                         << "found:" << m_foundDevice << "finalLayer:" << m_currentLayer;
        m_scanning = false;
        Q_EMIT scanFinished(m_foundDevice);
        return false;
    }
    ++m_currentLayer;
    qCDebug(logPeer) << "[CableModeHelper] No device found, expanding to APIPA layer:" << m_currentLayer;
    refreshLocalIPs();
    collectScanTargets();
    m_currentIndex = 0;
    if (!m_scanTargets.isEmpty())
        return true;
    m_scanning = false;
    qCDebug(logPeer) << "[CableModeHelper] No more scan targets";
    Q_EMIT scanFinished(false);
    return false;
}

void CableModeHelper::launchBatch(qsizetype count)
{
    m_launching = true;
    for (qsizetype i = 0; i < count; ++i)
        launchProbe(m_scanTargets.at(m_currentIndex++));
    m_launching = false;
}

void CableModeHelper::launchProbe(const QString &ip)
{
    auto *probe = new QTcpSocket(this);
    probe->setProxy(QNetworkProxy::NoProxy);
    probe->setProperty(TargetProperty, ip);
    connect(probe, &QTcpSocket::connected, this, [this, probe] { onProbeConnected(probe); });
    connect(probe, &QTcpSocket::errorOccurred, this, [this, probe] { onProbeFailed(probe); });
    m_pendingSockets.append(probe);
    probe->connectToHost(routeTo(ip), m_targetPort, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
}

void CableModeHelper::onProbeConnected(QTcpSocket *probe)
{
    const QString ip = probe->property(TargetProperty).toString();
    qCDebug(logPeer) << "[CableModeHelper] ★ Found device at:" << ip;
    m_pendingSockets.removeOne(probe);
    QObject::disconnect(probe, nullptr, this, nullptr);
    probe->abort();
    probe->deleteLater();
    if (isLocalIP(ip))
        return;
    m_foundDevice = true;
    Q_EMIT deviceFound(ip);
}

void CableModeHelper::onProbeFailed(QTcpSocket *probe)
{
    m_pendingSockets.removeOne(probe);
    QObject::disconnect(probe, nullptr, this, nullptr);
    probe->deleteLater();
    if (m_launching || !m_scanning || !m_pendingSockets.isEmpty())
        return;
    m_batchTimer->stop();
    scanNextBatch();
}

void CableModeHelper::onScanBatchTimeout()
{
    abortPending();
    scanNextBatch();
}

void CableModeHelper::abortPending()
{
    const QList<QTcpSocket *> probes = std::exchange(m_pendingSockets, {});
    for (QTcpSocket *probe : probes) {
        QObject::disconnect(probe, nullptr, this, nullptr);
        probe->abort();
        probe->deleteLater();
    }
}

int CableModeHelper::totalHint() const
{
    const int listed = int(m_scanTargets.size());
    if (m_foundDevice || m_currentLayer >= HighestLayer)
        return listed;
    return listed + (HighestLayer - m_currentLayer) * HostsPerSubnet;
}

} // namespace Zandrove
