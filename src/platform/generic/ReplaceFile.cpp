#include "platform/ReplaceFile.h"

#include <QFile>

#include <cstdio>

namespace Zandrove::Platform {

bool replaceFile(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace Zandrove::Platform
