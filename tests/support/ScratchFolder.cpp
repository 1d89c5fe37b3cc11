#include "ScratchFolder.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace Zandrove {

std::unique_ptr<QTemporaryDir> makeScratchFolder(const SimulatedPc::PathRule &isUnsuitable)
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

} // namespace Zandrove
