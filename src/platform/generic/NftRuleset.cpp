#include "platform/generic/NftRuleset.h"

#include "platform/FirewallVerdict.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

constexpr int DeepestJump = 16; // the kernel's own bound

enum class Truth { No, Maybe, Yes };

/// What becomes of the packet in a list of rules; it `mayGoOn` behind them.
struct Fate
{
    FirewallVerdict verdict;
    bool mayGoOn = true;
    bool mayReturn = false;
};

/// The packet, and the rules that it meets.
class Ruleset
{
public:
    Ruleset(const QJsonArray &entries, Transport transport, quint16 port)
        : m_entries(entries)
        , m_transport(transport == Transport::Tcp ? u"tcp"_s : u"udp"_s)
        , m_port(port)
    {
    }

    /// What becomes of the packet in the chain, its policy included where it has one.
    [[nodiscard]] Fate through(const QJsonObject &chain, int depth = 0) const;

private:
    [[nodiscard]] Fate throughRule(const QJsonObject &chain, const QJsonArray &statements, int depth) const;
    [[nodiscard]] Fate throughMap(const QJsonObject &chain, const QJsonObject &map, int depth) const;
    [[nodiscard]] Fate jump(const QJsonObject &from, const QString &name, int depth) const;
    [[nodiscard]] Fate verdictOf(const QJsonObject &chain, const QJsonObject &statement, int depth) const;
    [[nodiscard]] Truth holds(const QJsonObject &chain, const QJsonObject &match) const;
    [[nodiscard]] Truth isOneOf(const QJsonObject &chain, const QJsonValue &own,
                                const QJsonValue &wanted) const;
    [[nodiscard]] QJsonArray setNamed(const QJsonObject &chain, const QString &name) const;

    QJsonArray m_entries;
    QString m_transport;
    int m_port;
};

bool isVerdict(const QString &name)
{
    static const QStringList verdicts{u"accept"_s, u"drop"_s, u"reject"_s, u"queue"_s,
                                      u"jump"_s,   u"goto"_s, u"return"_s};
    return verdicts.contains(name);
}

bool isNeutral(const QString &name)
{
    static const QStringList neutral{u"counter"_s, u"log"_s, u"comment"_s, u"mangle"_s};
    return neutral.contains(name);
}

Truth isOf(const QString &own, const QStringList &others)
{
    return others.contains(own) ? Truth::Yes : Truth::No;
}

Fate Ruleset::through(const QJsonObject &chain, int depth) const
{
    Fate fate;
    for (const QJsonValue &entry : m_entries) {
        const QJsonObject rule = entry.toObject().value("rule"_L1).toObject();
        if (rule.isEmpty() || rule.value("chain"_L1) != chain.value("name"_L1) ||
            rule.value("table"_L1) != chain.value("table"_L1) ||
            rule.value("family"_L1) != chain.value("family"_L1))
            continue;
        const Fate ofRule = throughRule(chain, rule.value("expr"_L1).toArray(), depth);
        fate.verdict.add(ofRule.verdict);
        fate.mayReturn = fate.mayReturn || ofRule.mayReturn;
        fate.mayGoOn = ofRule.mayGoOn;
        if (!fate.mayGoOn)
            break;
    }
    fate.mayGoOn = fate.mayGoOn || fate.mayReturn;
    fate.mayReturn = false;
    if (chain.contains("policy"_L1) && fate.mayGoOn) {
        const bool passes = chain.value("policy"_L1) == "accept"_L1;
        fate.verdict.add({passes, !passes});
    }
    return fate;
}

Fate Ruleset::throughRule(const QJsonObject &chain, const QJsonArray &statements, int depth) const
{
    Truth truth = Truth::Yes;
    for (const QJsonValue &value : statements) {
        const QJsonObject statement = value.toObject();
        const QString name = statement.isEmpty() ? QString() : statement.constBegin().key();
        if (isVerdict(name)) {
            Fate fate = verdictOf(chain, statement, depth);
            fate.mayGoOn = fate.mayGoOn || truth == Truth::Maybe;
            return fate;
        }
        if (name == "match"_L1) {
            const Truth matches = holds(chain, statement.value(name).toObject());
            if (matches == Truth::No)
                return {};
            truth = std::min(truth, matches);
        } else if (name == "vmap"_L1) {
            Fate fate = throughMap(chain, statement.value(name).toObject(), depth);
            fate.mayGoOn = fate.mayGoOn || truth == Truth::Maybe;
            return fate;
        } else if (!isNeutral(name)) {
            truth = Truth::Maybe;
        }
    }
    return {};
}

Fate Ruleset::verdictOf(const QJsonObject &chain, const QJsonObject &statement, int depth) const
{
    const QString name = statement.constBegin().key();
    if (name == "accept"_L1)
        return {{true, false}, false, false};
    if (name == "drop"_L1 || name == "reject"_L1)
        return {{false, true}, false, false};
    if (name == "return"_L1)
        return {{}, false, true};
    if (name == "queue"_L1 || depth >= DeepestJump)
        return {{true, true}, false, false};
    Fate fate = jump(chain, statement.value(name).toObject().value("target"_L1).toString(), depth);
    if (name == "goto"_L1 && fate.mayGoOn) {
        fate.mayGoOn = false;
        fate.mayReturn = true;
    }
    return fate;
}

Fate Ruleset::throughMap(const QJsonObject &chain, const QJsonObject &map, int depth) const
{
    const QJsonValue data = map.value("data"_L1);
    if (!data.toObject().contains("set"_L1))
        return {{true, true}, true, false};
    Fate fate;
    for (const QJsonValue &value : data.toObject().value("set"_L1).toArray()) {
        const QJsonArray pair = value.toArray();
        const Truth truth =
            holds(chain, {{u"op"_s, u"=="_s}, {u"left"_s, map.value("key"_L1)}, {u"right"_s, pair.at(0)}});
        const QJsonObject verdict = pair.at(1).toObject();
        if (truth == Truth::No || verdict.isEmpty())
            continue;
        const Fate ofPair = verdictOf(chain, verdict, depth);
        fate.verdict.add(ofPair.verdict);
        fate.mayReturn = fate.mayReturn || ofPair.mayReturn;
        fate.mayGoOn = ofPair.mayGoOn || truth == Truth::Maybe;
        if (!fate.mayGoOn)
            break;
    }
    return fate;
}

Fate Ruleset::jump(const QJsonObject &from, const QString &name, int depth) const
{
    QJsonObject target = from;
    target.insert("name"_L1, name);
    target.remove("policy"_L1);
    return through(target, depth + 1);
}

Truth Ruleset::holds(const QJsonObject &chain, const QJsonObject &match) const
{
    const QJsonObject left = match.value("left"_L1).toObject();
    const QJsonObject payload = left.value("payload"_L1).toObject();
    const QString meta = left.value("meta"_L1).toObject().value("key"_L1).toString();
    const QString protocol = payload.value("protocol"_L1).toString();
    const QString field = payload.value("field"_L1).toString();

    QJsonValue own;
    if (meta == "l4proto"_L1 || (protocol == "ip"_L1 && field == "protocol"_L1))
        own = m_transport;
    else if (meta == "nfproto"_L1)
        own = u"ipv4"_s;
    else if (field == "dport"_L1 && isOf(protocol, {m_transport, u"th"_s}) == Truth::Yes)
        own = m_port;
    else if (left.value("ct"_L1).toObject().value("key"_L1) == "state"_L1)
        own = u"new"_s;
    else if (meta == "iifname"_L1 || meta == "iif"_L1)
        return match.value("right"_L1) == "lo"_L1 && match.value("op"_L1) == "=="_L1 ? Truth::No
                                                                                     : Truth::Maybe;
    else if (isOf(protocol, {u"tcp"_s, u"udp"_s, u"ip6"_s, u"icmp"_s, u"icmpv6"_s}) == Truth::Yes)
        return protocol == m_transport ? Truth::Maybe : Truth::No;
    else
        return Truth::Maybe;

    const Truth truth = isOneOf(chain, own, match.value("right"_L1));
    const QString op = match.value("op"_L1).toString();
    if (op == "!="_L1 && truth != Truth::Maybe)
        return truth == Truth::Yes ? Truth::No : Truth::Yes;
    return op == "=="_L1 || op == "in"_L1 ? truth : Truth::Maybe;
}

Truth Ruleset::isOneOf(const QJsonObject &chain, const QJsonValue &own, const QJsonValue &wanted) const
{
    if (wanted.isString() && wanted.toString().startsWith(u'@'))
        return isOneOf(chain, own, setNamed(chain, wanted.toString().mid(1)));
    if (wanted.isArray()) {
        Truth truth = Truth::No;
        for (const QJsonValue &one : wanted.toArray())
            truth = std::max(truth, isOneOf(chain, own, one));
        return truth;
    }
    if (!wanted.isObject())
        return wanted.type() != own.type() ? Truth::Maybe : wanted == own ? Truth::Yes : Truth::No;
    const QJsonObject object = wanted.toObject();
    if (object.contains("set"_L1))
        return isOneOf(chain, own, object.value("set"_L1));
    if (object.contains("elem"_L1))
        return isOneOf(chain, own, object.value("elem"_L1).toObject().value("val"_L1));
    const QJsonArray range = object.value("range"_L1).toArray();
    if (range.size() != 2 || !own.isDouble() || !range.at(0).isDouble() || !range.at(1).isDouble())
        return Truth::Maybe;
    return range.at(0).toInt() <= own.toInt() && own.toInt() <= range.at(1).toInt() ? Truth::Yes : Truth::No;
}

QJsonArray Ruleset::setNamed(const QJsonObject &chain, const QString &name) const
{
    for (const QJsonValue &entry : m_entries) {
        const QJsonObject set = entry.toObject().value("set"_L1).toObject();
        if (set.value("name"_L1) == name && set.value("table"_L1) == chain.value("table"_L1) &&
            set.value("family"_L1) == chain.value("family"_L1))
            return set.value("elem"_L1).toArray();
    }
    return {};
}

/// Whether the chain is one that packets from another PC to this one come through.
bool isWayIn(const QJsonObject &chain)
{
    const QString family = chain.value("family"_L1).toString();
    const QString hook = chain.value("hook"_L1).toString();
    return (family == "ip"_L1 || family == "inet"_L1) && chain.value("type"_L1) == "filter"_L1 &&
           (hook == "input"_L1 || hook == "prerouting"_L1);
}

} // namespace

NftPassage nftPassage(const QByteArray &json, Transport transport, quint16 port)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return {};
    const QJsonArray entries = document.object().value("nftables"_L1).toArray();
    const Ruleset rules(entries, transport, port);

    NftPassage result{.passage = Passage::Open, .isAsked = false, .closedBy = {}};
    for (const QJsonValue &entry : entries) {
        const QJsonObject chain = entry.toObject().value("chain"_L1).toObject();
        if (!isWayIn(chain))
            continue;
        result.isAsked = true;
        const Passage passage = rules.through(chain).verdict.passage();
        if (passage == Passage::Closed) {
            result.closedBy = {chain.value("family"_L1).toString(), chain.value("table"_L1).toString(),
                               chain.value("name"_L1).toString()};
            result.passage = passage;
            return result;
        }
        if (passage == Passage::Unknown)
            result.passage = passage;
    }
    return result;
}

} // namespace Zandrove::Platform
