#include "diagnosis/Ear.h"

#include "peer/AddressRules.h"
#include "peer/Protocol.h"
#include "support/Json.h"
#include "support/PrintableText.h"

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QThread>
#include <QUuid>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto Glance = 50ms;
constexpr int DatagramsPerGlance = 1024;
constexpr int MostPcs = 16;
constexpr int MostAddresses = 4;
constexpr qsizetype LongestName = 64;

/// The address in its IPv4 form where it has one.
QHostAddress plain(const QHostAddress &address)
{
    bool isIPv4 = false;
    const quint32 number = address.toIPv4Address(&isIPv4);
    return isIPv4 ? QHostAddress(number) : address;
}

/// The payload of a frame of type `type`; nothing where the datagram is none.
std::optional<QByteArray> payloadOf(const QByteArray &datagram, Protocol::MessageType type)
{
    const auto header = Protocol::readHeader(datagram);
    const bool isWhole = header && header->magic == Protocol::Magic && header->type == quint16(type) &&
                         qint64(header->length) + Protocol::HeaderSize <= datagram.size();
    return isWhole ? std::optional(datagram.mid(Protocol::HeaderSize, header->length)) : std::nullopt;
}

QString shortText(const QJsonObject &object, const QString &key)
{
    return printable(object.value(key).toString().left(LongestName));
}

std::optional<HeardPc> announcedBy(const QByteArray &datagram, const QHostAddress &sender)
{
    const auto payload = payloadOf(datagram, Protocol::MessageType::Discovery);
    const auto object = payload ? parseJsonObject(*payload) : std::nullopt;
    if (!object)
        return std::nullopt;
    HeardPc other{.id = shortText(*object, u"id"_s),
                  .name = shortText(*object, u"name"_s),
                  .code = shortText(*object, u"code"_s),
                  .role = object->value(u"role"_s).toInt(),
                  .addresses = {sender.toString()},
                  .dial = {}};
    const bool isPc = !other.id.isEmpty() && !other.name.isEmpty() &&
                      (other.role == OldPC || other.role == NewPC) && isIPv4(sender);
    return isPc ? std::optional(other) : std::nullopt;
}

} // namespace

Ear::Ear()
    : m_mark(QUuid::createUuid().toRfc4122())
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_socket.bind(QHostAddress::Any, UdpPort, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
}

bool Ear::isOpen() const
{
    return m_socket.state() == QAbstractSocket::BoundState;
}

void Ear::probe(QList<AdapterFacts> &adapters)
{
    const QByteArray frame = Protocol::buildFrame(Protocol::MessageType::Heartbeat, m_mark, 0);
    for (AdapterFacts &facts : adapters) {
        const QList<AdapterAddress> addresses = facts.addresses();
        for (const AdapterAddress &entry : addresses) {
            m_own.append(entry.ip);
            if (!facts.isUsable() || !facts.adapter.canBroadcast || entry.broadcast.isNull())
                continue;
            QUdpSocket sender;
            sender.setProxy(QNetworkProxy::NoProxy);
            const bool hasLeft = sender.bind(entry.ip, 0) &&
                                 sender.writeDatagram(frame, entry.broadcast, UdpPort) == frame.size();
            if (!hasLeft)
                facts.broadcastError = sender.errorString();
            if (hasLeft || facts.broadcast == AdapterFacts::NotTried)
                facts.broadcast = hasLeft ? AdapterFacts::Left : AdapterFacts::Failed;
        }
    }
}

void Ear::listen(std::chrono::milliseconds duration)
{
    const QDeadlineTimer deadline(duration);
    while (isOpen() && !QThread::currentThread()->isInterruptionRequested()) {
        for (int i = 0; i < DatagramsPerGlance && m_socket.hasPendingDatagrams(); ++i) {
            const QNetworkDatagram datagram = m_socket.receiveDatagram();
            take(datagram.data(), plain(datagram.senderAddress()));
        }
        if (deadline.hasExpired())
            return;
        QThread::msleep(static_cast<unsigned long>(Glance.count()));
    }
}

bool Ear::hasHeardProbe(const QHostAddress &address) const
{
    return m_probesHeard.contains(address);
}

void Ear::take(const QByteArray &datagram, const QHostAddress &sender)
{
    if (payloadOf(datagram, Protocol::MessageType::Heartbeat) == m_mark) {
        if (m_own.contains(sender) && !m_probesHeard.contains(sender))
            m_probesHeard.append(sender);
    } else if (!m_own.contains(sender)) {
        if (const std::optional<HeardPc> other = announcedBy(datagram, sender))
            note(*other);
    }
}

void Ear::note(const HeardPc &announced)
{
    const auto known = std::find_if(m_heard.begin(), m_heard.end(), [&](const HeardPc &other) {
        return other.id == announced.id && other.code == announced.code;
    });
    if (known == m_heard.end()) {
        if (m_heard.size() < MostPcs)
            m_heard.append(announced);
        return;
    }
    known->role = announced.role;
    known->addresses.removeAll(announced.addresses.constFirst());
    known->addresses.prepend(announced.addresses.constFirst());
    known->addresses.resize(std::min<qsizetype>(known->addresses.size(), MostAddresses));
}

} // namespace Zandrove
