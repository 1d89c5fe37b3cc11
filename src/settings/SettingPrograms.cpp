#include "settings/SettingPrograms.h"

#include "platform/ExternalProgram.h"
#include "settings/Log.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

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

/// Makes the file anew, so that a link that lies there in its place is not written through.
bool writeFile(const QString &path, const QByteArray &content)
{
    QFile::remove(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(content) == content.size() &&
           file.flush();
}

/// Runs a program on a temporary file with this content. Nothing where the file can't be written.
std::optional<Platform::ProgramResult> runOnFile(const QString &program, const QString &action,
                                                 const QString &path, const QByteArray &content)
{
    std::optional<Platform::ProgramResult> result;
    if (writeFile(path, content))
        result = Platform::runProgram(program, {action, path}, ProgramTimeout);
    QFile::remove(path);
    return result;
}

/// The first GUID in what `powercfg` said; empty where there is none.
QString guidIn(const QString &text)
{
    static const QRegularExpression guid(
        u"[0-9a-fA-F]{8}-[0-9a-fA-F]{4}-[0-9a-fA-F]{4}-[0-9a-fA-F]{4}-[0-9a-fA-F]{12}"_s);
    return guid.match(text).captured();
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
        qCDebug(logSettings) << "[Registry] Export timeout for:" << name;
        return std::nullopt;
    }
    if (reg.exitCode != 0) {
        qCDebug(logSettings) << "[Registry] Export failed for:" << name;
        qCDebug(logSettings) << "  Error:" << localText(reg.standardError);
        QFile::remove(path);
        return std::nullopt;
    }
    const std::optional<QByteArray> data = takeFile(path);
    if (!data)
        return std::nullopt;
    qCDebug(logSettings) << "[Registry] Exported:" << name << "size:" << data->size();
    return data->isEmpty() ? std::nullopt : data;
}

bool importRegistryData(const QByteArray &data)
{
    if (data.isEmpty())
        return false;
    const QString path = temporaryRegistryPath(u"zandrove_reg_import_%1.reg"_s);
    const auto reg = runOnFile(u"reg"_s, u"import"_s, path, data);
    if (!reg)
        return false;
    if (!reg->finished) {
        qCDebug(logSettings) << "[Registry] Import timeout";
        return false;
    }
    if (reg->exitCode != 0) {
        qCDebug(logSettings) << "[Registry] Import failed:" << localText(reg->standardError);
        return false;
    }
    return true;
}

std::optional<QByteArray> exportPowerScheme()
{
    const QString path = temporaryPath(u"zandrove_power_export.pow"_s);
    const Platform::ProgramResult powercfg =
        Platform::runProgram(u"powercfg"_s, {u"/export"_s, path, u"SCHEME_CURRENT"_s}, ProgramTimeout);
    if (!powercfg.finished) {
        qCDebug(logSettings) << "[Power] powercfg export timeout";
        return std::nullopt;
    }
    if (powercfg.exitCode != 0) {
        qCDebug(logSettings) << "[Power] powercfg export failed:" << localText(powercfg.standardError);
        QFile::remove(path);
        return std::nullopt;
    }
    return takeFile(path);
}

bool importPowerScheme(const QByteArray &scheme)
{
    const QString path = temporaryPath(u"zandrove_power_import.pow"_s);
    const auto powercfg = runOnFile(u"powercfg"_s, u"/import"_s, path, scheme);
    if (!powercfg || !powercfg->finished)
        return false;
    const bool imported = powercfg->exitCode == 0;
    const QString guid = guidIn(localText(powercfg->standardOutput));
    if (imported && !guid.isEmpty())
        static_cast<void>(Platform::runProgram(u"powercfg"_s, {u"/setactive"_s, guid}));
    qCDebug(logSettings) << "[Power] Applied settings, success:" << imported;
    return imported;
}

} // namespace Zandrove
