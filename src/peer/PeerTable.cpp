#include "peer/PeerTable.h"

#include "peer/Log.h"

#include <algorithm>
#include <utility>

namespace Zandrove {

namespace {

/// A peer not heard for longer than this misses a check.
constexpr qint64 SilenceAllowedMs = 15000;
constexpr int MissedChecksToLose = 3;
/// Datagrams are free to send, rows are not free to keep.
constexpr qsizetype MostPeers = 512;
/// How often a PC of the same role is told of, and how many in that time.
constexpr qint64 SameRoleIntervalMs = 5000;
constexpr qsizetype MostOfSameRole = 16;

/// A peer that only the sweep has found goes by its address until its first datagram.
bool isScanDiscovered(const PCInfo &pc)
{
    return pc.id == pc.ip;
}

template <typename Test>
std::optional<PCInfo> firstOf(const QList<PeerTable::Row> &rows, Test test)
{
    const auto row = std::find_if(rows.cbegin(), rows.cend(),
                                  [&test](const PeerTable::Row &each) { return test(each.pc); });
    return row != rows.cend() ? std::optional(row->pc) : std::nullopt;
}

} // namespace

std::optional<PCInfo> PeerTable::hear(PCInfo pc, const QDateTime &now)
{
    const auto known = std::find_if(m_rows.begin(), m_rows.end(), [&pc](const Row &row) {
        return row.pc.id == pc.id || (!pc.ip.isEmpty() && row.pc.ip == pc.ip);
    });
    if (known == m_rows.end())
        return append(std::move(pc), now);
    const bool wasScanDiscovered = isScanDiscovered(known->pc);
    pc.senderIp = known->pc.senderIp;
    pc.lastSeen = now;
    known->pc = std::move(pc);
    // A row that took over another one's id must not let that one, which is the same peer, be lost.
    for (Row &row : m_rows) {
        if (row.pc.id == known->pc.id) {
            row.lastHeard = now;
            row.missedChecks = 0;
        }
    }
    if (!wasScanDiscovered)
        return std::nullopt;
    qCDebug(logPeer) << "Updated scan-discovered device:" << known->pc.name;
    return known->pc;
}

std::optional<PCInfo> PeerTable::find(const QString &ip, const QString &name, quint16 port,
                                      const QDateTime &now)
{
    const auto known = firstOf(m_rows, [&ip](const PCInfo &pc) { return pc.ip == ip || pc.senderIp == ip; });
    if (known) {
        qCDebug(logPeer) << "  Device already in list:" << known->name;
        return std::nullopt;
    }
    PCInfo pc;
    pc.id = ip;
    pc.name = name;
    pc.ip = ip;
    pc.senderIp = ip;
    pc.port = port;
    pc.online = true;
    auto added = append(std::move(pc), now);
    if (added)
        qCDebug(logPeer) << "  Added device from scan:" << ip;
    return added;
}

void PeerTable::age(const QDateTime &now)
{
    for (Row &row : m_rows)
        row.missedChecks = row.lastHeard.msecsTo(now) > SilenceAllowedMs ? row.missedChecks + 1 : 0;
}

const PeerTable::Row *PeerTable::overdue() const
{
    const auto row = std::find_if(m_rows.crbegin(), m_rows.crend(),
                                  [](const Row &each) { return each.missedChecks >= MissedChecksToLose; });
    return row != m_rows.crend() ? &*row : nullptr;
}

void PeerTable::giveUp(quint64 key)
{
    const auto row =
        std::find_if(m_rows.cbegin(), m_rows.cend(), [key](const Row &each) { return each.key == key; });
    if (row == m_rows.cend())
        return;
    const QString id = row->pc.id;
    m_rows.removeIf([&id](const Row &each) { return each.pc.id == id; });
}

bool PeerTable::hearSameRole(const QString &name, const QDateTime &now)
{
    m_sameRole.removeIf([&now](auto told) { return told.value().msecsTo(now) >= SameRoleIntervalMs; });
    if (m_sameRole.contains(name) || m_sameRole.size() >= MostOfSameRole)
        return false;
    m_sameRole.insert(name, now);
    return true;
}

QList<PCInfo> PeerTable::peers() const
{
    QList<PCInfo> result;
    result.reserve(m_rows.size());
    for (const Row &row : m_rows)
        result.append(row.pc);
    return result;
}

std::optional<PCInfo> PeerTable::withId(const QString &id) const
{
    return firstOf(m_rows, [&id](const PCInfo &pc) { return pc.id == id; });
}

std::optional<PCInfo> PeerTable::withCode(const QString &verifyCode) const
{
    return firstOf(m_rows, [&verifyCode](const PCInfo &pc) { return pc.verifyCode == verifyCode; });
}

/// Nothing, and nothing done, where the table is full.
std::optional<PCInfo> PeerTable::append(PCInfo pc, const QDateTime &now)
{
    if (m_rows.size() >= MostPeers)
        return std::nullopt;
    pc.lastSeen = now;
    m_rows.append({++m_lastKey, pc, now, 0});
    return pc;
}

} // namespace Zandrove
