#include "support/PeerChoice.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// Six announcements.
constexpr qint64 SilenceMs = 3000;

/// Those that fit, one for each address.
template <typename Rule>
QList<PCInfo> matches(const QList<PCInfo> &peers, Rule fits)
{
    QList<PCInfo> result;
    for (const PCInfo &peer : peers) {
        if (!fits(peer))
            continue;
        const auto same = std::find_if(result.begin(), result.end(),
                                       [&peer](const PCInfo &each) { return each.ip == peer.ip; });
        if (same == result.end())
            result.append(peer);
        else if (same->lastSeen < peer.lastSeen)
            *same = peer;
    }
    return result;
}

} // namespace

QList<PCInfo> peersWithCode(const QList<PCInfo> &peers, const QString &code)
{
    return matches(peers, [&code](const PCInfo &peer) { return peer.verifyCode == code; });
}

QList<PCInfo> peersNamed(const QList<PCInfo> &peers, const QString &name)
{
    QList<PCInfo> named = matches(
        peers, [&name](const PCInfo &peer) { return peer.name.compare(name, Qt::CaseInsensitive) == 0; });
    QDateTime last;
    for (const PCInfo &peer : std::as_const(named))
        last = last.isValid() ? std::max(last, peer.lastSeen) : peer.lastSeen;
    named.removeIf([&last](const PCInfo &peer) { return peer.lastSeen.msecsTo(last) > SilenceMs; });
    return named;
}

QString describedPeers(const QList<PCInfo> &peers)
{
    QStringList texts;
    for (const PCInfo &peer : peers)
        texts.append(u"%1 (%2)"_s.arg(peer.name, peer.ip));
    return texts.join(u", "_s);
}

} // namespace Zandrove
