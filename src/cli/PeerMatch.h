#pragma once

#include "core/common/Records.h"

namespace Zandrove::Cli {

/// Whether `target` is written like a code: exactly four digits.
[[nodiscard]] bool isVerifyCode(const QString &target);

/// Whether `target` is written like an address.
[[nodiscard]] bool isAddress(const QString &target);

/// The peers that a user may mean by `target`: those that show it as their code, else those of that name in
/// any letter case; of an address those that would be dialled there. More than one that isn't to be told
/// apart is for the user to decide.
[[nodiscard]] QList<PCInfo> findPeers(const QList<PCInfo> &peers, const QString &target);

} // namespace Zandrove::Cli
