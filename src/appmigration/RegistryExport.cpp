#include "appmigration/RegistryExport.h"

#include "appmigration/Log.h"
#include "appmigration/RegistryText.h"
#include "platform/ExternalProgram.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringConverter>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

/// How long the export of one key may take.
constexpr auto ExportTimeout = 30000ms;
/// A file up to this size holds headers only.
constexpr qint64 LargestEmptyFile = 100; // bytes

/// Has the system write `key` to `file`. False, logged, where no content came of it.
bool exportKey(const QString &key, const QString &file)
{
    const auto result = Platform::runProgram(u"reg.exe"_s, {u"export"_s, key, file, u"/y"_s}, ExportTimeout);
    if (!result.finished) {
        qCDebug(logAppMigration) << "    TIMEOUT";
        return false;
    }
    if (result.exitCode != 0) {
        qCDebug(logAppMigration) << "    FAILED, exit code:" << result.exitCode;
        qCDebug(logAppMigration) << "    stderr:" << QString::fromLocal8Bit(result.standardError);
        return false;
    }
    if (QFileInfo(file).size() == 0) {
        qCDebug(logAppMigration) << "    ERROR: Temp file empty or not created";
        return false;
    }
    return true;
}

/// What stands behind the header line of an exported key. Nothing where the file has no text.
std::optional<QString> contentOfKey(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    const QByteArray mark = registryByteOrderMark();
    QString text = bytes.startsWith(mark) ? decodeUtf16LittleEndian(bytes.sliced(mark.size()))
                                          : QString::fromUtf8(bytes);
    if (text.isEmpty())
        return std::nullopt;
    const QString lineEnd = u"\r\n"_s;
    const qsizetype firstEnd = text.indexOf(lineEnd);
    if (firstEnd > 0)
        text.remove(0, firstEnd + lineEnd.size());
    return text;
}

std::optional<QString> exportedKey(const QString &key)
{
    qCDebug(logAppMigration) << "  Exporting key:" << key;
    const QString file = QStandardPaths::writableLocation(QStandardPaths::TempLocation) +
                         u"/zandrove_reg_%1.reg"_s.arg(QDateTime::currentMSecsSinceEpoch());
    QFile::remove(file);
    std::optional<QString> text;
    if (exportKey(key, file)) {
        qCDebug(logAppMigration) << "    Temp file size:" << QFileInfo(file).size() << "bytes";
        text = contentOfKey(file);
    }
    QFile::remove(file);
    return text;
}

} // namespace

bool exportRegistryKeys(const QStringList &keys, const QString &outputPath)
{
    qCDebug(logAppMigration) << "exportRegistryKeys: exporting" << keys.size() << "keys to" << outputPath;
    QFile output(outputPath);
    if (!output.open(QIODevice::WriteOnly)) {
        qCDebug(logAppMigration) << "  ERROR: Cannot open output file:" << outputPath;
        return false;
    }
    QStringEncoder encoder(QStringConverter::Utf16LE);
    bool complete = true;
    const auto write = [&](const QByteArray &bytes) {
        complete = complete && output.write(bytes) == bytes.size();
    };
    write(encodeRegistryText(u"Windows Registry Editor Version 5.00\r\n\r\n"_s));
    for (const QString &key : keys) {
        const std::optional<QString> text = exportedKey(key);
        if (!text)
            continue;
        write(encoder(*text));
        qCDebug(logAppMigration) << "    Successfully exported, content length:" << text->size();
    }
    complete = output.flush() && complete;
    const qint64 size = output.size();
    output.close();
    qCDebug(logAppMigration) << "  Final registry.reg size:" << size << "bytes";
    // Half a value would be imported as if it were the whole.
    if (!complete)
        qCDebug(logAppMigration) << "  ERROR: Cannot write output file:" << output.errorString();
    return complete && size > LargestEmptyFile;
}

} // namespace Zandrove
