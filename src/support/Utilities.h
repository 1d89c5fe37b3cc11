#pragma once

#include "support/NetworkAdapters.h"

#include <QByteArray>
#include <QHostAddress>
#include <QString>

/// Free functions that format numbers for the user, tell who this machine is on the network, and sum a
/// payload. They keep no state.
namespace Zandrove {

/// Checksum of a frame's payload: from 0, for each byte, the byte is added to the 32-bit sum and the sum is
/// rotated left by one bit. 0 for an empty payload.
[[nodiscard]] quint32 calculateChecksum(const QByteArray &data);

/// "m:ss" with two digits each below an hour ("00:59"), "h:mm:ss" from an hour on ("1:01:01"); negative
/// counts as 0.
[[nodiscard]] QString formatTime(int seconds);

/// Bytes in binary units: "0 B", "1023 B", "1.0 KB", "1.0 MB", "1.00 GB", "1.00 TB". Always a decimal point.
[[nodiscard]] QString formatSize(qint64 bytes);

/// Bytes per second in binary units: "0 B/s", "1.5 KB/s"; negative counts as 0.
[[nodiscard]] QString formatSpeed(double bytesPerSecond);

/// Name of this computer.
[[nodiscard]] QString getComputerName();

/// The address to announce on the network: the best private IPv4 address, "127.0.0.1" without one.
[[nodiscard]] QString getLocalIP();

/// The choice behind getLocalIP, over the given adapters: 192.168/16 before 10/8, 172.16/12 and 169.254/16, a
/// wired adapter before a wireless one of the same kind, the first of equals.
[[nodiscard]] QString bestLocalAddress(const QList<NetworkAdapter> &adapters);

/// Description of the operating system.
[[nodiscard]] QString getOSVersion();

/// True for an IPv4 address in 10/8, 172.16/12, 192.168/16 or 169.254/16.
[[nodiscard]] bool isPrivateAddress(const QHostAddress &address);

} // namespace Zandrove
