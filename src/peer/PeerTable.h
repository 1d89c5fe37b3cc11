#pragma once

#include "core/common/Records.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

namespace Zandrove {

/// The peers that were heard or found, in the order of their discovery. It knows no socket and no clock: the
/// time is handed in, so that ageing is a matter of calls.
///
/// What goes by one id and one code is one peer, at whichever addresses it is heard; the same id with another
/// code, heard elsewhere, is another peer. Records that leave here carry the key of their row, and as their
/// address the one that would be dialled first.
class PeerTable final
{
public:
    /// Says in which order the addresses of a peer, newest first, are to be dialled.
    using DialOrder = std::function<QStringList(const QStringList &candidates)>;

    /// An address that a peer's datagrams come from, or at which the sweep found it.
    struct Candidate
    {
        QString ip;
        QDateTime lastHeard;
    };

    /// One peer.
    struct Row
    {
        PCInfo pc;           ///< as it was last heard, under a key that no other row has, before or after
        QString announcedIp; ///< what it takes for its own address
        QList<Candidate> candidates; ///< never empty; the first one is the address in use
        int missedChecks = 0;        ///< in succession
        bool heard = false;          ///< and not merely found by the sweep
        bool dialled = false;
    };

    explicit PeerTable(DialOrder order = {});

    /// Takes what a datagram says of a peer, whose announced address and sender stand in `pc`. Returns the
    /// record where it is new, is known by more than its address for the first time, or has moved; nothing
    /// for a mere refresh, of which a new code at the known address is one. Nothing is done for a further row
    /// of a sender that has 16. Where the table is full, a row goes that was never dialled: of the sender
    /// that has most of them, the one that was silent longest.
    [[nodiscard]] std::optional<PCInfo> hear(const PCInfo &pc, const QDateTime &now);

    /// Takes what the sweep has found at an address. Returns the record where it is new.
    [[nodiscard]] std::optional<PCInfo> find(const QString &ip, const QString &name, quint16 port,
                                             const QDateTime &now);

    /// The records of rows that have made way since this was last asked, be it for the room or because they
    /// have turned out to be one with another row.
    [[nodiscard]] QList<PCInfo> takeDisplaced();

    /// One check: whoever has been silent for more than 15 s misses it, all others begin anew. An address
    /// that was silent for 30 s is forgotten where the peer has another one.
    void age(const QDateTime &now);
    /// The last row that has missed three checks; null without one.
    [[nodiscard]] const Row *overdue() const;
    /// Removes a row. An unknown key changes nothing.
    void giveUp(quint64 key);
    void clear() { m_rows.clear(); }

    /// Takes what a datagram says of a PC that has this copy's own role, which gets no row. Returns whether
    /// to tell of it: when it is new, and 5 s after it was told of.
    [[nodiscard]] bool hearSameRole(const QString &name, const QDateTime &now);

    [[nodiscard]] QList<PCInfo> peers() const;
    /// The row with this key, or, with 0, the first one with this id; null without one.
    [[nodiscard]] const Row *rowOf(quint64 key, const QString &id) const;
    /// The row with this address among its candidates; null without one.
    [[nodiscard]] const Row *rowAt(const QString &ip) const;
    /// The addresses of a row in the order in which they are to be dialled, but for the announced one.
    [[nodiscard]] QStringList addressesOf(const Row &row) const;
    /// The row is being dialled: it does not make way for others any more.
    void noteDialled(quint64 key);

private:
    using Place = QList<Row>::iterator;

    [[nodiscard]] Place placeFor(const PCInfo &pc);
    [[nodiscard]] PCInfo record(const Row &row) const;
    [[nodiscard]] std::optional<PCInfo> append(Row row, const QDateTime &now);
    [[nodiscard]] bool makeRoom();
    void takeFromOthers(const QString &ip, const QString &id, quint64 key);

    DialOrder m_order;
    QList<Row> m_rows;
    QList<PCInfo> m_displaced;
    quint64 m_lastKey = 0;
    QHash<QString, QDateTime> m_sameRole; ///< when each was told of
};

} // namespace Zandrove
