#include "diagnosis/Findings.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

using Platform::FirewallReport;
using Platform::Passage;
using Platform::Transport;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Diagnosis)
};

QString portName(Transport transport, quint16 port)
{
    return (transport == Transport::Tcp ? Text::tr("TCP port %1") : Text::tr("UDP port %1")).arg(port);
}

Finding ofPort(const PortFacts &facts)
{
    const QString name = portName(facts.transport, facts.port);
    Finding finding{u"port"_s, QString::number(facts.port), Severity::Ok, {}, {}, {}};
    switch (facts.state) {
    case PortFacts::Free:
        finding.sentence = Text::tr("%1 is free.").arg(name);
        break;
    case PortFacts::Ours:
        finding.sentence = Text::tr("%1 is held by Zandrove, as it should be.").arg(name);
        break;
    case PortFacts::Taken:
        finding.severity = Severity::Problem;
        finding.sentence = facts.program.isEmpty() ? Text::tr("%1 is taken by another program.").arg(name)
                                                   : Text::tr("%1 is taken by %2.").arg(name, facts.program);
        finding.advice = facts.program.isEmpty()
                             ? Text::tr("Find out which one it is, close it, and start Zandrove anew.")
                             : Text::tr("Close that program, and start Zandrove anew.");
        if (facts.program.isEmpty())
            finding.command = Platform::portHolderCommand(facts.transport, facts.port);
        break;
    }
    return finding;
}

/// What a firewall that is on keeps out.
QString closedPorts(const FirewallReport &report)
{
    const QString tcp = portName(Transport::Tcp, TcpPort);
    const QString udp = portName(Transport::Udp, UdpPort);
    if (report.udp != Passage::Closed)
        return tcp;
    return report.tcp != Passage::Closed ? udp : Text::tr("%1 and %2").arg(tcp, udp);
}

Finding ofFirewallThatIsOn(const FirewallReport &report)
{
    Finding finding{u"firewall"_s, report.name, Severity::Ok, {}, {}, report.command};
    if (report.tcp == Passage::Open && report.udp == Passage::Open) {
        finding.sentence = Text::tr("%1 is on, and lets both ports in.").arg(report.name);
    } else if (report.tcp == Passage::Closed || report.udp == Passage::Closed) {
        finding.severity = Severity::Problem;
        finding.sentence = Text::tr("%1 is on, and keeps out %2.").arg(report.name, closedPorts(report));
        finding.advice = Text::tr("Have it let both ports in.");
    } else {
        finding.severity = Severity::Hint;
        finding.sentence =
            Text::tr("%1 is on, and it depends on the sender, or on rules that can't be judged "
                     "here, whether it lets both ports in.")
                .arg(report.name);
        finding.advice = Text::tr("See whether its rules let in %1 and %2.")
                             .arg(portName(Transport::Tcp, TcpPort), portName(Transport::Udp, UdpPort));
    }
    return finding;
}

Finding ofFirewall(const FirewallReport &report)
{
    const QString advice = Text::tr("See whether its rules let in %1 and %2.")
                               .arg(portName(Transport::Tcp, TcpPort), portName(Transport::Udp, UdpPort));
    switch (report.state) {
    case FirewallReport::Off:
        break;
    case FirewallReport::On:
        return ofFirewallThatIsOn(report);
    case FirewallReport::NoRights:
        return {
            u"firewall"_s,  report.name,
            Severity::Hint, Text::tr("%1 couldn't be read without administrator rights.").arg(report.name),
            advice,         report.command};
    case FirewallReport::NoAnswer:
        return {u"firewall"_s,  report.name,
                Severity::Hint, Text::tr("%1 gave no answer that could be read.").arg(report.name),
                advice,         report.command};
    }
    return {u"firewall"_s, report.name, Severity::Ok, Text::tr("%1 is off.").arg(report.name), {}, {}};
}

} // namespace

QList<Finding> portFindings(const PcFacts &pc)
{
    QList<Finding> findings;
    for (const PortFacts &facts : pc.ports)
        findings.append(ofPort(facts));
    for (const FirewallReport &report : pc.firewalls)
        findings.append(ofFirewall(report));
    if (pc.firewalls.isEmpty())
        findings.append({u"firewall"_s,
                         {},
                         Severity::Ok,
                         Text::tr("No firewall was found of those that can be asked."),
                         {},
                         {}});
    for (const QString &network : pc.publicNetworks)
        findings.append({u"publicNetwork"_s,
                         network,
                         Severity::Hint,
                         Text::tr("The system treats the network %1 as public.").arg(network),
                         Text::tr("If it is your own, set it to private in the network settings."),
                         {}});
    return findings;
}

} // namespace Zandrove
