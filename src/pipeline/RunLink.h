#pragma once

#include "peer/Protocol.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>

class QObject;

namespace Zandrove {

class NetworkManager;

/// What a run needs of the link, as a value that a test replaces. An operation that is not set does nothing;
/// without `acceptedNumber` there is no link. All of them belong to the main thread, but for `unsentBytes`,
/// which is read anywhere.
struct RunLink
{
    /// Hands a message to the link, in order.
    std::function<void(Protocol::MessageType type, const QByteArray &payload)> send = {};
    /// The link that is accepted now: another number for each, 0 while there is none.
    std::function<quint64()> acceptedNumber = {};
    /// The name of the PC at its other end.
    std::function<QString()> peerName = {};
    /// Bytes that wait in the socket.
    std::shared_ptr<const std::atomic<qint64>> unsentBytes = {};
    /// Reads what was held back, when the answer of the gate may have changed.
    std::function<void()> resumeReading = {};
    /// Has `onChange` called, for as long as `context` lives, whenever the answer of `acceptedNumber` may be
    /// another one: the link is lost, or there is a new one.
    std::function<void(const QObject *context, std::function<void()> onChange)> watch = {};
    /// Has `onBreak` called, for as long as `context` lives and ahead of `onChange`, whenever the accepted
    /// link has ended without a goodbye of either side.
    std::function<void(const QObject *context, std::function<void()> onBreak)> watchBreaks = {};
    /// Asks `mayRead` before each read of the link; an empty function always reads.
    std::function<void(std::function<bool()> mayRead)> setGate = {};

    /// The link that `network` keeps, which may die first.
    [[nodiscard]] static RunLink over(NetworkManager *network);

    [[nodiscard]] quint64 number() const { return acceptedNumber ? acceptedNumber() : 0; }
    [[nodiscard]] QString peer() const { return peerName ? peerName() : QString(); }
};

} // namespace Zandrove
