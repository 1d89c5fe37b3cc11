// AppInstaller: the registry of an application.

#include "appmigration/AppInstaller.h"

#include "appmigration/Log.h"
#include "appmigration/RegistryText.h"
#include "platform/ExternalProgram.h"

#include <QDir>
#include <QFile>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

/// How long an import may take.
constexpr auto ImportTimeout = 60000ms;
/// How much of the file the log shows.
constexpr qsizetype ShownCharacters = 50;

/// The text of the file at `path`. Nothing, logged, where there is none.
std::optional<QString> readRegistryText(const QString &path)
{
    QFile file(path);
    if (!file.exists()) {
        qCDebug(logAppMigration) << "  ERROR: Registry file not found!";
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        qCDebug(logAppMigration) << "  Failed to open registry file:" << file.errorString();
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    qCDebug(logAppMigration) << "  Registry file size:" << bytes.size() << "bytes";
    if (bytes.isEmpty()) {
        qCDebug(logAppMigration) << "  ERROR: Empty registry file";
        return std::nullopt;
    }
    const QString text = decodeRegistryText(bytes);
    if (text.isEmpty()) {
        qCDebug(logAppMigration) << "  ERROR: Failed to read registry file content";
        return std::nullopt;
    }
    qCDebug(logAppMigration) << "  Registry content length:" << text.size() << "chars";
    qCDebug(logAppMigration) << "  First 50 chars:" << text.left(ShownCharacters);
    return text;
}

/// Makes the file anew, so that a link that lies there in its place is not written through.
bool writeImportFile(const QString &path, const QByteArray &content)
{
    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        qCDebug(logAppMigration) << "  Failed to create temp registry file:" << file.errorString();
        return false;
    }
    if (file.write(content) != content.size() || !file.flush()) {
        qCDebug(logAppMigration) << "  Failed to create temp registry file:" << file.errorString();
        file.remove();
        return false;
    }
    qCDebug(logAppMigration) << "  Wrote temp registry file:" << content.size() << "bytes";
    return true;
}

bool runImport(const QString &path)
{
    const auto result = Platform::runProgram(u"reg.exe"_s, {u"import"_s, path}, ImportTimeout);
    if (!result.finished) {
        qCDebug(logAppMigration) << "  Registry import timeout";
        return false;
    }
    qCDebug(logAppMigration) << "  reg.exe exit code:" << result.exitCode;
    const QString output = QString::fromLocal8Bit(result.standardOutput).trimmed();
    const QString complaints = QString::fromLocal8Bit(result.standardError).trimmed();
    if (!output.isEmpty())
        qCDebug(logAppMigration) << "  reg.exe stdout:" << output;
    if (!complaints.isEmpty())
        qCDebug(logAppMigration) << "  reg.exe stderr:" << complaints;
    qCDebug(logAppMigration) << "  Registry import result:" << (result.exitCode == 0 ? "success" : "failed");
    return result.exitCode == 0;
}

} // namespace

bool AppInstaller::importRegistryFile(const QString &path, const QString &sourceUser) const
{
    qCDebug(logAppMigration) << "  Importing registry:" << path;
    std::optional<QString> text = readRegistryText(path);
    if (!text)
        return false;
    if (!sourceUser.isEmpty() && !m_currentUser.isEmpty() && sourceUser != m_currentUser) {
        text = withUserFolders(*std::move(text), sourceUser, m_currentUser);
        qCDebug(logAppMigration) << "  Remapped user paths:" << sourceUser << "->" << m_currentUser;
    }
    const QString file = QDir::temp().filePath(u"zandrove_import.reg"_s);
    if (!writeImportFile(file, encodeRegistryText(*text)))
        return false;
    const bool imported = runImport(file);
    QFile::remove(file);
    return imported;
}

} // namespace Zandrove
