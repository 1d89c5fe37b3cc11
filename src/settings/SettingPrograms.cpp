#include "settings/SettingPrograms.h"

#include "platform/ExternalProgram.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto ProgramTimeout = 10000ms;

/// The path of a temporary file, as programs of the system want it.
QString temporaryPath(const QString &name)
{
    return QDir::toNativeSeparators(QDir::temp().filePath(name));
}

QString temporaryRegistryPath(const QString &pattern)
{
    return temporaryPath(pattern.arg(QDateTime::currentMSecsSinceEpoch()));
}

QString localText(const QByteArray &output)
{
    return QString::fromLocal8Bit(output);
}

/// The whole file, which is gone afterwards. Nothing where it can't be read.
std::optional<QByteArray> takeFile(const QString &path)
{
    QFile file(path);
    std::optional<QByteArray> content;
    if (file.open(QIODevice::ReadOnly)) {
        content = file.readAll();
        if (file.error() != QFile::NoError)
            content.reset();
        file.close();
    }
    QFile::remove(path);
    return content;
}

QString shortKey(QString key)
{
    return key.replace("HKEY_CURRENT_USER"_L1, "HKCU"_L1)
        .replace("HKEY_LOCAL_MACHINE"_L1, "HKLM"_L1)
        .replace(u'/', u'\\');
}

} // namespace

std::optional<QByteArray> exportRegistryKey(const QString &key)
{
    const QString name = shortKey(key);
    const QString path = temporaryRegistryPath(u"zandrove_reg_export_%1.reg"_s);
    const Platform::ProgramResult reg =
        Platform::runProgram(u"reg"_s, {u"export"_s, name, path, u"/y"_s}, ProgramTimeout);
    if (!reg.finished) {
        qDebug() << "[Registry] Export timeout for:" << name;
        return std::nullopt;
    }
    if (reg.exitCode != 0) {
        qDebug() << "[Registry] Export failed for:" << name;
        qDebug() << "  Error:" << localText(reg.standardError);
        return std::nullopt;
    }
    const std::optional<QByteArray> data = takeFile(path);
    if (!data)
        return std::nullopt;
    qDebug() << "[Registry] Exported:" << name << "size:" << data->size();
    return data->isEmpty() ? std::nullopt : data;
}

std::optional<QByteArray> exportPowerScheme()
{
    const QString path = temporaryPath(u"zandrove_power_export.pow"_s);
    const Platform::ProgramResult powercfg =
        Platform::runProgram(u"powercfg"_s, {u"/export"_s, path, u"SCHEME_CURRENT"_s}, ProgramTimeout);
    if (!powercfg.finished) {
        qDebug() << "[Power] powercfg export timeout";
        return std::nullopt;
    }
    if (powercfg.exitCode != 0) {
        qDebug() << "[Power] powercfg export failed:" << localText(powercfg.standardError);
        return std::nullopt;
    }
    return takeFile(path);
}

} // namespace Zandrove
