#include "cli/Program.h"
#include "core/app/StartUp.h"
#include "platform/Terminal.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

int runProgram(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    Cli::installLog(arguments.contains(u"--verbose"_s));
    StartUp::setIdentity();
    StartUp::initTranslation();

    Cli::ParsedArguments parsed = Cli::parseArguments(arguments);
    if (const std::optional<int> exitCode = Cli::answered(parsed))
        return *exitCode;
    const Cli::Command command = parsed.options->command;
    if (command != Cli::Command::Scan && command != Cli::Command::Diagnose) // which change nothing
        StartUp::ensureFirewallRules();
    StartUp::registerMetaTypes();
    return Cli::run(*parsed.options);
}

} // namespace

int main(int argc, char *argv[])
{
    return Platform::endProcess(runProgram(argc, argv));
}
