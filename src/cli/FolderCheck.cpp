#include "cli/FolderCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Zandrove::Cli {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Cli::FolderCheck)
};

} // namespace

QString absoluteFolder(const QString &folder)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(folder));
}

QString folderProblem(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return Text::tr("There is no folder %1.").arg(path);
    if (!info.isDir())
        return Text::tr("%1 is not a folder.").arg(path);
    if (!info.isReadable() || !info.isExecutable())
        return Text::tr("The folder %1 can't be read.").arg(path);
    return {};
}

} // namespace Zandrove::Cli
