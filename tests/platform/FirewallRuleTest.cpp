#include "PlatformTests.h"

#include "platform/FirewallRule.h"

using Platform::Passage;

/// The rules of Windows' firewall, as its registry holds them.
class FirewallRuleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rulesAreJudged_data()
    {
        const auto row = addColumns<QStringList, Passage>("rules", "passage");
        const QString allow =
            u"v2.30|Action=Allow|Active=TRUE|Dir=In|Protocol=6|LPort=52024|Name=Zandrove TCP|"_s;
        const auto with = [&](const QString &from, const QString &to) {
            return QString(allow).replace(from, to);
        };
        const QString ofProgram =
            u"v2.30|Action=Allow|Active=TRUE|Dir=In|App=C:\\zandrove\\ZANDROVE.exe|Name=z|"_s;
        const QString block = QString(ofProgram).replace(u"Allow"_s, u"Block"_s);
        row("none", {}, Passage::Closed);
        row("the program's own", {allow}, Passage::Open);
        row("switched off", {with(u"TRUE"_s, u"FALSE"_s)}, Passage::Closed);
        row("for what goes out", {with(u"Dir=In"_s, u"Dir=Out"_s)}, Passage::Closed);
        row("another protocol", {with(u"=6"_s, u"=17"_s)}, Passage::Closed);
        row("a range", {with(u"LPort=52024"_s, u"LPort=80|LPort2_10=52000-53000"_s)}, Passage::Open);
        row("another profile", {with(u"Name"_s, u"Profile=Domain|Name"_s)}, Passage::Closed);
        row("this profile too", {with(u"Name"_s, u"Profile=Domain|Profile=Private|Name"_s)}, Passage::Open);
        row("the local subnet", {with(u"Name"_s, u"RA4=LocalSubnet|Name"_s)}, Passage::Open);
        row("one sender", {with(u"Name"_s, u"RA4=10.0.0.9|Name"_s)}, Passage::Unknown);
        row("the program", {ofProgram}, Passage::Open);
        row("a service", {with(u"Name"_s, u"Svc=upnp|Name"_s)}, Passage::Closed);
        row("the user said no once", {allow, block}, Passage::Closed);
        row("nonsense", {u"|=||Action"_s, QString()}, Passage::Closed);
    }
    void rulesAreJudged()
    {
        QFETCH(QStringList, rules);
        QList<Platform::FirewallRule> read;
        for (const QString &text : std::as_const(rules)) {
            if (const auto rule = Platform::firewallRule(text))
                read.append(*rule);
        }
        QTEST(Platform::passageBy(
                  read, {Platform::Transport::Tcp, 52024, u"Private"_s, u"c:/Zandrove/zandrove.exe"_s}),
              "passage");
    }
};

ZANDROVE_TEST(FirewallRuleTest)

#include "FirewallRuleTest.moc"
