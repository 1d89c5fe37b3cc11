#include "cli/DiscoverSession.h"
#include "cli/FolderCheck.h"
#include "cli/JsonOutput.h"
#include "cli/Options.h"
#include "cli/ReceiveSession.h"
#include "cli/SendSession.h"
#include "cli/TextOutput.h"
#include "core/app/StartUp.h"
#include "core/engine/TransferEngine.h"
#include "platform/Terminal.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using namespace Zandrove::Cli;

namespace {

bool logIsShown = false; // set before any second thread exists

void write(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

void onLogMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (logIsShown || type == QtCriticalMsg || type == QtFatalMsg)
        write(stderr, printable(message).toUtf8() + '\n');
    if (type == QtFatalMsg)
        std::abort();
}

Streams standardStreams()
{
    return {.out = [](const QByteArray &bytes) { write(stdout, bytes); },
            .err = [](const QByteArray &bytes) { write(stderr, bytes); },
            .columns = Platform::terminalColumns};
}

std::unique_ptr<Output> makeOutput(const Options &options)
{
    if (options.json)
        return std::make_unique<JsonOutput>(standardStreams());
    return std::make_unique<TextOutput>(standardStreams(), options.role,
                                        options.command == Command::Discover);
}

std::unique_ptr<Session> makeSession(const Options &options, TransferEngine &engine, Output &output)
{
    switch (options.command) {
    case Command::Receive:
        return std::make_unique<ReceiveSession>(options, engine, output);
    case Command::Send:
        return std::make_unique<SendSession>(options, engine, output);
    case Command::Discover:
        break;
    }
    return std::make_unique<DiscoverSession>(options, engine, output);
}

/// Makes the folders absolute. Returns what is wrong with the first one that can't be sent.
QString prepareFolders(Options &options)
{
    QStringList folders;
    for (const QString &folder : std::as_const(options.folders)) {
        const QString path = absoluteFolder(folder);
        const QString problem = folderProblem(path);
        if (!problem.isEmpty())
            return problem;
        if (!folders.contains(path))
            folders.append(path);
    }
    options.folders = folders;
    return {};
}

int run(const Options &options)
{
    StartUp::ensureFirewallRules();
    StartUp::registerMetaTypes();
    const std::unique_ptr<Output> output = makeOutput(options);
    TransferEngine engine;
    const std::unique_ptr<Session> session = makeSession(options, engine, *output);
    Platform::InterruptNotifier interrupts;
    QObject::connect(&interrupts, &Platform::InterruptNotifier::interrupted, session.get(),
                     &Session::interrupt);
    QObject::connect(
        session.get(), &Session::finished, qApp, [](int code) { QCoreApplication::exit(code); },
        Qt::QueuedConnection);
    QMetaObject::invokeMethod(session.get(), &Session::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

int usageError(const QString &error)
{
    write(stderr, errorLine(error));
    return WrongUsage;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    logIsShown = arguments.contains(u"--verbose"_s);
    qInstallMessageHandler(onLogMessage);
    StartUp::setIdentity();
    StartUp::initTranslation();

    ParsedArguments parsed = parseArguments(arguments);
    if (!parsed.error.isEmpty())
        return usageError(parsed.error);
    if (!parsed.options) {
        write(stdout, parsed.text.toUtf8());
        return EverythingMoved;
    }
    const QString folderError = prepareFolders(*parsed.options);
    return folderError.isEmpty() ? run(*parsed.options) : usageError(folderError);
}
