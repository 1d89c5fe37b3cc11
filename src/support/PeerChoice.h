#pragma once

#include "core/common/Records.h"

namespace Zandrove {

// Which of the peers a user means. More than one is an answer too: who is really meant, only the user can
// say. Records that would be dialled at one address are one peer, whatever they call themselves; of them the
// one counts that was heard last.

/// Those of `peers` that show `code`.
[[nodiscard]] QList<PCInfo> peersWithCode(const QList<PCInfo> &peers, const QString &code);

/// Those of `peers` with this name in any letter case, but for those that have fallen silent since the last
/// of them was heard: a PC that has moved and begun anew stands there twice for a while.
[[nodiscard]] QList<PCInfo> peersNamed(const QList<PCInfo> &peers, const QString &name);

/// Name and address of each, for a sentence.
[[nodiscard]] QString describedPeers(const QList<PCInfo> &peers);

} // namespace Zandrove
