#pragma once

#include "core/common/Records.h"
#include "support/NetworkAdapters.h"

#include <QByteArray>
#include <QDateTime>
#include <QHostAddress>

#include <chrono>
#include <functional>

namespace Zandrove {

/// What the link takes from the world. The defaults are the real machine; tests replace single members.
struct LinkEnvironment
{
    /// Port to listen on; 0 takes any free one.
    quint16 tcpPort = TcpPort;
    /// Port to broadcast to and hear on; 0 hears on any free one and broadcasts nowhere.
    quint16 udpPort = UdpPort;
    AdapterSource adapters = systemNetworkAdapters;
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTime(); };
    /// How long a second lasts of those that tell a silent link.
    std::chrono::milliseconds watchSecond{1000};
    /// Replaces the UDP socket for outgoing datagrams when set.
    std::function<void(const QByteArray &datagram, const QHostAddress &target, quint16 port)> sendDatagram;
};

} // namespace Zandrove
