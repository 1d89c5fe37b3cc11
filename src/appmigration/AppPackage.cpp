#include "appmigration/AppPackage.h"

#include "support/Paths.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr qsizetype LongestSafeName = 100;

/// Whether Windows takes a file called `name` for a device, whatever its suffix.
bool isDeviceName(const QString &name)
{
    static const QStringList Devices = u"CON PRN AUX NUL COM1 COM2 COM3 COM4 COM5 COM6 COM7 COM8 COM9 "
                                       u"LPT1 LPT2 LPT3 LPT4 LPT5 LPT6 LPT7 LPT8 LPT9"_s.split(u' ');
    return Devices.contains(name.toUpper().section(u'.', 0, 0));
}

} // namespace

AppPackageInfo receivedPackage(const AppPackage &package, const QString &receivedBasePath)
{
    AppPackageInfo info;
    info.name = package.name;
    info.version = package.version;
    info.publisher = package.publisher;
    info.receivedBasePath = receivedBasePath;
    info.originalInstallLocation = package.installLocation;
    info.sourceUser = package.sourceUser;
    info.totalSize = package.totalSize;
    info.fileCount = package.fileCount;
    return info;
}

QString makeSafeName(const QString &name)
{
    static const QRegularExpression Forbidden(u"[<>:\"/\\\\|?*]"_s);
    QString safe = name;
    safe.replace(Forbidden, u"_"_s);
    while (safe.endsWith(u'.') || safe.endsWith(u' '))
        safe.chop(1);
    if (isDeviceName(safe))
        safe.prepend(u'_');
    safe.truncate(LongestSafeName);
    return safe.isEmpty() ? u"unnamed"_s : safe;
}

bool isUsableAppName(const QString &name)
{
    if (name.trimmed().isEmpty() || name.contains(QChar::Null))
        return false;
    const QStringList components = withSlashes(name).split(u'/', Qt::SkipEmptyParts);
    return std::none_of(components.begin(), components.end(), [](const QString &component) {
        return std::all_of(component.begin(), component.end(),
                           [](QChar c) { return c == u'.' || c.isSpace(); });
    });
}

} // namespace Zandrove
