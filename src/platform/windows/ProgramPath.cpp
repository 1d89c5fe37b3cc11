#include "platform/ProgramPath.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

/// A bare name would be searched in this program's own folder first, where anybody may have put a program.
QString programPath(const QString &program)
{
    const QString systemRoot = qEnvironmentVariable("SystemRoot");
    if (systemRoot.isEmpty() || program.contains(u'/') || program.contains(u'\\'))
        return program;
    const QString base = systemRoot + u"\\System32\\"_s + program;
    for (const QString &candidate : {base, base + u".exe"_s}) {
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    return program;
}

} // namespace Zandrove::Platform
