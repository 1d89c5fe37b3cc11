#include "platform/ProgramPath.h"

#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

/// A bare name would be searched in this program's own folder first, where anybody may have put a program.
QString programPath(const QString &program)
{
    if (program.contains(u'/') || program.contains(u'\\'))
        return program;
    const QString base = qEnvironmentVariable("SystemRoot", u"C:\\Windows"_s) + u"\\System32\\"_s + program;
    for (const QString &candidate : {base, base + u".exe"_s}) {
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    const QString found = QStandardPaths::findExecutable(program);
    return found.isEmpty() ? base : found;
}

} // namespace Zandrove::Platform
