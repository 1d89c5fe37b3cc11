#pragma once

#include "settings/SettingPackage.h"

namespace Zandrove {

/// Whether a setting was applied.
struct ApplyResult
{
    // Implicit: most know no reason.
    ApplyResult(bool isApplied, const QString &why = QString())
        : applied(isApplied)
        , reason(why)
    {
    }

    bool applied;
    QString reason; ///< why it wasn't, in the system's words or translated; empty where nothing tells
};

/// Applies a setting from the Old PC to this user's system at once: imports its keys, writes its file and its
/// values, and tells the system of the change. What the package holds may be anything; its file is written
/// below the pictures folder only, and takes the place of one of its name whole or not at all. Nothing is
/// rolled back where a setting fails, and the log says why.
///
/// Runs programs of the system and broadcasts to windows, and blocks the calling thread for as long.
[[nodiscard]] ApplyResult applySetting(const SettingPackage &package);

} // namespace Zandrove
