#include "cli/Program.h"

#include "cli/DiagnoseSession.h"
#include "cli/DiscoverSession.h"
#include "cli/FolderCheck.h"
#include "cli/JsonOutput.h"
#include "cli/ReceiveSession.h"
#include "cli/ScanSession.h"
#include "cli/SendSession.h"
#include "cli/TextOutput.h"
#include "core/engine/TransferEngine.h"
#include "platform/Terminal.h"
#include "support/PrintableText.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

namespace {

bool logIsShown = false; // set before any second thread exists

void write(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

/// A line of the program's own that gets here was asked for, by --verbose or by QT_LOGGING_RULES.
void onLogMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool ours = QLatin1StringView(context.category).startsWith("zandrove."_L1);
    if (logIsShown || ours || type == QtCriticalMsg || type == QtFatalMsg)
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
    case Command::Scan:
        return std::make_unique<ScanSession>(options, engine, output);
    case Command::Discover:
    case Command::Diagnose: // has no engine
        break;
    }
    return std::make_unique<DiscoverSession>(options, engine, output);
}

/// Makes the paths absolute, each folder once. Returns what is wrong with the first one that can't be used.
QString preparePaths(Options &options)
{
    if (!options.report.isEmpty())
        options.report = absoluteFolder(options.report);
    if (QFileInfo(options.report).isDir())
        return QCoreApplication::translate("Zandrove::Cli::Program",
                                           "The report can't be written: %1 is a folder.")
            .arg(options.report);
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

/// Runs a session to its end and returns its exit code.
template <typename SessionType>
int runToItsEnd(SessionType &session)
{
    const Platform::InterruptNotifier interrupts;
    QObject::connect(&interrupts, &Platform::InterruptNotifier::interrupted, &session,
                     &SessionType::interrupt);
    QObject::connect(
        &session, &SessionType::finished, qApp, [](int code) { QCoreApplication::exit(code); },
        Qt::QueuedConnection);
    QMetaObject::invokeMethod(&session, &SessionType::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

} // namespace

void installLog(bool shown)
{
    logIsShown = shown;
    if (!shown)
        QLoggingCategory::setFilterRules(u"zandrove.*.debug=false\nzandrove.*.warning=false"_s);
    qInstallMessageHandler(onLogMessage);
}

std::optional<int> answered(ParsedArguments &parsed)
{
    if (parsed.options)
        parsed.error = preparePaths(*parsed.options);
    if (!parsed.error.isEmpty()) {
        write(stderr, errorLine(parsed.error));
        return WrongUsage;
    }
    if (parsed.options)
        return std::nullopt;
    write(stdout, parsed.text.toUtf8());
    return EverythingMoved;
}

int run(const Options &options)
{
    const std::unique_ptr<Output> output = makeOutput(options);
    if (options.command == Command::Diagnose) {
        DiagnoseSession session(options, *output);
        return runToItsEnd(session);
    }
    TransferEngine engine;
    const std::unique_ptr<Session> session = makeSession(options, engine, *output);
    return runToItsEnd(*session);
}

} // namespace Zandrove::Cli
