#include "peer/Beacon.h"

#include "peer/AddressRules.h"

#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QTimer>
#include <QUdpSocket>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto Interval = 500ms;
constexpr int BurstCount = 5;
constexpr auto BurstInterval = 50ms;
/// Datagrams taken before the event loop gets its turn again.
constexpr int DatagramsPerTurn = 256;

/// Where one address of an adapter makes a broadcast go.
QList<QHostAddress> broadcastTargets(const AdapterAddress &entry)
{
    QList<QHostAddress> targets;
    if (!entry.broadcast.isNull())
        targets.append(entry.broadcast);
    const QString ip = entry.ip.toString();
    if (ip.startsWith(LinkLocalPrefix))
        targets.append(QHostAddress(u"169.254.255.255"_s));
    const QStringList octets = ip.split(u'.');
    if (octets.size() == 4)
        targets.append(QHostAddress(octets.first(3).join(u'.') + ".255"_L1));
    return targets;
}

} // namespace

Beacon::Beacon(const LinkEnvironment &environment, std::function<QByteArray()> buildFrame, QObject *parent)
    : QObject(parent)
    , m_environment(environment)
    , m_buildFrame(std::move(buildFrame))
    , m_socket(new QUdpSocket(this))
    , m_timer(new QTimer(this))
    , m_burstTimer(new QTimer(this))
{
    m_timer->setInterval(Interval);
    m_burstTimer->setInterval(BurstInterval);
    m_burstTimer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &Beacon::announce);
    connect(m_burstTimer, &QTimer::timeout, this, &Beacon::sendBurst);
    m_socket->setProxy(QNetworkProxy::NoProxy);
    connect(m_socket, &QUdpSocket::readyRead, this, &Beacon::onReadyRead);
    bind();
}

bool Beacon::bind()
{
    if (m_hears)
        return true;
    m_socket->abort(); // what it has sent has bound it to some other port
    m_hears = m_socket->bind(QHostAddress::Any, m_environment.udpPort,
                             QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
    return m_hears;
}

void Beacon::start()
{
    m_timer->start();
}

void Beacon::stop()
{
    m_timer->stop();
    m_burstTimer->stop();
}

bool Beacon::isActive() const
{
    return m_timer->isActive();
}

void Beacon::startBurst()
{
    m_burstLeft = BurstCount;
    sendBurst();
}

void Beacon::announce()
{
    const QByteArray frame = m_buildFrame();
    sendDatagram(frame, QHostAddress(QHostAddress::Broadcast));
    const QList<NetworkAdapter> adapters = m_environment.adapters();
    for (const NetworkAdapter &adapter : adapters) {
        if (!adapter.up || !adapter.canBroadcast || adapter.loopback)
            continue;
        for (const AdapterAddress &entry : adapter.addresses) {
            if (!isIPv4(entry.ip))
                continue;
            for (const QHostAddress &target : broadcastTargets(entry))
                sendDatagram(frame, target);
        }
    }
}

void Beacon::sendBurst()
{
    announce();
    if (--m_burstLeft > 0)
        m_burstTimer->start();
}

void Beacon::sendDatagram(const QByteArray &datagram, const QHostAddress &target)
{
    if (m_environment.sendDatagram)
        m_environment.sendDatagram(datagram, target, m_environment.udpPort);
    else if (m_environment.udpPort != 0)
        m_socket->writeDatagram(datagram, target, m_environment.udpPort);
}

void Beacon::onReadyRead()
{
    for (int i = 0; i < DatagramsPerTurn && m_socket->hasPendingDatagrams(); ++i) {
        const QNetworkDatagram datagram = m_socket->receiveDatagram();
        Q_EMIT heard(datagram.data(), datagram.senderAddress());
    }
}

} // namespace Zandrove
