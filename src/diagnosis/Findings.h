#pragma once

#include "diagnosis/Facts.h"
#include "diagnosis/Finding.h"

#include <QList>

/// What is to be said of what the tests have seen. Nothing here looks at the PC.
namespace Zandrove {

/// Of the adapters and the routes around them.
[[nodiscard]] QList<Finding> adapterFindings(const PcFacts &pc);

/// Of the two ports and the firewalls.
[[nodiscard]] QList<Finding> portFindings(const PcFacts &pc);

/// Of the other PCs, and of what only their silence shows about this one.
[[nodiscard]] QList<Finding> peerFindings(const PcFacts &pc, const PeerFacts &peers);

/// The VPN by which packets for `address` leave, though an adapter is in its network; empty without one.
[[nodiscard]] QString vpnThatTakes(const PcFacts &pc, quint32 address);

} // namespace Zandrove
