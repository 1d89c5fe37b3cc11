#include "support/Paths.h"

#include <QDir>

namespace Zandrove {

QString withSlashes(const QString &path)
{
    QString slashed = path;
    return slashed.replace(u'\\', u'/');
}

QString cleanPath(const QString &path)
{
    return QDir::cleanPath(withSlashes(path));
}

QString comparablePath(const QString &path)
{
    return cleanPath(path).toLower();
}

} // namespace Zandrove
