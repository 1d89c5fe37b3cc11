#include "platform/SystemParameters.h"
#include "platform/Log.h"

#include "platform/Registry.h"
#include "platform/generic/RegistryFile.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

RegistryKey desktopKey()
{
    return RegistryKey(u"HKEY_CURRENT_USER\\Control Panel\\Desktop"_s);
}

} // namespace

std::optional<QString> wallpaper()
{
    if (!registryFileExists())
        return std::nullopt;
    return desktopKey().text(u"Wallpaper"_s, u""_s);
}

bool setWallpaper(const QString &path)
{
    if (desktopKey().setText(u"Wallpaper"_s, path))
        return true;
    errno = ENOENT;
    return false;
}

bool setSystemParameter(SystemParameter parameter, int value)
{
    qCDebug(logPlatform) << "[SystemParameters] action" << static_cast<unsigned>(parameter) << "value"
                         << value;
    return registryFileExists();
}

bool broadcastSettingChange(const QString &area)
{
    qCDebug(logPlatform) << "[SystemParameters] setting change" << area;
    return registryFileExists();
}

void notifyAssociationsChanged()
{
    qCDebug(logPlatform) << "[SystemParameters] associations changed";
}

} // namespace Zandrove::Platform
