#pragma once

#include "platform/Firewall.h"
#include "platform/PortHolders.h"

#include <QByteArray>
#include <QStringList>

namespace Zandrove::Platform {

/// What the rules of nftables make of a new IPv4 packet from another PC.
struct NftPassage
{
    Passage passage = Passage::Unknown;
    bool isAsked = false; ///< there are rules at all for what comes in
    QStringList closedBy; ///< family, table and name of the chain that ends it; empty where none does
};

/// Follows a packet to `port` through the rules in `json`, the output of "nft -j list ruleset". A rule that
/// asks for more than can be known here may hold or not.
[[nodiscard]] NftPassage nftPassage(const QByteArray &json, Transport transport, quint16 port);

} // namespace Zandrove::Platform
