#include "appmigration/AppMessages.h"

#include "support/Json.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

QJsonObject shortcutObject(const ShortcutInfo &shortcut)
{
    return {{u"shortcutPath"_s, shortcut.shortcutPath}, {u"targetPath"_s, shortcut.targetPath},
            {u"arguments"_s, shortcut.arguments},       {u"workingDir"_s, shortcut.workingDir},
            {u"iconPath"_s, shortcut.iconPath},         {u"iconIndex"_s, shortcut.iconIndex},
            {u"description"_s, shortcut.description}};
}

ShortcutInfo readShortcut(const QJsonObject &object)
{
    return {object[u"shortcutPath"_s].toString(), object[u"targetPath"_s].toString(),
            object[u"arguments"_s].toString(),    object[u"workingDir"_s].toString(),
            object[u"iconPath"_s].toString(),     object[u"iconIndex"_s].toInt(),
            object[u"description"_s].toString()};
}

} // namespace

QByteArray appStartPayload(const AppPackage &package)
{
    QJsonArray shortcuts;
    for (const ShortcutInfo &shortcut : package.shortcuts)
        shortcuts.append(shortcutObject(shortcut));
    return compactJson({{u"appName"_s, package.name},
                        {u"safeName"_s, makeSafeName(package.name)},
                        {u"version"_s, package.version},
                        {u"publisher"_s, package.publisher},
                        {u"installLocation"_s, package.installLocation},
                        {u"sourceUser"_s, package.sourceUser},
                        {u"totalSize"_s, package.totalSize},
                        {u"fileCount"_s, package.fileCount},
                        {u"shortcuts"_s, shortcuts}});
}

std::optional<AppPackage> readAppStart(const QByteArray &payload)
{
    const std::optional<QJsonObject> object = parseJsonObject(payload);
    if (!object || !isUsableAppName(object->value(u"appName"_s).toString()))
        return std::nullopt;
    AppPackage package;
    package.name = object->value(u"appName"_s).toString();
    package.version = object->value(u"version"_s).toString();
    package.publisher = object->value(u"publisher"_s).toString();
    package.installLocation = object->value(u"installLocation"_s).toString();
    package.sourceUser = object->value(u"sourceUser"_s).toString();
    package.totalSize = jsonSize(*object, u"totalSize"_s);
    package.fileCount =
        int(std::min<qint64>(jsonSize(*object, u"fileCount"_s), std::numeric_limits<int>::max()));
    const QJsonArray shortcuts = object->value(u"shortcuts"_s).toArray();
    for (const QJsonValue &shortcut : shortcuts)
        package.shortcuts.append(readShortcut(shortcut.toObject()));
    return package;
}

QString readAppEnd(const QByteArray &payload)
{
    return parseJsonObject(payload).value_or(QJsonObject())[u"appName"_s].toString();
}

QByteArray heldAppEndPayload(const QString &name)
{
    return compactJson({{u"appName"_s, name}});
}

QByteArray appEndPayload(const QString &name, int filesQueued, int filesSkipped)
{
    return compactJson({{u"appName"_s, name},
                        {u"safeName"_s, makeSafeName(name)},
                        {u"filesQueued"_s, filesQueued},
                        {u"filesSkipped"_s, filesSkipped}});
}

} // namespace Zandrove
