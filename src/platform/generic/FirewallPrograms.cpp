#include "platform/generic/FirewallPrograms.h"

#include "platform/FirewallVerdict.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

QString transportName(Transport transport)
{
    return transport == Transport::Tcp ? u"tcp"_s : u"udp"_s;
}

/// Whether "80,52000:53000/tcp", with '-' in place of ':' or without a transport, names the port.
bool namesPort(const QString &ports, Transport transport, quint16 port)
{
    const QString ofTransport = ports.section(u'/', 1);
    if (!ofTransport.isEmpty() && ofTransport != transportName(transport))
        return false;
    const QStringList ranges = ports.section(u'/', 0, 0).split(u',');
    return std::any_of(ranges.begin(), ranges.end(), [port](QString range) {
        range.replace(u'-', u':');
        return range.section(u':', 0, 0).toUInt() <= port && port <= range.section(u':', -1).toUInt();
    });
}

/// One line of ufw's table: what it is for, what it does, and for whom.
struct UfwRule
{
    bool isCertain = false; ///< it holds for all adapters and senders
    bool passes = false;
};

/// The rule of a line where it may be meant for the port.
std::optional<UfwRule> ufwRule(const QString &line, Transport transport, quint16 port)
{
    static const QRegularExpression columns(
        u"^(.+?)\\s{2,}(ALLOW|LIMIT|DENY|REJECT)( IN| OUT| FWD)?\\s{2,}(.+?)(\\s{2,}#.*)?$"_s);
    const QRegularExpressionMatch match = columns.match(line.trimmed());
    const QString direction = match.captured(3).trimmed();
    QString target = match.captured(1);
    if (!match.hasMatch() || target.contains("(v6)"_L1) || (!direction.isEmpty() && direction != "IN"_L1))
        return std::nullopt;

    static const QRegularExpression profile(u" \\([^)]*\\)"_s);
    target.remove(profile);
    const QStringList words = target.split(u' ');
    const bool isAnyPort = words.constFirst() == "Anywhere"_L1;
    const bool hasAddress = !isAnyPort && words.constFirst().contains(u'.');
    const QString ports = hasAddress ? words.value(1) : words.constFirst();
    if (!isAnyPort && !ports.isEmpty() && ports != "on"_L1 && !namesPort(ports, transport, port))
        return std::nullopt;
    const bool isForAll = words.size() == 1 && !hasAddress && match.captured(4) == "Anywhere"_L1;
    const QString action = match.captured(2);
    return UfwRule{isForAll, action == "ALLOW"_L1 || action == "LIMIT"_L1};
}

/// The lines of one zone.
QStringList zoneLines(const QString &zones, const QString &zone)
{
    QStringList lines;
    bool isInside = false;
    const QStringList all = zones.split(u'\n');
    for (const QString &line : all) {
        if (!line.isEmpty() && !line.at(0).isSpace())
            isInside = line.section(u' ', 0, 0) == zone;
        else if (isInside)
            lines.append(line.trimmed());
    }
    return lines;
}

/// The words behind "NAME:" in the lines of a zone.
QStringList zoneWords(const QStringList &lines, const QString &name)
{
    for (const QString &line : lines) {
        if (line.startsWith(name + u':'))
            return line.mid(name.size() + 1).split(u' ', Qt::SkipEmptyParts);
    }
    return {};
}

} // namespace

bool ufwIsActive(const QString &status)
{
    return status.contains("Status: active"_L1);
}

Passage ufwPassage(const QString &status, Transport transport, quint16 port)
{
    FirewallVerdict verdict;
    const QStringList lines = status.split(u'\n');
    for (const QString &line : lines) {
        const std::optional<UfwRule> rule = ufwRule(line, transport, port);
        if (!rule)
            continue;
        verdict.add({rule->passes, !rule->passes});
        if (rule->isCertain)
            return verdict.passage();
    }
    const bool passes = status.contains("Default: allow (incoming)"_L1);
    verdict.add({passes, !passes});
    return verdict.passage();
}

QString firewalldZone(const QString &zones, const QString &adapter, const QString &defaultZone)
{
    const QStringList lines = zones.split(u'\n');
    for (const QString &line : lines) {
        if (line.isEmpty() || line.at(0).isSpace())
            continue;
        QString zone = line.section(u' ', 0, 0);
        if (zoneWords(zoneLines(zones, zone), u"interfaces"_s).contains(adapter))
            return zone;
    }
    return defaultZone;
}

Passage firewalldPassage(const QString &zones, const QString &zone, Transport transport, quint16 port)
{
    const QStringList lines = zoneLines(zones, zone);
    if (lines.isEmpty())
        return Passage::Unknown;
    const bool mayHaveMore = std::any_of(lines.begin(), lines.end(),
                                         [](const QString &line) { return line.startsWith("rule "_L1); });
    const QStringList ports = zoneWords(lines, u"ports"_s);
    const bool isOpen = zoneWords(lines, u"target"_s).contains(u"ACCEPT"_s) ||
                        zoneWords(lines, u"services"_s).contains(u"zandrove"_s) ||
                        std::any_of(ports.begin(), ports.end(),
                                    [&](const QString &entry) { return namesPort(entry, transport, port); });
    if (mayHaveMore)
        return Passage::Unknown;
    return isOpen ? Passage::Open : Passage::Closed;
}

} // namespace Zandrove::Platform
