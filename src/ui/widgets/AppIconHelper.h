#pragma once

#include <QIcon>
#include <QString>

/// The icon of an application, from the file that holds it. There is always one: every failure ends in a
/// default icon that all share. Main thread only.
namespace Zandrove::AppIconHelper {

/// The icon in `path`: a picture file, or a program or library that carries one.
[[nodiscard]] QIcon iconForPath(const QString &path);

/// The first icon within a program or library, else what the shell shows for the file.
[[nodiscard]] QIcon iconFromExecutable(const QString &path);

/// The icon of an application without one.
[[nodiscard]] QIcon defaultAppIcon();

} // namespace Zandrove::AppIconHelper
