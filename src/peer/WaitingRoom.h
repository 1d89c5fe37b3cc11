#pragma once

#include "core/common/Records.h"
#include "peer/Protocol.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QList>
#include <QObject>

#include <chrono>
#include <functional>
#include <vector>

namespace Zandrove {

class Link;

/// The connections that have come in and that nobody has said yes to. They wait here, beside the accepted
/// one, until they have asked and the user has chosen; one that leaves before it has asked is noticed by
/// nobody, and no number of them keeps a PC at another address from asking.
///
/// A question has a number of its own, and only the user's answer, the asker's leaving or a yes to another
/// one ends it.
class WaitingRoom final : public QObject
{
    Q_OBJECT

public:
    /// `second` is how long a second of its limits in time lasts. `isBusy` is asked about the address of
    /// each asker: while it says yes, that one is turned down at once.
    WaitingRoom(std::chrono::milliseconds second, std::function<bool(const QString &ip)> isBusy,
                QObject *parent);

    /// Takes a connection that has come in. It has 10 s to ask.
    void admit(Link *link);

    /// Open questions, oldest first.
    [[nodiscard]] QList<ConnectionQuestion> questions() const;
    /// Whether `question` is open; 0 stands for the oldest one.
    [[nodiscard]] bool isOpen(quint64 question) const;
    /// The user's yes: the asker's link, which has nothing to do with this room any more; null when the
    /// question is not open, with 0 for the oldest one.
    [[nodiscard]] Link *take(quint64 question);
    /// The user's no, which the asker is told. After three of them its address is left unheard for a minute.
    /// False when the question is not open.
    bool refuse(quint64 question);
    /// Turns down all that are here.
    void refuseAll();
    /// Asks a question that is open once more, by a new number.
    void askAnew(quint64 question);

Q_SIGNALS:
    void asked(const Zandrove::ConnectionQuestion &question);
    void ended(quint64 question); ///< its asker has left, or another one was chosen

private:
    struct Newcomer
    {
        Link *link = nullptr;
        ConnectionQuestion question; ///< its number is 0 before it asks
    };
    struct Refusals
    {
        int count = 0;
        QDeadlineTimer silence;
    };
    using Place = std::vector<Newcomer>::iterator;

    [[nodiscard]] Place placeOf(const Link *link);
    [[nodiscard]] Place placeOf(quint64 question);
    [[nodiscard]] Place oneToLeave();
    void onFrame(Link *link, Protocol::MessageType type, const QByteArray &payload);
    void onRequest(Link *link, const QByteArray &payload);
    [[nodiscard]] bool takesOver(const Link *link, const ConnectionQuestion &question);
    void remove(const Link *link);
    Link *vacate(Place place);
    void turnDown(Place place);
    [[nodiscard]] bool isUnheard(const QString &ip) const;
    void countRefusal(const QString &ip);

    const std::chrono::milliseconds m_second;
    const std::function<bool(const QString &ip)> m_isBusy;
    std::vector<Newcomer> m_newcomers; ///< those with a question in the order of their numbers
    quint64 m_questions = 0;           ///< asked so far
    QHash<QString, Refusals> m_refusals;
};

} // namespace Zandrove
