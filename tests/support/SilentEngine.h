#pragma once

#include "core/engine/TransferEngine.h"

namespace Zandrove {

/// A link on free ports that no broadcast leaves or reaches, and without adapters to sweep.
[[nodiscard]] inline LinkEnvironment silentEnvironment()
{
    LinkEnvironment environment;
    environment.tcpPort = 0;
    environment.udpPort = 0;
    environment.adapters = [] { return QList<NetworkAdapter>(); };
    environment.sendDatagram = [](const QByteArray &, const QHostAddress &, quint16) {};
    return environment;
}

} // namespace Zandrove
