#pragma once

#include "diagnosis/Facts.h"

#include <QHostAddress>

namespace Zandrove {

/// Connects to each of `targets`, addresses or names, all at the same time, and closes at once whatever is
/// reached. Returns one outcome for each. Blocks the calling thread for some seconds at the most, and ends
/// early when its interruption is requested. `own`: the addresses of this PC, which aren't tried.
[[nodiscard]] QList<DialFacts> dialAll(const QStringList &targets, const QList<QHostAddress> &own);

} // namespace Zandrove
