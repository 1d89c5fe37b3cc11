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
constexpr qsizetype MostRowsOfASender = 16;
constexpr qsizetype MostCandidates = 4;
/// Four announcements: an address that misses so many is not in use any more.
constexpr qint64 LeadKeptMs = 2000;
constexpr qint64 CandidateKeptMs = 30000;
/// How often a PC of the same role is told of, and how many in that time.
constexpr qint64 SameRoleIntervalMs = 5000;
constexpr qsizetype MostOfSameRole = 16;

bool hasCandidate(const PeerTable::Row &row, const QString &ip)
{
    return std::any_of(row.candidates.cbegin(), row.candidates.cend(),
                       [&ip](const PeerTable::Candidate &candidate) { return candidate.ip == ip; });
}

/// A new address leads at once, a known one as soon as the leading one falls silent: so a peer with two of
/// them has one that stays, and a peer that has moved is not looked for where it was.
void hearAt(PeerTable::Row &row, const QString &ip, const QDateTime &now)
{
    auto &candidates = row.candidates;
    const auto known = std::find_if(candidates.begin(), candidates.end(),
                                    [&ip](const PeerTable::Candidate &each) { return each.ip == ip; });
    if (known == candidates.end()) {
        candidates.prepend({ip, now});
        if (candidates.size() > MostCandidates)
            candidates.removeLast();
        return;
    }
    known->lastHeard = now;
    if (candidates.first().lastHeard.msecsTo(now) > LeadKeptMs)
        std::rotate(candidates.begin(), known, known + 1);
}

} // namespace

PeerTable::PeerTable(DialOrder order)
    : m_order(order ? std::move(order) : [](const QStringList &candidates) { return candidates; })
{
}

/// The row of the peer that a datagram speaks of: by id and code; else a row of that id at the same address,
/// whose peer has drawn another code since; else what the sweep has found there.
PeerTable::Place PeerTable::placeFor(const PCInfo &pc)
{
    const std::function<bool(const Row &)> rules[] = {
        [&pc](const Row &row) { return row.pc.id == pc.id && row.pc.verifyCode == pc.verifyCode; },
        [&pc](const Row &row) { return row.pc.id == pc.id && hasCandidate(row, pc.senderIp); },
        [&pc](const Row &row) { return !row.heard && hasCandidate(row, pc.senderIp); }};
    for (const auto &rule : rules) {
        const auto row = std::find_if(m_rows.begin(), m_rows.end(), rule);
        if (row != m_rows.end())
            return row;
    }
    return m_rows.end();
}

std::optional<PCInfo> PeerTable::hear(const PCInfo &pc, const QDateTime &now)
{
    const Place row = placeFor(pc);
    if (row == m_rows.end())
        return append({pc, pc.ip, {}, 0, true, false}, now);
    const bool isNews = !std::exchange(row->heard, true);
    const QString address = record(*row).ip;
    if (row->pc.verifyCode != pc.verifyCode)
        row->candidates.clear(); // they spoke under another code
    hearAt(*row, pc.senderIp, now);
    const quint64 key = row->pc.key;
    row->announcedIp = pc.ip;
    row->pc = pc;
    row->pc.key = key;
    row->pc.lastSeen = now;
    row->missedChecks = 0;
    const PCInfo heard = record(*row);
    takeFromOthers(pc.senderIp, pc.id, key);
    if (isNews)
        qCDebug(logPeer) << "Updated scan-discovered device:" << heard.name;
    return isNews || heard.ip != address ? std::optional(heard) : std::nullopt;
}

/// What has been heard at an address under an id makes that peer the one there: rows of the same id, under an
/// older code, and what the sweep has found there stand for it no longer.
void PeerTable::takeFromOthers(const QString &ip, const QString &id, quint64 key)
{
    for (Row &row : m_rows) {
        if (row.pc.key != key && (row.pc.id == id || !row.heard))
            row.candidates.removeIf([&ip](const Candidate &each) { return each.ip == ip; });
        if (row.candidates.isEmpty())
            m_displaced.append(row.pc);
    }
    m_rows.removeIf([](const Row &row) { return row.candidates.isEmpty(); });
}

std::optional<PCInfo> PeerTable::find(const QString &ip, const QString &name, quint16 port,
                                      const QDateTime &now)
{
    if (const Row *known = rowAt(ip)) {
        qCDebug(logPeer) << "  Device already in list:" << known->pc.name;
        return std::nullopt;
    }
    PCInfo pc;
    pc.id = ip;
    pc.name = name;
    pc.ip = ip;
    pc.senderIp = ip;
    pc.port = port;
    pc.online = true;
    auto added = append({pc, {}, {}, 0, false, false}, now);
    if (added)
        qCDebug(logPeer) << "  Added device from scan:" << ip;
    return added;
}

QList<PCInfo> PeerTable::takeDisplaced()
{
    return std::exchange(m_displaced, {});
}

void PeerTable::age(const QDateTime &now)
{
    for (Row &row : m_rows) {
        row.missedChecks = row.pc.lastSeen.msecsTo(now) > SilenceAllowedMs ? row.missedChecks + 1 : 0;
        if (row.missedChecks == 0)
            row.candidates.removeIf([&now](const Candidate &candidate) {
                return candidate.lastHeard.msecsTo(now) > CandidateKeptMs;
            });
    }
}

const PeerTable::Row *PeerTable::overdue() const
{
    const auto row = std::find_if(m_rows.crbegin(), m_rows.crend(),
                                  [](const Row &each) { return each.missedChecks >= MissedChecksToLose; });
    return row != m_rows.crend() ? &*row : nullptr;
}

void PeerTable::giveUp(quint64 key)
{
    m_rows.removeIf([key](const Row &row) { return row.pc.key == key; });
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
        result.append(record(row));
    return result;
}

const PeerTable::Row *PeerTable::rowOf(quint64 key, const QString &id) const
{
    const auto row = std::find_if(m_rows.cbegin(), m_rows.cend(), [key, &id](const Row &each) {
        return key != 0 ? each.pc.key == key : each.pc.id == id;
    });
    return row != m_rows.cend() ? &*row : nullptr;
}

const PeerTable::Row *PeerTable::rowAt(const QString &ip) const
{
    const auto row = std::find_if(m_rows.cbegin(), m_rows.cend(),
                                  [&ip](const Row &each) { return hasCandidate(each, ip); });
    return row != m_rows.cend() ? &*row : nullptr;
}

QStringList PeerTable::addressesOf(const Row &row) const
{
    QList<Candidate> candidates = row.candidates;
    std::stable_sort(candidates.begin() + 1, candidates.end(),
                     [](const Candidate &a, const Candidate &b) { return a.lastHeard > b.lastHeard; });
    QStringList ips;
    for (const Candidate &candidate : std::as_const(candidates))
        ips.append(candidate.ip);
    return ips.size() > 1 ? m_order(ips) : ips;
}

void PeerTable::noteDialled(quint64 key)
{
    for (Row &row : m_rows)
        row.dialled = row.dialled || row.pc.key == key;
}

PCInfo PeerTable::record(const Row &row) const
{
    PCInfo pc = row.pc;
    pc.ip = pc.senderIp = addressesOf(row).first();
    return pc;
}

/// Nothing, and nothing done, where there is no room.
std::optional<PCInfo> PeerTable::append(Row row, const QDateTime &now)
{
    const QString ip = row.pc.senderIp;
    const auto ofSender = std::count_if(m_rows.cbegin(), m_rows.cend(),
                                        [&ip](const Row &each) { return hasCandidate(each, ip); });
    if (ofSender >= MostRowsOfASender || (m_rows.size() >= MostPeers && !makeRoom()))
        return std::nullopt;
    row.pc.key = ++m_lastKey;
    row.pc.lastSeen = now;
    row.candidates.append({ip, now});
    m_rows.append(row);
    return record(row);
}

bool PeerTable::makeRoom()
{
    QHash<QString, int> rowsOf;
    for (const Row &row : std::as_const(m_rows))
        ++rowsOf[row.candidates.first().ip];
    const auto staysRather = [&rowsOf](const Row &a, const Row &b) {
        if (a.dialled != b.dialled)
            return a.dialled;
        const int rowsOfA = rowsOf.value(a.candidates.first().ip);
        const int rowsOfB = rowsOf.value(b.candidates.first().ip);
        return rowsOfA != rowsOfB ? rowsOfA < rowsOfB : a.pc.lastSeen > b.pc.lastSeen;
    };
    const auto leaving = std::max_element(m_rows.begin(), m_rows.end(), staysRather);
    if (leaving->dialled)
        return false;
    m_displaced.append(leaving->pc);
    m_rows.erase(leaving);
    return true;
}

} // namespace Zandrove
