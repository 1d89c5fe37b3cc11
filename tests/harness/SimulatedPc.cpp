#include "SimulatedPc.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace Zandrove {

/// A new folder in the first place whose files `isUnsuitable` lets pass.
std::unique_ptr<QTemporaryDir> SimulatedPc::makeScratchFolder(const PathRule &isUnsuitable)
{
    const QString build = QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../simulated-pcs"_s);
    for (const QString &place : {build, QDir::homePath(), u"/var/lib"_s, u"/dev/shm"_s}) {
        if (isUnsuitable(place + u"/pc/file"_s) || !QDir().mkpath(place))
            continue;
        auto folder = std::make_unique<QTemporaryDir>(place + u"/pc-XXXXXX"_s);
        if (folder->isValid())
            return folder;
    }
    qFatal("No folder can be made where a simulated PC may lie.");
}

QString SimulatedPc::path(const QString &place) const
{
    return QFileInfo(place).isAbsolute() ? place : m_folder->filePath(place);
}

} // namespace Zandrove
