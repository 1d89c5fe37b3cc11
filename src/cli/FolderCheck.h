#pragma once

#include <QString>
#include <QStringList>

namespace Zandrove::Cli {

/// `folder`, as a user wrote it, as a clean absolute path.
[[nodiscard]] QString absoluteFolder(const QString &folder);

/// One line that says why `path` can't be sent as a folder; empty when it can.
[[nodiscard]] QString folderProblem(const QString &path);

} // namespace Zandrove::Cli
