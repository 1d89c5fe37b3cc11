#include "cli/ItemChoice.h"

#include <QCoreApplication>

namespace Zandrove::Cli {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Cli::ItemChoice)
};

/// Adds the positions of all items that `isMeant`. Returns whether there was one.
template <typename Item, typename Rule>
bool add(QList<int> &positions, const QList<Item> &items, Rule isMeant)
{
    bool found = false;
    for (int position = 0; position < items.size(); ++position) {
        if (!isMeant(items[position]))
            continue;
        found = true;
        if (!positions.contains(position))
            positions.append(position);
    }
    return found;
}

QString addApp(QList<int> &positions, const QList<AppInfo> &apps, const QString &name)
{
    if (add(positions, apps, [&](const AppInfo &app) { return app.name == name && app.canTransfer; }))
        return {};
    QList<int> others;
    return add(others, apps, [&](const AppInfo &app) { return app.name == name; })
               ? Text::tr("The application %1 cannot be moved.").arg(name)
               : Text::tr("There is no application %1 on this PC. See zandrove-cli scan.").arg(name);
}

QString addSetting(QList<int> &positions, const QList<SettingInfo> &settings, const QString &id)
{
    return add(positions, settings,
               [&](const SettingInfo &setting) { return setting.id == id && setting.available; })
               ? QString()
               : Text::tr("There is no setting %1 on this PC. See zandrove-cli scan.").arg(id);
}

} // namespace

bool needsScan(const Options &options)
{
    return !options.apps.isEmpty() || options.allApps || !options.settings.isEmpty() || options.allSettings;
}

ItemChoice chooseItems(const ScanResult &result, const Options &options)
{
    ItemChoice choice;
    for (const QString &name : options.apps) {
        choice.problem = addApp(choice.apps, result.apps, name);
        if (!choice.problem.isEmpty())
            return choice;
    }
    for (const QString &id : options.settings) {
        choice.problem = addSetting(choice.settings, result.settings, id);
        if (!choice.problem.isEmpty())
            return choice;
    }
    if (options.allApps)
        add(choice.apps, result.apps, [](const AppInfo &app) { return app.canTransfer; });
    if (options.allSettings)
        add(choice.settings, result.settings, [](const SettingInfo &setting) { return setting.available; });
    if (options.folders.isEmpty() && choice.apps.isEmpty() && choice.settings.isEmpty())
        choice.problem = Text::tr("This PC has nothing of that to move. See zandrove-cli scan.");
    return choice;
}

} // namespace Zandrove::Cli
