#pragma once

#include "diagnosis/Facts.h"

#include <QUdpSocket>

#include <chrono>

namespace Zandrove {

/// Listens on the port of the datagrams beside whatever copy of the program has it, and takes down who
/// announces itself. Belongs to the thread that made it; what waits blocks that thread, and ends early when
/// its interruption is requested.
class Ear final
{
public:
    Ear();

    /// Whether the port could be had.
    [[nodiscard]] bool isOpen() const;

    /// Sends a datagram that every copy ignores to the broadcast addresses of each adapter that can be used,
    /// from that adapter's own address, and notes in `adapters` whether it left.
    void probe(QList<AdapterFacts> &adapters);

    void listen(std::chrono::milliseconds duration);

    /// Whether what probe() sent from `address` has come back.
    [[nodiscard]] bool hasHeardProbe(const QHostAddress &address) const;
    /// Everybody who has announced himself so far, this PC's own copies left out.
    [[nodiscard]] QList<HeardPc> heard() const { return m_heard; }

private:
    void take(const QByteArray &datagram, const QHostAddress &sender);
    void note(const HeardPc &announced);

    QUdpSocket m_socket;
    QByteArray m_mark; ///< by which a probe of this object is known
    QList<QHostAddress> m_own;
    QList<QHostAddress> m_probesHeard; ///< by the address that they came from
    QList<HeardPc> m_heard;
};

} // namespace Zandrove
