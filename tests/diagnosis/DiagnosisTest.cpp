#include "TestMain.h"

#include "diagnosis/Diagnosis.h"
#include "diagnosis/Findings.h"

using Platform::AdapterKind;
using Platform::FirewallReport;
using Platform::Passage;
using Platform::Transport;

namespace {

AdapterFacts adapter(const QString &name, const QString &ip, AdapterKind kind = AdapterKind::Wired)
{
    AdapterFacts facts;
    facts.adapter = {name, true, true, false, true, {}, false, name};
    if (!ip.isEmpty())
        facts.adapter.addresses = {{QHostAddress(ip), {}, 24}};
    facts.kind = kind;
    facts.broadcast = ip.isEmpty() ? AdapterFacts::NotTried : AdapterFacts::Left;
    facts.heardBack = true;
    return facts;
}

/// A PC on a cable, with nothing wrong.
PcFacts soundPc()
{
    PcFacts pc;
    pc.adapters = {adapter(u"eth0"_s, u"192.168.7.1"_s)};
    pc.routes = {{u"eth0"_s, 0xC0A80700, 24, 100}};
    pc.ports = {{Transport::Tcp, 52024, PortFacts::Free, {}}, {Transport::Udp, 52025, PortFacts::Free, {}}};
    return pc;
}

HeardPc heard(int role, const QString &ip, DialFacts::Outcome outcome = DialFacts::Answered)
{
    return {u"BOX"_s, u"BOX"_s, u"0427"_s, role, {ip}, {outcome, ip, u"error"_s}};
}

/// What is said beyond "ok": severity, test and subject, one a line.
QString worthAWord(const PcFacts &pc, const PeerFacts &peers)
{
    QStringList lines;
    const QList<Finding> findings = adapterFindings(pc) + portFindings(pc) + peerFindings(pc, peers);
    for (const Finding &finding : findings) {
        if (finding.severity != Severity::Ok)
            lines.append((finding.severity == Severity::Hint ? u"hint %1 %2"_s : u"problem %1 %2"_s)
                             .arg(finding.id, finding.subject)
                             .trimmed());
    }
    return lines.join(u'\n');
}

} // namespace

/// What is said of PCs that are hard to make for real.
class DiagnosisTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatWasSeenIsAccused_data()
    {
        addColumns<PcFacts, PeerFacts, QString>("pc", "peers", "expected");
        const QString other = u"192.168.7.2"_s;
        const PeerFacts met{
            .role = OldPC, .seconds = 5, .heard = {heard(NewPC, other)}, .target = {}, .dial = {}};
        const auto pc = [&](const char *name, const QString &expected, const auto &change) {
            PcFacts facts = soundPc();
            change(facts);
            QTest::newRow(name) << facts << met << expected;
        };
        const auto peers = [&](const char *name, const QString &expected, const auto &change) {
            PeerFacts facts = met;
            change(facts);
            QTest::newRow(name) << soundPc() << facts << expected;
        };
        const FirewallReport on{u"wall"_s, FirewallReport::On, Passage::Open, Passage::Unknown, u"show"_s};

        pc("all is well", {}, [](PcFacts &) {});
        pc("unused adapters", {}, [](PcFacts &facts) {
            facts.adapters += {adapter(u"docker0"_s, {}, AdapterKind::Virtual),
                               adapter(u"tun0"_s, u"10.8.0.2"_s, AdapterKind::Vpn),
                               adapter(u"slave"_s, {}, AdapterKind::Part)};
            facts.adapters.append(adapter(u"eth1"_s, {}));
            facts.adapters.last().adapter.running = false;
        });
        pc("second waits for an address", u"hint address wlan0"_s,
           [](PcFacts &facts) { facts.adapters.append(adapter(u"wlan0"_s, {}, AdapterKind::Wireless)); });
        pc("broadcast refused", u"problem adapter eth0"_s,
           [](PcFacts &facts) { facts.adapters[0].broadcast = AdapterFacts::Failed; });
        pc("own broadcast unheard, others heard", {},
           [](PcFacts &facts) { facts.adapters[0].heardBack = false; });
        pc("link-local beside another", u"hint nowhere eth1"_s,
           [](PcFacts &facts) { facts.adapters.append(adapter(u"eth1"_s, u"169.254.1.1"_s)); });
        pc("a second network with a router", {}, [](PcFacts &facts) {
            facts.adapters.append(adapter(u"eth1"_s, u"10.0.0.1"_s));
            facts.routes.append({u"eth1"_s, 0, 0, 100});
        });
        for (const quint32 metric : {50, 200})
            pc(metric < 100 ? "VPN before the cable" : "VPN behind the cable",
               metric < 100 ? u"problem vpn tun0"_s : QString(), [metric](PcFacts &facts) {
                   facts.adapters.append(adapter(u"tun0"_s, u"10.8.0.2"_s, AdapterKind::Vpn));
                   facts.routes.append({u"tun0"_s, 0xC0A80700, 24, metric});
               });
        pc("VPN for one machine", {}, [](PcFacts &facts) {
            facts.adapters.append(adapter(u"tun0"_s, u"10.8.0.2"_s, AdapterKind::Vpn));
            facts.routes.append({u"tun0"_s, 0xC0A80709, 32, 0});
        });
        pc("rules that can't be judged", u"hint firewall wall"_s,
           [on](PcFacts &facts) { facts.firewalls = {on}; });
        pc("public network", u"hint publicNetwork Café"_s,
           [](PcFacts &facts) { facts.publicNetworks = {u"Café"_s}; });

        peers("same role beside the right one", u"hint sameRole 192.168.7.3"_s,
              [](PeerFacts &facts) { facts.heard.append(heard(OldPC, u"192.168.7.3"_s)); });
        peers("no role said", {}, [](PeerFacts &facts) { facts.role = -1; });
        peers("refuses", u"problem peer 192.168.7.2"_s,
              [&](PeerFacts &facts) { facts.heard = {heard(NewPC, other, DialFacts::Refused)}; });
        peers("target is heard", {}, [&](PeerFacts &facts) {
            facts.target = u"box"_s;
            facts.dial = {DialFacts::Answered, other, {}};
        });
        peers("unknown name", u"problem target nobody"_s, [](PeerFacts &facts) {
            facts.target = u"nobody"_s;
            facts.dial.outcome = DialFacts::UnknownName;
        });
    }
    void onlyWhatWasSeenIsAccused()
    {
        QFETCH(PcFacts, pc);
        QFETCH(PeerFacts, peers);
        QTEST(worthAWord(pc, peers), "expected");
    }

    void endsOnceAndNotAtAllWhenCancelled()
    {
        Diagnosis diagnosis;
        QSignalSpy findings(&diagnosis, &Diagnosis::finding);
        QSignalSpy ends(&diagnosis, &Diagnosis::finished);
        diagnosis.start({.role = OldPC, .target = {}, .hearing = std::chrono::seconds(600)});
        QTRY_VERIFY_WITH_TIMEOUT(!findings.isEmpty(), 30000);
        diagnosis.cancel();
        findings.clear();
        diagnosis.start({.role = OldPC, .target = {}, .hearing = std::chrono::seconds(1)});
        diagnosis.start({.role = OldPC, .target = {}, .hearing = std::chrono::seconds(1)});
        QTRY_COMPARE_WITH_TIMEOUT(ends.size(), 1, 30000);
        QVERIFY(!diagnosis.isRunning() && !findings.isEmpty());
        QTest::qWait(0);
        QCOMPARE(ends.size(), 1);
    }
};

ZANDROVE_TEST(DiagnosisTest)

#include "DiagnosisTest.moc"
