#include "StandIn.h"

#include "platform/generic/RegistryFile.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace Zandrove::StandIn {

namespace {

const QString SchemesKey =
    u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Power\\User\\PowerSchemes"_s;
const QString ActiveScheme = u"ActivePowerScheme"_s;
const QString BalancedScheme = u"381b4222-f694-41f0-9685-ff5bb260df2e"_s;
const QString RulesKey =
    u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\"
    "FirewallPolicy\\FirewallRules"_s;
const QByteArray SchemeFileBegin = "power scheme ";

/// Keeps what the programs were called with where the simulated PC finds it.
void recordCall(const QStringList &call)
{
    QFile file(qEnvironmentVariable("ZANDROVE_STANDIN_CALLS"));
    if (!file.fileName().isEmpty() && file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write(call.join(u'|').toUtf8() + '\n');
}

QString activeScheme()
{
    const auto registry = Platform::readRegistryFile();
    const Platform::RegistryNode *const schemes = registry->find(SchemesKey);
    if (schemes == nullptr || !schemes->values.contains(ActiveScheme))
        return BalancedScheme;
    return Platform::textOf(schemes->values.at(ActiveScheme).data);
}

int exportScheme(const QString &path, const QString &scheme)
{
    QFile file(path);
    const QString guid = scheme == "SCHEME_CURRENT"_L1 ? activeScheme() : scheme;
    if (!file.open(QIODevice::WriteOnly))
        return fail(u"Unable to perform operation."_s);
    file.write(SchemeFileBegin + guid.toUtf8() + '\n');
    return Succeeded;
}

int importScheme(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.readAll().startsWith(SchemeFileBegin))
        return fail(u"Unable to perform operation. The file is no power scheme."_s);
    const QString guid = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const bool added = Platform::changeRegistryFile([&guid](Platform::RegistryNode &registry) {
        registry.make(SchemesKey + u'\\' + guid);
        return true;
    });
    if (!added)
        return fail(u"Unable to perform operation."_s);
    print(u"Imported Power Scheme Successfully. GUID: "_s + guid);
    return Succeeded;
}

int activateScheme(const QString &guid)
{
    const bool activated = Platform::changeRegistryFile([&guid](Platform::RegistryNode &registry) {
        if (registry.find(SchemesKey + u'\\' + guid) == nullptr)
            return false;
        registry.make(SchemesKey).values[ActiveScheme] = Platform::textValue(guid);
        return true;
    });
    return activated ? Succeeded : fail(u"The power scheme does not exist."_s);
}

int showRule(const QString &name)
{
    const auto registry = Platform::readRegistryFile();
    const Platform::RegistryNode *const rules = registry->find(RulesKey);
    if (rules == nullptr || !rules->values.contains(name)) {
        print(u"No rules match the specified criteria."_s);
        return Failed;
    }
    print(u"Rule Name:                            "_s + name);
    return Succeeded;
}

int addRule(const QString &name, const QStringList &conditions)
{
    const bool added = Platform::changeRegistryFile([&](Platform::RegistryNode &registry) {
        registry.make(RulesKey).values[name] = Platform::textValue(conditions.join(u'|'));
        return true;
    });
    if (!added)
        return fail(u"The requested operation requires elevation (Run as administrator)."_s);
    print(u"Ok."_s);
    return Succeeded;
}

} // namespace

void print(const QString &line)
{
    std::puts(line.toLocal8Bit().constData());
}

int fail(const QString &line)
{
    std::fputs((line + u'\n').toLocal8Bit().constData(), stderr);
    return Failed;
}

int runPowercfg(const QStringList &arguments)
{
    const QString action = arguments.value(0).toLower();
    if (action == "/export"_L1 && arguments.size() == 3)
        return exportScheme(arguments[1], arguments[2]);
    if (action == "/import"_L1 && arguments.size() == 2)
        return importScheme(arguments[1]);
    if (action == "/setactive"_L1 && arguments.size() == 2)
        return activateScheme(arguments[1]);
    return fail(u"Invalid Parameters -- try \"/?\" for help"_s);
}

int runNetsh(const QStringList &arguments)
{
    const QStringList command = arguments.first(std::min<qsizetype>(arguments.size(), 4));
    const QString name = arguments.value(4);
    const QString tag = u"name="_s;
    if (name.startsWith(tag) && command == QStringList{u"advfirewall"_s, u"firewall"_s, u"show"_s, u"rule"_s})
        return showRule(name.mid(tag.size()));
    if (name.startsWith(tag) && command == QStringList{u"advfirewall"_s, u"firewall"_s, u"add"_s, u"rule"_s})
        return addRule(name.mid(tag.size()), arguments.mid(5));
    return fail(u"The following command was not found: "_s + arguments.join(u' '));
}

} // namespace Zandrove::StandIn

int main(int argc, char *argv[])
{
    using namespace Zandrove;

    QStringList call;
    for (int i = 0; i < argc; ++i)
        call.append(QString::fromLocal8Bit(argv[i]));
    const QString program = QFileInfo(call.takeFirst()).baseName();
    StandIn::recordCall(QStringList(program) + call);
    if (program == "reg"_L1)
        return StandIn::runReg(call);
    if (program == "powercfg"_L1)
        return StandIn::runPowercfg(call);
    if (program == "netsh"_L1)
        return StandIn::runNetsh(call);
    return StandIn::fail(program + u" stands in for nothing"_s);
}
