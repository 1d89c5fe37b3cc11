#include "platform/RegistryPath.h"
#include "platform/generic/RegistryFile.h"
#include "platform/generic/RegistryText.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace Zandrove::Platform;

/// What stands in for the programs of Windows that Zandrove starts: in the forms in which it calls them. Each
/// works on the registry file of the simulated PC, prints what a caller looks for, and ends with the exit
/// code that the real one gives.
namespace {

const QString SchemesKey =
    u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Power\\User\\PowerSchemes"_s;
const QString ActiveScheme = u"ActivePowerScheme"_s;
const QString BalancedScheme = u"381b4222-f694-41f0-9685-ff5bb260df2e"_s;
const QByteArray SchemeFileBegin = "power scheme ";

int fail(const char *line)
{
    std::fprintf(stderr, "%s\n", line);
    return EXIT_FAILURE;
}

int finish(bool done)
{
    return done ? EXIT_SUCCESS : fail("ERROR: Access is denied.");
}

/// Keeps what the programs were called with where the simulated PC finds it.
void recordCall(const QStringList &call)
{
    QFile file(qEnvironmentVariable("ZANDROVE_STANDIN_CALLS"));
    if (!file.fileName().isEmpty() && file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write(call.join(u'|').toUtf8() + '\n');
}

int exportKey(const QString &key, QFile &file)
{
    const auto parts = splitRegistryPath(key);
    const QString path = !parts                   ? QString()
                         : parts->below.isEmpty() ? parts->root
                                                  : parts->root + u'\\' + parts->below;
    const auto registry = readRegistryFile();
    if (path.isEmpty() || registry->find(path) == nullptr)
        return fail("ERROR: The system was unable to find the specified registry key or value.");
    return finish(file.open(QIODevice::WriteOnly) &&
                  file.write(encodeRegistryFile(registryText(*registry, path))) > 0);
}

int importKeys(QFile &file)
{
    if (!file.open(QIODevice::ReadOnly))
        return fail("ERROR: Error opening the file. There may be a disk or file system error.");
    const QString text = decodeRegistryFile(file.readAll());
    return finish(
        changeRegistryFile([&text](RegistryNode &registry) { return mergeRegistryText(registry, text); }));
}

int exportScheme(QFile &file)
{
    const auto registry = readRegistryFile();
    const RegistryNode *const schemes = registry->find(SchemesKey);
    const bool hasOwn = schemes != nullptr && schemes->values.contains(ActiveScheme);
    const QString guid = hasOwn ? textOf(schemes->values.at(ActiveScheme).data) : BalancedScheme;
    return finish(file.open(QIODevice::WriteOnly) && file.write(SchemeFileBegin + guid.toUtf8() + '\n') > 0);
}

int importScheme(QFile &file)
{
    if (!file.open(QIODevice::ReadOnly) || !file.readAll().startsWith(SchemeFileBegin))
        return fail("Unable to perform operation. The file is no power scheme.");
    const QString guid = QUuid::createUuid().toString(QUuid::WithoutBraces);
    std::printf("Imported Power Scheme Successfully. GUID: %s\n", qPrintable(guid));
    return finish(changeRegistryFile([&guid](RegistryNode &registry) {
        registry.make(SchemesKey + u'\\' + guid);
        return true;
    }));
}

int activateScheme(const QString &guid)
{
    return finish(changeRegistryFile([&guid](RegistryNode &registry) {
        if (registry.find(SchemesKey + u'\\' + guid) == nullptr)
            return false;
        registry.make(SchemesKey).values[ActiveScheme] = textValue(guid);
        return true;
    }));
}

int run(const QString &call, const QStringList &arguments)
{
    QFile second(arguments.value(1));
    QFile third(arguments.value(2));
    if (call == "reg export"_L1)
        return exportKey(arguments.value(1), third);
    if (call == "reg import"_L1)
        return importKeys(second);
    if (call == "powercfg /export"_L1)
        return exportScheme(second);
    if (call == "powercfg /import"_L1)
        return importScheme(second);
    if (call == "powercfg /setactive"_L1)
        return activateScheme(arguments.value(1));
    return fail("No rules match the specified criteria."); // netsh, to which no rule is known
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList call;
    for (int i = 0; i < argc; ++i)
        call.append(QString::fromLocal8Bit(argv[i]));
    const QString program = QFileInfo(call.takeFirst()).baseName();
    recordCall(QStringList(program) + call);
    return run(program + u' ' + call.value(0), call);
}
