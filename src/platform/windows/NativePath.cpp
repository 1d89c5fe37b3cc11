#include "platform/windows/NativePath.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

QString nativePath(const QString &path)
{
    const QString absolute = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (absolute.startsWith("\\\\?\\"_L1) || absolute.startsWith("\\\\.\\"_L1))
        return absolute;
    if (absolute.startsWith("\\\\"_L1))
        return u"\\\\?\\UNC\\"_s + absolute.mid(2);
    return u"\\\\?\\"_s + absolute;
}

} // namespace Zandrove::Platform
