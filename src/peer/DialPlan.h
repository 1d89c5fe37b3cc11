#pragma once

#include <QStringList>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Zandrove {

/// The addresses at which one peer is dialled, one after the other until one of them answers, and how long
/// each may take of the time that the dial has.
class DialPlan final
{
public:
    DialPlan() = default;
    explicit DialPlan(QStringList addresses)
        : m_addresses(std::move(addresses))
    {
    }

    [[nodiscard]] bool isThrough() const { return m_next >= m_addresses.size(); }
    /// The address whose turn it is; to be asked for only while the plan isn't through.
    [[nodiscard]] QString takeNext() { return m_addresses.at(m_next++); }
    [[nodiscard]] std::chrono::milliseconds timeForEach(std::chrono::milliseconds forAll) const
    {
        return forAll / std::max<qsizetype>(m_addresses.size(), 1);
    }
    /// An address has answered: no other one is tried.
    void reached() { m_next = m_addresses.size(); }
    /// Whether the peer that is dialled may be the one at `ip`.
    [[nodiscard]] bool aimsAt(const QString &ip) const { return m_addresses.contains(ip); }

private:
    QStringList m_addresses;
    qsizetype m_next = 0;
};

} // namespace Zandrove
