#include "cli/FolderCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Zandrove::Cli {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Zandrove::Cli::FolderCheck", text);
}

} // namespace

QString absoluteFolder(const QString &folder)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(folder));
}

QString folderProblem(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tr("There is no folder %1.").arg(path);
    if (!info.isDir())
        return tr("%1 is not a folder.").arg(path);
    if (!info.isReadable() || !info.isExecutable())
        return tr("The folder %1 can't be read.").arg(path);
    return {};
}

} // namespace Zandrove::Cli
