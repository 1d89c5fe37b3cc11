#pragma once

#include <QList>
#include <QString>

namespace Zandrove::Platform {

enum class Transport { Tcp, Udp };

/// A program that holds a port.
struct PortHolder
{
    qint64 processId = 0; ///< 0 where the system tells only that there is one
    QString program;      ///< its file name, without path and ".exe"; empty where it isn't told
};

/// Who listens on TCP `port`, or has UDP `port`, on any address of this PC.
[[nodiscard]] QList<PortHolder> portHolders(Transport transport, quint16 port);

/// The command by which an administrator sees who that is.
[[nodiscard]] QString portHolderCommand(Transport transport, quint16 port);

} // namespace Zandrove::Platform
