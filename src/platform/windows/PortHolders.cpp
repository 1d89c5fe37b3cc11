#include "platform/PortHolders.h"

// In this order: what is declared in one header is needed by the next.
#include <winsock2.h>
#include <ws2ipdef.h>

#include <iphlpapi.h>

#include <QByteArray>
#include <QFileInfo>
#include <QSet>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

constexpr int MostTries = 4;

/// A table of the system, in a buffer of its size at that moment. `read` fills the buffer, or says how large
/// it has to be.
template <typename Read>
QByteArray table(Read read)
{
    QByteArray buffer;
    DWORD size = 0;
    for (int i = 0; i < MostTries; ++i) {
        const DWORD result = read(buffer.isEmpty() ? nullptr : buffer.data(), &size);
        if (result == NO_ERROR)
            return buffer;
        if (result != ERROR_INSUFFICIENT_BUFFER)
            return {};
        buffer.resize(qsizetype(size));
    }
    return {};
}

quint16 portOf(DWORD field)
{
    return qFromBigEndian(quint16(field));
}

QSet<DWORD> tcpListeners(quint16 port)
{
    const QByteArray bytes = table([](void *buffer, DWORD *size) {
        return GetExtendedTcpTable(buffer, size, FALSE, AF_INET, TCP_TABLE_OWNER_PID_LISTENER, 0);
    });
    QSet<DWORD> processes;
    const auto *rows = reinterpret_cast<const MIB_TCPTABLE_OWNER_PID *>(bytes.constData());
    for (DWORD i = 0; !bytes.isEmpty() && i < rows->dwNumEntries; ++i) {
        if (portOf(rows->table[i].dwLocalPort) == port)
            processes.insert(rows->table[i].dwOwningPid);
    }
    return processes;
}

QSet<DWORD> udpHolders(quint16 port)
{
    const QByteArray bytes = table([](void *buffer, DWORD *size) {
        return GetExtendedUdpTable(buffer, size, FALSE, AF_INET, UDP_TABLE_OWNER_PID, 0);
    });
    QSet<DWORD> processes;
    const auto *rows = reinterpret_cast<const MIB_UDPTABLE_OWNER_PID *>(bytes.constData());
    for (DWORD i = 0; !bytes.isEmpty() && i < rows->dwNumEntries; ++i) {
        if (portOf(rows->table[i].dwLocalPort) == port)
            processes.insert(rows->table[i].dwOwningPid);
    }
    return processes;
}

QString programOf(DWORD processId)
{
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId);
    if (!process)
        return {};
    wchar_t path[MAX_PATH * 4] = {};
    DWORD length = MAX_PATH * 4;
    const bool isKnown = QueryFullProcessImageNameW(process, 0, path, &length) != 0;
    CloseHandle(process);
    return isKnown ? QFileInfo(QString::fromWCharArray(path, int(length))).completeBaseName() : QString();
}

} // namespace

QList<PortHolder> portHolders(Transport transport, quint16 port)
{
    QList<PortHolder> holders;
    const QSet<DWORD> processes = transport == Transport::Tcp ? tcpListeners(port) : udpHolders(port);
    for (const DWORD process : processes)
        holders.append({qint64(process), programOf(process)});
    return holders;
}

QString portHolderCommand(Transport transport, quint16 port)
{
    const QString kind = transport == Transport::Tcp ? u"tcp"_s : u"udp"_s;
    return u"netstat -ano -p %1 | findstr :%2"_s.arg(kind, QString::number(port));
}

} // namespace Zandrove::Platform
