#pragma once

#include <QDebug>
#include <QLoggingCategory>

namespace Zandrove {

/// The log lines of this layer. While it is off a line costs nothing, its arguments included.
inline Q_LOGGING_CATEGORY(logPipeline, "zandrove.pipeline")

    /// What either end of a run, a `Role`, leaves when it looks whether all of its lanes are through.
    inline void logAllCompletedCheck(bool files, bool apps, bool settings, int role)
{
    qCDebug(logPipeline) << "checkAllCompleted() -"
                         << "fileTransferDone:" << files << "appMigrationDone:" << apps
                         << "settingPhaseDone:" << settings << "role:" << role;
}

} // namespace Zandrove
