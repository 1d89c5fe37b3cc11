#pragma once

#include <QString>

#include <optional>

/// Shortcuts as the shell keeps them in .lnk files.
namespace Zandrove::Platform {

struct ShellLink
{
    QString path = {}; ///< what it starts, as it was written: environment variables stand as they are
    QString arguments = {};
    QString workingDirectory = {};
    QString iconPath = {};
    int iconIndex = 0;
    QString description = {};

    bool operator==(const ShellLink &) const = default;
};

/// Reads the shortcut `file`. A field that can't be read is empty; nothing where the file is no shortcut.
///
/// Elsewhere than on Windows a shortcut is a UTF-8 text: a line "[ShellLink]", and a line each for Path=,
/// Arguments=, WorkingDirectory=, IconPath=, IconIndex= and Description=, in this order, with
/// the value as it stands.
[[nodiscard]] std::optional<ShellLink> readShellLink(const QString &file);

/// Writes the shortcut `file`, with its folder where that is missing; the path always, another field only
/// when it isn't empty. False where it could not be written; elsewhere than on Windows never directly below
/// the root of the file system.
[[nodiscard]] bool writeShellLink(const QString &file, const ShellLink &link);

} // namespace Zandrove::Platform
