#include "platform/NetworkFacts.h"

#include "platform/generic/NetworkTexts.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

AdapterKind adapterKind(const QString &adapter)
{
    return kindFrom("/sys/class/net/"_L1 + adapter);
}

QList<NetworkRoute> networkRoutes()
{
    return routesFrom(content(u"/proc/net/route"_s));
}

QStringList adaptersWithNeighbours()
{
    return neighboursFrom(content(u"/proc/net/arp"_s));
}

} // namespace Zandrove::Platform
