#pragma once

#include "core/common/Records.h"

#include <QList>

/// Which of the applications that a scan found the user is offered, and in which order.
namespace Zandrove {

/// An application, and its position in the scan result, by which a selection is told.
struct OfferedApp
{
    AppInfo app;
    int originalIndex = 0;
};

/// False for what no user would want to move: uninstallers, updates, left-overs without a folder.
[[nodiscard]] bool shouldShowApp(const AppInfo &app);

/// Those of `apps` that are worth offering: installed in a folder first, then the larger, then by name.
[[nodiscard]] QList<OfferedApp> offeredApps(const QList<AppInfo> &apps);

} // namespace Zandrove
