#include "platform/Drives.h"

#include "platform/windows/NativePath.h"

#include <qt_windows.h>

namespace Zandrove::Platform {

QStringList fixedDrives()
{
    QStringList drives;
    DWORD letters = GetLogicalDrives();
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter, letters >>= 1) {
        const QString drive = QChar(letter) + QString(u':');
        if ((letters & 1) != 0 && GetDriveTypeW(wide(drive + u'\\')) == DRIVE_FIXED)
            drives.append(drive);
    }
    return drives;
}

} // namespace Zandrove::Platform
