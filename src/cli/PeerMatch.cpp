#include "cli/PeerMatch.h"

#include "support/PeerChoice.h"

#include <QHostAddress>

#include <algorithm>

namespace Zandrove::Cli {

bool isVerifyCode(const QString &target)
{
    return target.size() == 4 && std::all_of(target.begin(), target.end(), [](QChar character) {
               return character >= u'0' && character <= u'9';
           });
}

bool isAddress(const QString &target)
{
    return (target.count(u'.') == 3 || target.contains(u':')) && !QHostAddress(target).isNull();
}

QList<PCInfo> findPeers(const QList<PCInfo> &peers, const QString &target)
{
    QList<PCInfo> found;
    if (isAddress(target)) {
        std::copy_if(peers.begin(), peers.end(), std::back_inserter(found),
                     [&target](const PCInfo &peer) { return peer.ip == target; });
        return found.first(std::min<qsizetype>(found.size(), 1));
    }
    if (isVerifyCode(target))
        found = peersWithCode(peers, target);
    return found.isEmpty() ? peersNamed(peers, target) : found;
}

} // namespace Zandrove::Cli
