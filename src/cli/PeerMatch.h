#pragma once

#include "core/common/Records.h"

#include <optional>

namespace Zandrove::Cli {

/// Whether `target` is written like a code: exactly four digits.
[[nodiscard]] bool isVerifyCode(const QString &target);

/// The peer that a user means by `target`: the first one that shows it as its code, else the first one of
/// that name in any letter case, else the first one with that address.
[[nodiscard]] std::optional<PCInfo> findPeer(const QList<PCInfo> &peers, const QString &target);

} // namespace Zandrove::Cli
