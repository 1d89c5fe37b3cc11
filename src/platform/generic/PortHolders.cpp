#include "platform/PortHolders.h"

#include "platform/generic/NetworkTexts.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool holdsOne(const QString &process, const QStringList &links)
{
    const QDir descriptors(u"/proc/%1/fd"_s.arg(process));
    const QStringList names = descriptors.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (links.contains(QFile::symLinkTarget(descriptors.filePath(name)).section(u'/', -1)))
            return true;
    }
    return false;
}

} // namespace

QList<PortHolder> portHolders(Transport transport, quint16 port)
{
    const QString table = transport == Transport::Tcp ? u"/proc/net/tcp"_s : u"/proc/net/udp"_s;
    QStringList links;
    for (const QString &path : {table, QString(table + u'6')}) {
        const QList<quint64> sockets = socketsFrom(content(path), transport, port);
        for (const quint64 socket : sockets)
            links.append(u"socket:[%1]"_s.arg(socket));
    }
    if (links.isEmpty())
        return {};

    QList<PortHolder> holders;
    const QStringList entries = QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &process : entries) {
        bool isProcess = false;
        const qint64 id = process.toLongLong(&isProcess);
        if (isProcess && holdsOne(process, links))
            holders.append({id, QString::fromLocal8Bit(content(u"/proc/%1/comm"_s.arg(process)).trimmed())});
    }
    return holders.isEmpty() ? QList<PortHolder>{{}} : holders;
}

QString portHolderCommand(Transport transport, quint16 port)
{
    const QString kind = transport == Transport::Tcp ? u"-ltnp"_s : u"-lunp"_s;
    return u"sudo ss %1 sport = :%2"_s.arg(kind, QString::number(port));
}

} // namespace Zandrove::Platform
