#pragma once

#include "SilentLink.h"
#include "TestMain.h"

#include "peer/FrameReader.h"
#include "support/Json.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Protocol::MessageType;

/// An address of this machine that the managers take for another one: without adapters only 127.0.0.1 is own.
inline const QHostAddress OtherMachine(u"127.0.0.2"_s);

inline NetworkAdapter adapter(const QString &name, const QStringList &ips)
{
    NetworkAdapter result{name, true, true, false, true, {}, false, {}};
    for (const QString &ip : ips)
        result.addresses.append({QHostAddress(ip), QHostAddress()});
    return result;
}

inline QByteArray frame(MessageType type, const QByteArray &payload = {})
{
    return Protocol::buildFrame(type, payload, 1);
}

inline QByteArray jsonFrame(MessageType type, const QJsonObject &object)
{
    return frame(type, compactJson(object));
}

/// A frame's first 20 bytes, whatever they claim.
inline QByteArray header(quint32 magic, quint16 type, quint32 length)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly)
        << magic << quint16(1) << type << length << quint32(1) << quint32(0);
    return bytes;
}

inline QByteArray discoveryFrame(const QString &id, const QString &ip, int port = 52024,
                                 const QString &code = u"0427"_s, int role = NewPC)
{
    return jsonFrame(MessageType::Discovery, {{u"id"_s, id},
                                              {u"name"_s, id},
                                              {u"ip"_s, ip},
                                              {u"port"_s, port},
                                              {u"os"_s, u"Test OS"_s},
                                              {u"role"_s, role},
                                              {u"code"_s, code}});
}
