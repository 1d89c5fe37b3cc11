// AppInstaller: the registry of an application.

#include "appmigration/AppInstaller.h"

#include "appmigration/RegistryText.h"
#include "platform/ExternalProgram.h"

#include <QDebug>
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
        qDebug() << "  ERROR: Registry file not found!";
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "  Failed to open registry file:" << file.errorString();
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    qDebug() << "  Registry file size:" << bytes.size() << "bytes";
    if (bytes.isEmpty()) {
        qDebug() << "  ERROR: Empty registry file";
        return std::nullopt;
    }
    const QString text = decodeRegistryText(bytes);
    if (text.isEmpty()) {
        qDebug() << "  ERROR: Failed to read registry file content";
        return std::nullopt;
    }
    qDebug() << "  Registry content length:" << text.size() << "chars";
    qDebug() << "  First 50 chars:" << text.left(ShownCharacters);
    return text;
}

/// Makes the file anew, so that a link that lies there in its place is not written through.
bool writeImportFile(const QString &path, const QByteArray &content)
{
    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        qDebug() << "  Failed to create temp registry file:" << file.errorString();
        return false;
    }
    if (file.write(content) != content.size() || !file.flush()) {
        qDebug() << "  Failed to create temp registry file:" << file.errorString();
        file.remove();
        return false;
    }
    qDebug() << "  Wrote temp registry file:" << content.size() << "bytes";
    return true;
}

bool runImport(const QString &path)
{
    const auto result = Platform::runProgram(u"reg.exe"_s, {u"import"_s, path}, ImportTimeout);
    if (!result.finished) {
        qDebug() << "  Registry import timeout";
        return false;
    }
    qDebug() << "  reg.exe exit code:" << result.exitCode;
    const QString output = QString::fromLocal8Bit(result.standardOutput).trimmed();
    const QString complaints = QString::fromLocal8Bit(result.standardError).trimmed();
    if (!output.isEmpty())
        qDebug() << "  reg.exe stdout:" << output;
    if (!complaints.isEmpty())
        qDebug() << "  reg.exe stderr:" << complaints;
    qDebug() << "  Registry import result:" << (result.exitCode == 0 ? "success" : "failed");
    return result.exitCode == 0;
}

} // namespace

bool AppInstaller::importRegistryFile(const QString &path, const QString &sourceUser) const
{
    qDebug() << "  Importing registry:" << path;
    std::optional<QString> text = readRegistryText(path);
    if (!text)
        return false;
    if (!sourceUser.isEmpty() && !m_currentUser.isEmpty() && sourceUser != m_currentUser) {
        text = withUserFolders(*std::move(text), sourceUser, m_currentUser);
        qDebug() << "  Remapped user paths:" << sourceUser << "->" << m_currentUser;
    }
    const QString file = QDir::temp().filePath(u"zandrove_import.reg"_s);
    if (!writeImportFile(file, encodeRegistryText(*text)))
        return false;
    const bool imported = runImport(file);
    QFile::remove(file);
    return imported;
}

} // namespace Zandrove
