#pragma once

#include "appmigration/AppPackage.h"

#include <QByteArray>

#include <optional>

/// The two messages that stand before and behind the files of an application, as compact JSON objects.
///
/// Begin: appName, safeName, version, publisher, installLocation, sourceUser, totalSize, fileCount, and
/// shortcuts with shortcutPath, targetPath, arguments, workingDir, iconPath, iconIndex, description each.
/// End: appName, safeName, filesQueued, filesSkipped.
namespace Zandrove {

[[nodiscard]] QByteArray appStartPayload(const AppPackage &package);

/// What a begin message says. Fields that are missing or of the wrong type are empty; nothing for a text that
/// is no object, or with a name that can't be a part of a path.
[[nodiscard]] std::optional<AppPackage> readAppStart(const QByteArray &payload);

/// The name of the application that an end message is about; empty where it says none.
[[nodiscard]] QString readAppEnd(const QByteArray &payload);

/// What the New PC is told: the name alone.
[[nodiscard]] QByteArray heldAppEndPayload(const QString &name);

[[nodiscard]] QByteArray appEndPayload(const QString &name, int filesQueued, int filesSkipped);

} // namespace Zandrove
