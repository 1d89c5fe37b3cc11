#include "platform/RegistryPath.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

struct RootName
{
    QLatin1StringView longName;
    QLatin1StringView shortName;
};

constexpr std::array RootNames = {
    RootName{"HKEY_LOCAL_MACHINE"_L1, "HKLM"_L1}, RootName{"HKEY_CURRENT_USER"_L1, "HKCU"_L1},
    RootName{"HKEY_CLASSES_ROOT"_L1, "HKCR"_L1}, RootName{"HKEY_USERS"_L1, "HKU"_L1},
    RootName{"HKEY_CURRENT_CONFIG"_L1, "HKCC"_L1}};

} // namespace

std::optional<RegistryPath> splitRegistryPath(const QString &path)
{
    const QStringList parts = path.split(u'\\', Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return std::nullopt;
    const auto *const root =
        std::find_if(RootNames.begin(), RootNames.end(), [&parts](const RootName &candidate) {
            return parts.first().compare(candidate.longName, Qt::CaseInsensitive) == 0 ||
                   parts.first().compare(candidate.shortName, Qt::CaseInsensitive) == 0;
        });
    if (root == RootNames.end())
        return std::nullopt;
    return RegistryPath{root->longName, parts.mid(1).join(u'\\')};
}

} // namespace Zandrove::Platform
