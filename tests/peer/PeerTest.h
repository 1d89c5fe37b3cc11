#pragma once

#include "peer/FrameReader.h"
#include "peer/NetworkManager.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>

#include <memory>

std::unique_ptr<QObject> makeFrameReaderTest();
std::unique_ptr<QObject> makeCableModeHelperTest();
std::unique_ptr<QObject> makeDiscoveryTest();
std::unique_ptr<QObject> makeConnectionTest();

using namespace Qt::StringLiterals;

using MessageType = Zandrove::Protocol::MessageType;

/// An address of this machine that the managers take for another one: without adapters only 127.0.0.1 is own.
inline const QHostAddress OtherMachine(u"127.0.0.2"_s);

inline Zandrove::NetworkAdapter adapter(const QString &name, const QStringList &ips)
{
    Zandrove::NetworkAdapter result{
        .name = name, .up = true, .running = true, .loopback = false, .canBroadcast = true, .addresses = {}};
    for (const QString &ip : ips)
        result.addresses.append({QHostAddress(ip), QHostAddress()});
    return result;
}

/// Free ports, no adapters, and datagrams that go into `sent`.
inline Zandrove::LinkEnvironment testEnvironment(std::shared_ptr<QList<QByteArray>> sent = {})
{
    Zandrove::LinkEnvironment environment;
    environment.tcpPort = 0;
    environment.udpPort = 0;
    environment.adapters = [] { return QList<Zandrove::NetworkAdapter>(); };
    environment.sendDatagram = [sent](const QByteArray &datagram, const QHostAddress &, quint16) {
        if (sent)
            sent->append(datagram);
    };
    return environment;
}

inline QByteArray frame(MessageType type, const QByteArray &payload = {})
{
    return Zandrove::Protocol::buildFrame(type, payload, 1);
}

inline QByteArray json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// A frame's first 20 bytes, whatever they claim.
inline QByteArray header(quint32 magic, quint16 type, quint32 length)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << magic << quint16(1) << type << length << quint32(1) << quint32(0);
    return bytes;
}

inline QByteArray discoveryFrame(const QString &id, const QString &ip, int port = 52024,
                                 const QString &code = u"0427"_s, int role = Zandrove::NewPC)
{
    return frame(MessageType::Discovery, json({{u"id"_s, id},
                                               {u"name"_s, id},
                                               {u"ip"_s, ip},
                                               {u"port"_s, port},
                                               {u"os"_s, u"Test OS"_s},
                                               {u"role"_s, role},
                                               {u"code"_s, code}}));
}
