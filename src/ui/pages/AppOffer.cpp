#include "ui/pages/AppOffer.h"

#include <QDir>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr qint64 LeastSizeWithoutFolder = 102400; // bytes
constexpr qsizetype ShortestName = 2;

constexpr std::array UnwantedBeginnings = {
    "uninstall"_L1, "remove "_L1, "update for"_L1, "updater"_L1, "security update"_L1, "hotfix"_L1,
};
constexpr std::array UnwantedNames = {
    "default"_L1, "mainwindow"_L1, "settings"_L1, "preferences"_L1, "config"_L1,
};

bool isUnwanted(const QString &lowerName)
{
    return std::any_of(UnwantedBeginnings.cbegin(), UnwantedBeginnings.cend(),
                       [&lowerName](QLatin1StringView start) { return lowerName.startsWith(start); }) ||
           lowerName.contains("uninstall "_L1) || lowerName.size() < ShortestName ||
           std::find(UnwantedNames.cbegin(), UnwantedNames.cend(), lowerName) != UnwantedNames.cend();
}

bool comesBefore(const OfferedApp &left, const OfferedApp &right)
{
    const AppInfo &a = left.app;
    const AppInfo &b = right.app;
    if (a.installPath.isEmpty() != b.installPath.isEmpty())
        return b.installPath.isEmpty();
    if (a.size != b.size)
        return a.size > b.size;
    return a.name.toLower() < b.name.toLower();
}

} // namespace

bool shouldShowApp(const AppInfo &app)
{
    if (isUnwanted(app.name.toLower()))
        return false;
    return app.installPath.isEmpty() ? app.size >= LeastSizeWithoutFolder : QDir(app.installPath).exists();
}

QList<OfferedApp> offeredApps(const QList<AppInfo> &apps)
{
    QList<OfferedApp> offered;
    for (int i = 0; i < apps.size(); ++i) {
        if (shouldShowApp(apps[i]))
            offered.append({apps[i], i});
    }
    std::stable_sort(offered.begin(), offered.end(), comesBefore);
    return offered;
}

} // namespace Zandrove
