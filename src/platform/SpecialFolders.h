#pragma once

#include <QString>

/// Where the system keeps what belongs to a user or to all of them.
namespace Zandrove::Platform {

enum class SpecialFolder {
    LocalAppData,      ///< this user's application data that stay on this PC
    RoamingAppData,    ///< this user's other application data
    CommonAppData,     ///< application data of all users
    StartMenuPrograms, ///< this user's programs in the Start Menu
    ProgramFiles,
    ProgramFilesX86,
};

/// The folder's path, asked of the system at every call; the folder need not exist. Where the system does not
/// tell, a place that a user may write to stands in for it; but for the Start Menu there is none, and the
/// path is empty.
///
/// Elsewhere than on Windows the answers come from the environment: LOCALAPPDATA, APPDATA (with the Start
/// Menu below it) and ProgramData; as everywhere, ProgramFiles and ProgramFiles(x86).
[[nodiscard]] QString specialFolder(SpecialFolder folder);

} // namespace Zandrove::Platform
