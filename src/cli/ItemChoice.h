#pragma once

#include "cli/Options.h"
#include "core/common/Records.h"

#include <QList>
#include <QString>

namespace Zandrove::Cli {

/// What of a scan's result the user asked for.
struct ItemChoice
{
    QList<int> apps; ///< positions in the scan's result, as in the next line
    QList<int> settings;
    QString problem; ///< one line that says what can't be moved; empty when all of it can
};

/// Whether `options` ask for something that only a scan of this PC finds.
[[nodiscard]] bool needsScan(const Options &options);

/// Applications are told by their exact display name, each of that name being meant, settings by their id.
[[nodiscard]] ItemChoice chooseItems(const ScanResult &result, const Options &options);

} // namespace Zandrove::Cli
