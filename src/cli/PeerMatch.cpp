#include "cli/PeerMatch.h"

#include <algorithm>

namespace Zandrove::Cli {

namespace {

template <typename Rule>
std::optional<PCInfo> firstMatch(const QList<PCInfo> &peers, Rule rule)
{
    const auto peer = std::find_if(peers.begin(), peers.end(), rule);
    return peer == peers.end() ? std::nullopt : std::optional(*peer);
}

} // namespace

bool isVerifyCode(const QString &target)
{
    return target.size() == 4 && std::all_of(target.begin(), target.end(), [](QChar character) {
               return character >= u'0' && character <= u'9';
           });
}

std::optional<PCInfo> findPeer(const QList<PCInfo> &peers, const QString &target)
{
    if (isVerifyCode(target)) {
        const auto byCode = firstMatch(peers, [&](const PCInfo &peer) { return peer.verifyCode == target; });
        if (byCode)
            return byCode;
    }
    const auto byName = firstMatch(
        peers, [&](const PCInfo &peer) { return peer.name.compare(target, Qt::CaseInsensitive) == 0; });
    if (byName)
        return byName;
    return firstMatch(peers,
                      [&](const PCInfo &peer) { return peer.ip == target || peer.senderIp == target; });
}

} // namespace Zandrove::Cli
