#include "../PlatformTests.h"

#include "platform/Firewall.h"
#include "platform/generic/FirewallPrograms.h"
#include "platform/generic/NetworkTexts.h"
#include "platform/generic/NftRuleset.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using Platform::AdapterKind;
using Platform::FirewallReport;
using Platform::Passage;
using Platform::Transport;

namespace {

constexpr quint16 Port = 52024;

/// Rules of a chain for what comes in, each a list of statements as nft prints them, and further entries.
QByteArray ruleset(const QByteArray &policy, const QByteArray &rules, const QByteArray &more = {})
{
    QByteArray text =
        R"({"nftables": [{"chain": {"family": "inet", "table": "t", "name": "in", "type": "filter",
        "hook": "input", "policy": ")" +
        policy + R"("}})";
    const QJsonArray lists = QJsonDocument::fromJson('[' + rules + ']').array();
    for (const QJsonValue &list : lists) {
        const QJsonObject rule{
            {u"family"_s, u"inet"_s}, {u"table"_s, u"t"_s}, {u"chain"_s, u"in"_s}, {u"expr"_s, list}};
        text += ',' + QJsonDocument(QJsonObject{{u"rule"_s, rule}}).toJson(QJsonDocument::Compact);
    }
    return text + (more.isEmpty() ? "" : ",") + more + "]}";
}

QByteArray match(const QByteArray &left, const QByteArray &right, const QByteArray &op = "==")
{
    return R"({"match": {"op": ")" + op + R"(", "left": )" + left + R"(, "right": )" + right + "}}";
}

} // namespace

/// What Linux says of its network and its firewalls.
class FirewallTest : public PcTest
{
    Q_OBJECT

private Q_SLOTS:
    void rulesOfNftAreFollowed_data()
    {
        const auto row = addColumns<QByteArray, Passage>("json", "passage");
        const QByteArray port = R"({"payload": {"protocol": "tcp", "field": "dport"}})";
        const QByteArray udp = R"({"payload": {"protocol": "udp", "field": "dport"}})";
        const QByteArray state = R"({"ct": {"key": "state"}})";
        const QByteArray accept = R"({"accept": null}])";
        const QByteArray drop = R"({"drop": null}])";
        const QByteArray usual = '[' + match(state, R"(["established","related"])", "in") + ',' + accept +
                                 ",[" + match(R"({"meta": {"key": "iifname"}})", R"("lo")") + ',' + accept +
                                 ",[" + match(R"({"meta": {"key": "l4proto"}})", R"("icmp")") + ',' + accept;
        const QByteArray fromSome =
            '[' + match(R"({"payload": {"protocol": "ip", "field": "saddr"}})", R"("10.0.0.1")") + ',';
        row("no rules", R"({"nftables": []})", Passage::Open);
        row("no answer", "Operation not permitted", Passage::Unknown);
        row("policy alone", ruleset("drop", ""), Passage::Closed);
        row("a usual desktop", ruleset("drop", usual), Passage::Closed);
        row("its port opened", ruleset("drop", usual + ",[" + match(port, "52024") + ',' + accept),
            Passage::Open);
        row("the other transport", ruleset("drop", '[' + match(udp, "52024") + ',' + accept),
            Passage::Closed);
        row("a range", ruleset("drop", '[' + match(port, R"({"range": [52000, 53000]})") + ',' + accept),
            Passage::Open);
        row("a set",
            ruleset("accept", '[' + match(port, R"({"set": [22, 52024]})") + R"(,{"counter": null},)" + drop),
            Passage::Closed);
        row("a named set",
            ruleset("drop", '[' + match(port, R"("@open")") + ',' + accept,
                    R"({"set": {"family": "inet", "table": "t", "name": "open", "elem": [22, 52024]}})"),
            Passage::Open);
        row("all but a port", ruleset("drop", '[' + match(port, "22", "!=") + ',' + accept), Passage::Open);
        row("some senders", ruleset("drop", fromSome + accept), Passage::Unknown);
        row("some senders, and all", ruleset("drop", fromSome + accept + ",[" + accept), Passage::Open);
        row("unknown statement", ruleset("accept", R"([{"xt": {"name": "tcp"}},)" + drop), Passage::Unknown);
        row("map of states", ruleset("accept", R"([{"vmap": {"key": {"ct": {"key": "state"}}, "data": {"set":
                [["established", {"accept": null}], ["new", {"drop": null}]]}}}])"),
            Passage::Closed);
        const QByteArray inner = R"({"rule": {"family": "inet", "table": "t", "chain": "c", "expr": [)";
        row("jump", ruleset("drop", R"([{"jump": {"target": "c"}}])", inner + accept + "}}"), Passage::Open);
        row("jump that returns",
            ruleset("accept", R"([{"jump": {"target": "c"}}],[{"drop": null}])",
                    inner + R"({"return": null}]}})"),
            Passage::Closed);
        row("goto that ends",
            ruleset("accept", R"([{"goto": {"target": "c"}}],[{"drop": null}])",
                    inner + R"({"return": null}]}})"),
            Passage::Open);
        row("endless jumps", ruleset("accept", R"([{"jump": {"target": "in"}}])"), Passage::Unknown);
    }
    void rulesOfNftAreFollowed()
    {
        QFETCH(QByteArray, json);
        QTEST(Platform::nftPassage(json, Transport::Tcp, Port).passage, "passage");
    }

    void tableOfUfwIsRead_data()
    {
        const auto row = addColumns<QString, Passage>("rules", "passage");
        row("none", u""_s, Passage::Closed);
        row("the port", u"52024/tcp   ALLOW IN    Anywhere"_s, Passage::Open);
        row("a profile", u"52024/tcp (Zandrove)    ALLOW IN    Anywhere    # moving"_s, Passage::Open);
        row("ranges, both transports", u"22,52000:53000    LIMIT IN    Anywhere"_s, Passage::Open);
        row("others",
            u"52025/udp  ALLOW IN  Anywhere\n52024/tcp  ALLOW OUT  Anywhere\n"
            "52024/tcp (v6)  ALLOW IN  Anywhere (v6)"_s,
            Passage::Closed);
        row("some senders", u"52024/tcp   ALLOW IN    192.168.0.0/16"_s, Passage::Unknown);
        row("one adapter", u"Anywhere on eth1   ALLOW IN    Anywhere"_s, Passage::Unknown);
        row("first rule wins", u"52024  DENY IN  Anywhere\nAnywhere  ALLOW IN  Anywhere"_s, Passage::Closed);
    }
    void tableOfUfwIsRead()
    {
        QFETCH(QString, rules);
        const QString head = u"Status: active\nDefault: deny (incoming), allow (outgoing)\n\n"
                             "To     Action      From\n--     ------      ----\n"_s;
        QTEST(Platform::ufwPassage(head + rules, Transport::Tcp, Port), "passage");
    }

    void zonesOfFirewalldAreRead()
    {
        const QString zones =
            u"home\n  target: default\n  interfaces: \n  services: ssh zandrove\n  ports: \n\n"
            "public (active)\n  target: default\n  interfaces: eth0 eth1\n  services: ssh\n"
            "  ports: 52024/tcp 50000-60000/udp\n  rich rules: \n\n"
            "dmz\n  target: default\n  rich rules: \n\trule family=\"ipv4\" accept\n\n"
            "trusted\n  target: ACCEPT\n"_s;
        const auto passage = [&](const char *zone, Transport transport, quint16 port) {
            return Platform::firewalldPassage(zones, QLatin1StringView(zone), transport, port);
        };
        QCOMPARE(Platform::firewalldZone(zones, u"eth1"_s, u"home"_s), u"public"_s);
        QCOMPARE(Platform::firewalldZone(zones, u"wlan0"_s, u"home"_s), u"home"_s);
        QCOMPARE(passage("public", Transport::Tcp, Port), Passage::Open);
        QCOMPARE(passage("public", Transport::Tcp, 52025), Passage::Closed);
        QCOMPARE(passage("public", Transport::Udp, 52025), Passage::Open);
        QCOMPARE(passage("home", Transport::Tcp, Port), Passage::Open);
        QCOMPARE(passage("trusted", Transport::Tcp, Port), Passage::Open);
        QCOMPARE(passage("dmz", Transport::Tcp, Port), Passage::Unknown);
        QCOMPARE(passage("missing", Transport::Tcp, Port), Passage::Unknown);
    }

    void firewallsAreAskedInTurn()
    {
        const auto reports = [] { return Platform::readFirewalls({Port, 52025, {u"eth0"_s}, {}}); };
        m_pc->replaceProgram(u"ufw"_s, "echo Status: inactive");
        m_pc->replaceProgram(u"firewall-cmd"_s, "echo not running >&2; exit 252");
        m_pc->replaceProgram(u"nft"_s, "echo no rights >&2; exit 1");
        QCOMPARE(reports().size(), 3);
        QCOMPARE(reports().constLast().state,
                 ::geteuid() == 0 ? FirewallReport::NoAnswer : FirewallReport::NoRights);
        QVERIFY(reports().constLast().command.endsWith("nft list ruleset"_L1));

        m_pc->replaceProgram(u"firewall-cmd"_s,
                             "case $1 in --state) echo running;; --get-default-zone) echo work;; *) "
                             "printf 'work (active)\\n  target: default\\n  ports: 52024/tcp\\n';; esac");
        QCOMPARE(reports().size(), 2); // it keeps its rules where nft would show them
        const FirewallReport firewalld = reports().constLast();
        QVERIFY(firewalld.tcp == Passage::Open && firewalld.udp == Passage::Closed);
        QVERIFY2(firewalld.command.endsWith(
                     "firewall-cmd --zone=work --add-port=52024/tcp --add-port=52025/udp"_L1),
                 qPrintable(firewalld.command));
    }

    void tablesOfTheKernelAreRead()
    {
        const auto routes =
            Platform::routesFrom("Iface Destination Gateway Flags RefCnt Use Metric Mask MTU Window IRTT\n"
                                 "tun0 0000A8C0 00000000 0001 0 0 50 0000FFFF 0 0 0\n"
                                 "eth0 00000000 0100A8C0 0003 0 0 100 00000000 0 0 0\n"
                                 "* 0000FEA9 00000000 0200 0 0 0 0000FFFF 0 0 0\nnonsense\n");
        QCOMPARE(routes.size(), 2);
        QVERIFY(routes.at(0).network == 0xC0A80000 && routes.at(0).prefixLength == 16 &&
                routes.at(0).metric == 50);
        QVERIFY(routes.at(1).adapter == "eth0"_L1 && routes.at(1).prefixLength == 0);
        QCOMPARE(Platform::neighboursFrom("IP address HW type Flags HW address Mask Device\n"
                                          "10.0.0.1 0x1 0x2 02:00:00:00:00:01 * eth0\n"
                                          "10.0.1.1 0x1 0x0 00:00:00:00:00:00 * eth1\n"),
                 QStringList{u"eth0"_s});
        const QByteArray sockets = "sl local_address rem_address st tx:rx tr:tm retrnsmt uid timeout inode\n"
                                   "0: 00000000:CB38 00000000:0000 0A 0:0 0:0 0 0 0 41 1\n"
                                   "1: 0100007F:CB38 0100007F:9999 01 0:0 0:0 0 0 0 42 1\n";
        QCOMPARE(Platform::socketsFrom(sockets, Transport::Tcp, Port), QList<quint64>{41});
        QCOMPARE(Platform::socketsFrom(sockets, Transport::Udp, Port).size(), 2);
    }

    void kindsOfAdaptersAreTold()
    {
        m_pc->writeFile(u"eth/type"_s, "1\n");
        m_pc->writeFile(u"eth/device/vendor"_s, "");
        m_pc->writeFile(u"port/master/type"_s, "1\n");
        m_pc->writeFile(u"wlan/type"_s, "1\n");
        m_pc->writeFile(u"wlan/phy80211/index"_s, "0");
        m_pc->writeFile(u"veth/type"_s, "1\n");
        m_pc->writeFile(u"tun/tun_flags"_s, "0x1801\n");
        m_pc->writeFile(u"tap/tun_flags"_s, "0x1802\n");
        m_pc->writeFile(u"wg/uevent"_s, "DEVTYPE=wireguard\nINTERFACE=wg\n");
        const QMap<QString, AdapterKind> kinds{
            {u"eth"_s, AdapterKind::Wired},    {u"wlan"_s, AdapterKind::Wireless},
            {u"veth"_s, AdapterKind::Virtual}, {u"tun"_s, AdapterKind::Vpn},
            {u"tap"_s, AdapterKind::Virtual},  {u"wg"_s, AdapterKind::Vpn},
            {u"port"_s, AdapterKind::Part},    {u"gone"_s, AdapterKind::Unknown}};
        for (auto kind = kinds.begin(); kind != kinds.end(); ++kind)
            QVERIFY2(Platform::kindFrom(m_pc->path(kind.key())) == kind.value(), qPrintable(kind.key()));
    }
};

ZANDROVE_TEST(FirewallTest)

#include "FirewallTest.moc"
