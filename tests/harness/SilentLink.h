#pragma once

#include "peer/NetworkManager.h"

namespace Zandrove {

/// A link on free ports, without adapters to sweep. No broadcast reaches it, and its own go to `sent` alone.
[[nodiscard]] inline LinkEnvironment silentEnvironment(std::function<void(const QByteArray &)> sent = {})
{
    LinkEnvironment environment;
    environment.tcpPort = 0;
    environment.udpPort = 0;
    environment.adapters = [] { return QList<NetworkAdapter>(); };
    environment.sendDatagram = [sent](const QByteArray &datagram, const QHostAddress &, quint16) {
        if (sent)
            sent(datagram);
    };
    return environment;
}

} // namespace Zandrove
