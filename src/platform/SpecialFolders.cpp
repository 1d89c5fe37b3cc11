#include "platform/SpecialFolders.h"

#include "platform/SystemFolder.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

/// A folder at the top of the system's drive; below this user's data where there is no such drive, for what
/// would be a relative path then must not be made wherever the program happens to run.
QString topFolder(const QString &name)
{
    const QString drive = u"C:/"_s;
    if (QDir(drive).exists())
        return drive + name;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Zandrove/"_s + name;
}

QString substitute(SpecialFolder folder)
{
    switch (folder) {
    case SpecialFolder::LocalAppData:
        return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    case SpecialFolder::RoamingAppData:
        return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    case SpecialFolder::CommonAppData:
        return topFolder(u"ProgramData"_s);
    case SpecialFolder::StartMenuPrograms:
        return {};
    case SpecialFolder::ProgramFiles:
        return topFolder(u"Program Files"_s);
    case SpecialFolder::ProgramFilesX86:
        return topFolder(u"Program Files (x86)"_s);
    }
    return {};
}

QString toldFolder(SpecialFolder folder)
{
    switch (folder) {
    case SpecialFolder::ProgramFiles:
        return qEnvironmentVariable("ProgramFiles");
    case SpecialFolder::ProgramFilesX86:
        return qEnvironmentVariable("ProgramFiles(x86)");
    default:
        return systemFolder(folder);
    }
}

} // namespace

QString specialFolder(SpecialFolder folder)
{
    const QString told = toldFolder(folder);
    return told.isEmpty() ? substitute(folder) : told;
}

} // namespace Zandrove::Platform
