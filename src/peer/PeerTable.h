#pragma once

#include "core/common/Records.h"

#include <QDateTime>
#include <QHash>
#include <QList>

#include <optional>

namespace Zandrove {

/// The peers that were heard or found, in the order of their discovery. It knows no socket and no clock: the
/// time is handed in, so that ageing is a matter of calls.
class PeerTable final
{
public:
    /// One peer.
    struct Row
    {
        quint64 key = 0; ///< of this row and of no other one, before or after
        PCInfo pc;
        QDateTime lastHeard;  ///< when anything came under its id, or the sweep found it
        int missedChecks = 0; ///< in succession
    };

    /// Takes what a datagram says of a peer: refreshes the first row with its id, or with its announced
    /// address unless that is empty, and appends one where there is none. The address that a row's first
    /// datagram came from stays. Returns the record where it is new, or where a row that only the sweep had
    /// found has got its name; nothing for a mere refresh, and nothing is done where the table is full.
    [[nodiscard]] std::optional<PCInfo> hear(PCInfo pc, const QDateTime &now);

    /// Takes what the sweep has found at an address. Returns the record where it is new.
    [[nodiscard]] std::optional<PCInfo> find(const QString &ip, const QString &name, quint16 port,
                                             const QDateTime &now);

    /// One check: whoever has been silent for more than 15 s misses it, all others begin anew.
    void age(const QDateTime &now);
    /// The last row that has missed three checks; null without one.
    [[nodiscard]] const Row *overdue() const;
    /// Removes a row, and with it all that go by the same id. An unknown key changes nothing.
    void giveUp(quint64 key);
    void clear() { m_rows.clear(); }

    /// Takes what a datagram says of a PC that has this copy's own role, which gets no row. Returns whether
    /// to tell of it: when it is new, and 5 s after it was told of.
    [[nodiscard]] bool hearSameRole(const QString &name, const QDateTime &now);

    [[nodiscard]] QList<PCInfo> peers() const;
    [[nodiscard]] std::optional<PCInfo> withId(const QString &id) const;
    [[nodiscard]] std::optional<PCInfo> withCode(const QString &verifyCode) const;

private:
    [[nodiscard]] std::optional<PCInfo> append(PCInfo pc, const QDateTime &now);

    QList<Row> m_rows;
    quint64 m_lastKey = 0;
    QHash<QString, QDateTime> m_sameRole; ///< when each was told of
};

} // namespace Zandrove
