#include "platform/Drives.h"

#include <QFileInfo>

namespace Zandrove::Platform {

QStringList fixedDrives()
{
    QStringList drives;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        const QString drive = QChar(letter) + QString(u':');
        if (QFileInfo(drive).isDir())
            drives.append(drive);
    }
    return drives;
}

} // namespace Zandrove::Platform
