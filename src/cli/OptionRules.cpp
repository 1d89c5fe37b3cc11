#include "cli/OptionRules.h"

#include "cli/Columns.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

namespace {

constexpr int LongestWait = 7 * 24 * 3600; // seconds

constexpr unsigned Receive = 1u << static_cast<unsigned>(Command::Receive);
constexpr unsigned Send = 1u << static_cast<unsigned>(Command::Send);
constexpr unsigned Discover = 1u << static_cast<unsigned>(Command::Discover);
constexpr unsigned Diagnose = 1u << static_cast<unsigned>(Command::Diagnose);
constexpr unsigned Scan = 1u << static_cast<unsigned>(Command::Scan);
constexpr unsigned Networked = Receive | Send | Discover;
constexpr unsigned Every = Networked | Diagnose | Scan;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Cli::Options)
};

QString storeSeconds(std::optional<std::chrono::seconds> &target, const QString &value)
{
    bool isNumber = false;
    const int seconds = value.toInt(&isNumber);
    if (!isNumber || seconds < 1 || seconds > LongestWait)
        return Text::tr("%1 is not a number of seconds from 1 to %2.")
            .arg(value, QString::number(LongestWait));
    target = std::chrono::seconds(seconds);
    return {};
}

QString storeMode(Options &options, const QString &value)
{
    if (value == "network"_L1)
        options.mode = NetworkMode;
    else if (value == "cable"_L1)
        options.mode = CableMode;
    else
        return Text::tr("--mode is network or cable, not %1.").arg(value);
    return {};
}

QString storeRole(Options &options, const QString &value)
{
    if (value == "old"_L1)
        options.role = OldPC;
    else if (value == "new"_L1)
        options.role = NewPC;
    else
        return Text::tr("--role is old or new, not %1.").arg(value);
    return {};
}

QString storeTarget(Options &options, const QString &value)
{
    options.target = value.trimmed();
    return options.target.isEmpty() ? Text::tr("--to needs a code, a name or an address.") : QString();
}

QString storeFolder(Options &options, const QString &value)
{
    if (value.isEmpty())
        return Text::tr("--folder needs a folder.");
    options.folders.append(value);
    return {};
}

QString storeApp(Options &options, const QString &value)
{
    if (value.isEmpty())
        return Text::tr("%1 needs a value.").arg("--app"_L1);
    options.apps.append(value);
    return {};
}

QString storeReport(Options &options, const QString &value)
{
    if (value.isEmpty())
        return Text::tr("%1 needs a value.").arg("--report"_L1);
    options.report = value;
    return {};
}

QString storeSetting(Options &options, const QString &value)
{
    if (value.isEmpty())
        return Text::tr("%1 needs a value.").arg("--setting"_L1);
    options.settings.append(value);
    return {};
}

template <bool Options::*Flag>
QString setFlag(Options &options, const QString &)
{
    options.*Flag = true;
    return {};
}

const std::array Rules = {
    OptionRule{"--to"_L1, "CODE|NAME|ADDRESS", Send,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                 "The New PC: the four digits on its screen, its name or its address."),
               storeTarget},
    OptionRule{"--to"_L1, "ADDRESS", Diagnose,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                 "The address or host name of a PC that is tried as well."),
               storeTarget},
    OptionRule{"--folder"_L1, "DIR", Send,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "A folder to move; may be given several times."),
               storeFolder},
    OptionRule{"--app"_L1, "NAME", Send,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                 "An application to move, by the exact name that scan lists; may be given "
                                 "several times."),
               storeApp},
    OptionRule{"--all-apps"_L1, nullptr, Send,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "Move every application that can be moved."),
               setFlag<&Options::allApps>},
    OptionRule{"--setting"_L1, "ID", Send,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                 "A setting to move, by the id that scan lists; may be given several times."),
               storeSetting},
    OptionRule{"--all-settings"_L1, nullptr, Send,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "Move every setting that this PC has."),
               setFlag<&Options::allSettings>},
    OptionRule{"--yes"_L1, nullptr, Receive,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "Let every PC in that asks, without a question."),
               setFlag<&Options::yes>},
    OptionRule{"--once"_L1, nullptr, Receive,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "End after the first transfer."),
               setFlag<&Options::once>},
    OptionRule{
        "--timeout"_L1, "S", Receive,
        QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                          "End with exit code 3 when nothing has begun to arrive within S seconds. Counted "
                          "anew each time the program starts to wait; a running transfer is never cut."),
        [](Options &options, const QString &value) { return storeSeconds(options.timeout, value); }},
    OptionRule{"--timeout"_L1, "S", Send,
               QT_TRANSLATE_NOOP(
                   "Zandrove::Cli::Options",
                   "End with exit code 3 when the New PC was not found and has not let this PC in "
                   "within S seconds. Counted from when it is looked for; the transfer itself is never "
                   "cut."),
               [](Options &options, const QString &value) { return storeSeconds(options.timeout, value); }},
    OptionRule{"--report"_L1, "FILE", Receive | Send,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                 "Write the report of each transfer to FILE, in place of the one before: a "
                                 "page to read or, for a name that ends in .json, JSON."),
               storeReport},
    OptionRule{"--role"_L1, "old|new", Discover,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                 "What this PC is. An Old PC sees the New PCs, a New PC the Old PCs."),
               storeRole},
    OptionRule{"--role"_L1, "old|new", Diagnose,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                 "What this PC is, to be compared with those that are heard."),
               storeRole},
    OptionRule{"--seconds"_L1, "N", Discover,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "Look for N seconds; without it, until Ctrl-C."),
               [](Options &options, const QString &value) { return storeSeconds(options.seconds, value); }},
    OptionRule{"--seconds"_L1, "N", Diagnose,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "Listen for N seconds; without it, for 5."),
               [](Options &options, const QString &value) { return storeSeconds(options.seconds, value); }},
    OptionRule{
        "--mode"_L1, "network|cable", Networked,
        QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                          "How PCs find each other: by broadcast (the default), or over a direct cable, "
                          "where the addresses around this PC's own are tried as well."),
        storeMode},
    OptionRule{
        "--control"_L1, nullptr, Receive,
        QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                          "Obey commands on standard input, one a line: yes, no (answer a request), pause, "
                          "resume, cancel, end."),
        setFlag<&Options::control>},
    OptionRule{
        "--control"_L1, nullptr, Send,
        QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                          "Obey commands on standard input, one a line: pause, resume, cancel, again [DIR] "
                          "(a further transfer on the same link), end. The link then stays after a "
                          "transfer until end, or until standard input ends."),
        setFlag<&Options::control>},
    OptionRule{"--json"_L1, nullptr, Every,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "Print one JSON object a line, for scripts."),
               setFlag<&Options::json>},
    OptionRule{"--verbose"_L1, nullptr, Every,
               QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "Print the program's log on standard error."),
               setFlag<&Options::verbose>},
};

struct CommandText
{
    Command command;
    QLatin1StringView name;
    const char *usage;
    const char *purpose;
};

const std::array Commands = {
    CommandText{Command::Receive, "receive"_L1,
                "zandrove-cli receive [--yes] [--once] [--timeout S] [--report FILE]",
                QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                  "Be the New PC: show a code, wait for an Old PC, receive what it sends.")},
    CommandText{
        Command::Send, "send"_L1,
        "zandrove-cli send --to CODE|NAME|ADDRESS [--folder DIR]... [--app NAME]... [--setting ID]...",
        QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                          "Be the Old PC: find the New PC, wait for its yes, send folders, "
                          "applications and settings.")},
    CommandText{
        Command::Discover, "discover"_L1, "zandrove-cli discover --role old|new [--seconds N]",
        QT_TRANSLATE_NOOP("Zandrove::Cli::Options", "List the PCs on the network as they come and go.")},
    CommandText{Command::Diagnose, "diagnose"_L1,
                "zandrove-cli diagnose [--role old|new] [--seconds N] [--to ADDRESS]",
                QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                  "Find out why the other PC isn't found: look at adapters, ports, firewalls "
                                  "and VPNs, and at who is heard and answers. Changes nothing.")},
    CommandText{Command::Scan, "scan"_L1, "zandrove-cli scan",
                QT_TRANSLATE_NOOP("Zandrove::Cli::Options",
                                  "List what can be moved from this PC: applications, folders, accounts and "
                                  "settings.")},
};

constexpr int HelpWidth = 88;
constexpr int HelpIndent = 26;

QString helpLine(const QString &head, const QString &text)
{
    QString line = u"  "_s + head;
    if (line.size() > HelpIndent - 2)
        line += u'\n' + QString(HelpIndent, u' ');
    else
        line = line.leftJustified(HelpIndent);
    return line + wrapped(text, HelpIndent, HelpWidth) + u'\n';
}

QString optionLine(const OptionRule &rule)
{
    QString head = rule.name;
    if (rule.takesValue())
        head += u' ' + QLatin1StringView(rule.valueName);
    return helpLine(head, Text::tr(rule.help));
}

QString exitCodeHelp()
{
    return Text::tr(
        "Exit codes: 0 everything moved or listed; 1 the connection or the run failed or was refused; 2 "
        "wrong usage; 3 timed out; 4 finished, but something failed or was there before, or diagnose has "
        "found what stands in the way; 130 cancelled with Ctrl-C "
        "(the other PC is told; a second Ctrl-C ends at once).");
}

} // namespace

const OptionRule *findOption(const QString &name, std::optional<Command> command)
{
    const auto rule = std::find_if(Rules.begin(), Rules.end(), [&](const OptionRule &candidate) {
        return candidate.name == name && (!command || candidate.belongsTo(*command));
    });
    return rule == Rules.end() ? nullptr : &*rule;
}

std::optional<Command> commandNamed(const QString &name)
{
    for (const CommandText &text : Commands) {
        if (text.name == name)
            return text.command;
    }
    return std::nullopt;
}

QString generalHelp()
{
    const QString purpose = Text::tr(
        "zandrove-cli moves folders, applications and settings from an Old PC to a New PC on the same "
        "network.");
    QString help = wrapped(purpose, 0, HelpWidth) + u"\n\n"_s;
    for (const CommandText &text : Commands)
        help += helpLine(text.name, Text::tr(text.purpose));
    help += helpLine(u"--help"_s, Text::tr("This text; after a command, the help of that command."));
    help += helpLine(u"--version"_s, Text::tr("The version of the program."));
    return help + u'\n' + wrapped(exitCodeHelp(), 0, HelpWidth) + u'\n';
}

QString commandHelp(Command command)
{
    const CommandText &text =
        *std::find_if(Commands.begin(), Commands.end(),
                      [command](const CommandText &candidate) { return candidate.command == command; });
    QString help =
        QLatin1StringView(text.usage) + u"\n\n"_s + wrapped(Text::tr(text.purpose), 0, HelpWidth) + u"\n\n"_s;
    for (const OptionRule &rule : Rules) {
        if (rule.belongsTo(command))
            help += optionLine(rule);
    }
    return help + u'\n' + wrapped(exitCodeHelp(), 0, HelpWidth) + u'\n';
}

} // namespace Zandrove::Cli
