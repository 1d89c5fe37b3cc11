#pragma once

#include <QString>
#include <QStringList>

/// Which files of an application stay behind: caches, temporary files, logs, crash dumps, updaters and the
/// storage of embedded browsers. Folders that the user chose are not judged by this.
namespace Zandrove {

/// Whether the file at the absolute `path` stays behind. The whole path counts, in either kind of slash and
/// any letter case, so a folder at any depth decides for everything below it. Any thread.
[[nodiscard]] bool isExcludedFile(const QString &path);

/// The folders of the applications that are being moved, kept in comparable form. No rule looks at them.
void setKnownInstallPaths(const QStringList &paths);

} // namespace Zandrove
