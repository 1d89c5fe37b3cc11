#include "platform/Firewall.h"

#include "platform/ExternalProgram.h"
#include "platform/generic/FirewallPrograms.h"
#include "platform/generic/NftRuleset.h"

#include <QFile>
#include <QStandardPaths>

#include <optional>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove::Platform {

namespace {

constexpr auto AnswerTimeout = 5000ms;

/// The path of a firewall's program: those lie where an ordinary user's PATH doesn't look. Empty without it.
QString firewallProgram(const QString &name)
{
    const QString onPath = QStandardPaths::findExecutable(name);
    return onPath.isEmpty() ? QStandardPaths::findExecutable(name, {u"/usr/sbin"_s, u"/sbin"_s}) : onPath;
}

/// Runs it in a language that can be read here.
ProgramResult ask(const QString &program, const QStringList &arguments)
{
    return runProgram(u"env"_s, QStringList{u"LC_ALL=C"_s, program} + arguments, AnswerTimeout);
}

bool isAdministrator()
{
    return geteuid() == 0;
}

QString asAdministrator(const QString &command)
{
    return isAdministrator() ? command : u"sudo "_s + command;
}

/// Two commands of which the second follows where the first has succeeded.
QString asAdministrator(const QString &first, const QString &second)
{
    return asAdministrator(first) + u" && "_s + asAdministrator(second);
}

FirewallReport switchedOff(const QString &name)
{
    FirewallReport report;
    report.name = name;
    return report;
}

FirewallReport unread(const QString &name, const QString &command)
{
    return {.name = name,
            .state = isAdministrator() ? FirewallReport::NoAnswer : FirewallReport::NoRights,
            .command = asAdministrator(command)};
}

/// The report of a firewall that is on, with the command that fits it.
FirewallReport judged(const QString &name, Passage tcp, Passage udp, const QString &openCommand,
                      const QString &showCommand)
{
    FirewallReport report{.name = name, .state = FirewallReport::On, .tcp = tcp, .udp = udp, .command = {}};
    if (tcp == Passage::Closed || udp == Passage::Closed)
        report.command = openCommand;
    else if (tcp != Passage::Open || udp != Passage::Open)
        report.command = asAdministrator(showCommand);
    return report;
}

/// Whether ufw's own setting, which everybody may read, says that it is on.
bool ufwIsEnabled()
{
    QFile file(u"/etc/ufw/ufw.conf"_s);
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("\nENABLED=yes");
}

std::optional<FirewallReport> readUfw(const FirewallQuestion &question)
{
    const QString name = u"ufw"_s;
    const QString program = firewallProgram(name);
    if (program.isEmpty())
        return std::nullopt;
    const ProgramResult result = ask(program, {u"status"_s, u"verbose"_s});
    const QString status = QString::fromLocal8Bit(result.standardOutput);
    if (!result.finished || result.exitCode != 0)
        return ufwIsEnabled() ? unread(name, u"ufw status verbose"_s) : switchedOff(name);
    if (!ufwIsActive(status))
        return switchedOff(name);
    const QString open = asAdministrator(u"ufw allow %1/tcp"_s.arg(question.tcpPort),
                                         u"ufw allow %1/udp"_s.arg(question.udpPort));
    return judged(name, ufwPassage(status, Transport::Tcp, question.tcpPort),
                  ufwPassage(status, Transport::Udp, question.udpPort), open, u"ufw status verbose"_s);
}

/// The one passage of several adapters.
Passage joined(Passage a, Passage b)
{
    return a == b ? a : Passage::Unknown;
}

FirewallReport judgedZones(const FirewallQuestion &question, const QString &zones, const QString &defaultZone)
{
    QStringList inUse;
    for (const QString &adapter : question.adapters)
        inUse.append(firewalldZone(zones, adapter, defaultZone));
    if (inUse.isEmpty())
        inUse.append(defaultZone);
    inUse.removeDuplicates();

    std::optional<Passage> tcp;
    std::optional<Passage> udp;
    for (const QString &zone : std::as_const(inUse)) {
        const Passage ofTcp = firewalldPassage(zones, zone, Transport::Tcp, question.tcpPort);
        const Passage ofUdp = firewalldPassage(zones, zone, Transport::Udp, question.udpPort);
        tcp = joined(tcp.value_or(ofTcp), ofTcp);
        udp = joined(udp.value_or(ofUdp), ofUdp);
    }
    const QString open = asAdministrator(u"firewall-cmd --zone=%1 --add-port=%2/tcp --add-port=%3/udp"_s.arg(
        inUse.constFirst(), QString::number(question.tcpPort), QString::number(question.udpPort)));
    return judged(u"firewalld"_s, *tcp, *udp, open, u"firewall-cmd --list-all-zones"_s);
}

std::optional<FirewallReport> readFirewalld(const FirewallQuestion &question)
{
    const QString name = u"firewalld"_s;
    const QString program = firewallProgram(u"firewall-cmd"_s);
    if (program.isEmpty())
        return std::nullopt;
    const ProgramResult state = ask(program, {u"--state"_s});
    if (state.finished && (state.standardOutput + state.standardError).contains("not running"))
        return switchedOff(name);
    const ProgramResult defaultZone = ask(program, {u"--get-default-zone"_s});
    const ProgramResult zones = ask(program, {u"--list-all-zones"_s});
    if (!zones.finished || zones.exitCode != 0 || !defaultZone.finished || defaultZone.exitCode != 0)
        return unread(name, u"firewall-cmd --list-all-zones"_s);
    return judgedZones(question, QString::fromLocal8Bit(zones.standardOutput),
                       QString::fromLocal8Bit(defaultZone.standardOutput).trimmed());
}

std::optional<FirewallReport> readNftables(const FirewallQuestion &question)
{
    const QString name = u"nftables"_s;
    const QString program = firewallProgram(u"nft"_s);
    if (program.isEmpty())
        return std::nullopt;
    const ProgramResult result = ask(program, {u"-j"_s, u"list"_s, u"ruleset"_s});
    if (!result.finished || result.exitCode != 0)
        return unread(name, u"nft list ruleset"_s);
    const NftPassage tcp = nftPassage(result.standardOutput, Transport::Tcp, question.tcpPort);
    const NftPassage udp = nftPassage(result.standardOutput, Transport::Udp, question.udpPort);
    if (!tcp.isAsked && tcp.passage == Passage::Open)
        return switchedOff(name);
    const QString insert = u"nft insert rule %1 "_s;
    QStringList commands;
    if (tcp.passage == Passage::Closed)
        commands.append(asAdministrator(insert.arg(tcp.closedBy.join(u' ')) +
                                        u"tcp dport %1 accept"_s.arg(question.tcpPort)));
    if (udp.passage == Passage::Closed)
        commands.append(asAdministrator(insert.arg(udp.closedBy.join(u' ')) +
                                        u"udp dport %1 accept"_s.arg(question.udpPort)));
    return judged(name, tcp.passage, udp.passage, commands.join(u" && "_s), u"nft list ruleset"_s);
}

} // namespace

QList<FirewallReport> readFirewalls(const FirewallQuestion &question)
{
    QList<FirewallReport> reports;
    bool isKept = false; // by a program that writes its rules to nftables as well
    for (const auto &read : {readUfw, readFirewalld}) {
        if (const std::optional<FirewallReport> report = read(question)) {
            reports.append(*report);
            isKept =
                isKept || report->state == FirewallReport::On || report->state == FirewallReport::NoRights;
        }
    }
    if (isKept)
        return reports;
    if (const std::optional<FirewallReport> report = readNftables(question))
        reports.append(*report);
    return reports;
}

QStringList publicNetworks()
{
    return {};
}

} // namespace Zandrove::Platform
