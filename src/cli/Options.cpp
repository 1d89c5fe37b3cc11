#include "cli/Options.h"

#include "cli/OptionRules.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

namespace {

/// One word of the command line: an option with or without its value, or a word by itself.
struct Token
{
    QString name; ///< empty for a word by itself
    std::optional<QString> value;
    bool joined = false; ///< written as --name=value
};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Cli::Options)
};

QList<Token> tokens(const QStringList &arguments)
{
    QList<Token> result;
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString &argument = arguments.at(index);
        if (!argument.startsWith(u'-')) {
            result.append({.name = {}, .value = argument});
            continue;
        }
        const qsizetype equals = argument.indexOf(u'=');
        Token token{
            .name = equals < 0 ? argument : argument.left(equals), .value = {}, .joined = equals >= 0};
        const OptionRule *rule = findOption(token.name, std::nullopt);
        if (token.joined)
            token.value = argument.mid(equals + 1);
        else if (rule && rule->takesValue() && index + 1 < arguments.size())
            token.value = arguments.at(++index);
        result.append(token);
    }
    return result;
}

bool contains(const QList<Token> &tokenList, std::initializer_list<QLatin1StringView> names)
{
    return std::any_of(tokenList.begin(), tokenList.end(), [&](const Token &token) {
        return std::find(names.begin(), names.end(), token.name) != names.end();
    });
}

QString apply(const Token &token, Options &options)
{
    const OptionRule *rule = findOption(token.name, options.command);
    if (!rule)
        return Text::tr("Unknown option %1. See --help.").arg(token.name);
    if (!rule->takesValue() && token.joined)
        return Text::tr("%1 takes no value.").arg(token.name);
    if (rule->takesValue() && !token.value)
        return Text::tr("%1 needs a value.").arg(token.name);
    return rule->apply(options, token.value.value_or(QString()));
}

QString whatIsMissing(const Options &options)
{
    if (options.command == Command::Send && options.target.isEmpty())
        return Text::tr("send needs --to with the New PC's code, name or address.");
    const bool sendsNothing = options.folders.isEmpty() && options.apps.isEmpty() && !options.allApps &&
                              options.settings.isEmpty() && !options.allSettings;
    if (options.command == Command::Send && sendsNothing)
        return Text::tr("send needs something to move: a --folder, an --app or a --setting.");
    if (options.command == Command::Discover && options.role < 0)
        return Text::tr("discover needs --role old or --role new.");
    return {};
}

ParsedArguments failure(const QString &error)
{
    return {.options = std::nullopt, .text = {}, .error = error};
}

ParsedArguments answer(const QString &text)
{
    return {.options = std::nullopt, .text = text, .error = {}};
}

ParsedArguments parseCommand(Command command, const QList<Token> &tokenList)
{
    Options options;
    options.command = command;
    if (command != Command::Discover && command != Command::Diagnose) // which are told their role
        options.role = command == Command::Receive ? NewPC : OldPC;

    bool commandSeen = false;
    for (const Token &token : tokenList) {
        if (token.name.isEmpty()) {
            if (commandSeen)
                return failure(Text::tr("Unexpected argument %1. See --help.").arg(*token.value));
            commandSeen = true;
            continue;
        }
        const QString problem = apply(token, options);
        if (!problem.isEmpty())
            return failure(problem);
    }
    const QString missing = whatIsMissing(options);
    if (!missing.isEmpty())
        return failure(missing);
    return {.options = options, .text = {}, .error = {}};
}

} // namespace

ParsedArguments parseArguments(const QStringList &arguments)
{
    const QList<Token> tokenList = tokens(arguments);
    if (contains(tokenList, {"--version"_L1}))
        return answer(u"zandrove-cli %1\n"_s.arg(QLatin1StringView(ZANDROVE_VERSION)));

    const bool wantsHelp = contains(tokenList, {"--help"_L1, "-h"_L1});
    const auto word = std::find_if(tokenList.begin(), tokenList.end(),
                                   [](const Token &token) { return token.name.isEmpty(); });
    if (word == tokenList.end())
        return wantsHelp ? answer(generalHelp())
                         : failure(Text::tr("Say receive, send, discover, diagnose or scan. See --help."));

    const std::optional<Command> command = commandNamed(*word->value);
    if (!command)
        return failure(Text::tr("Unknown command %1. See --help.").arg(*word->value));
    return wantsHelp ? answer(commandHelp(*command)) : parseCommand(*command, tokenList);
}

} // namespace Zandrove::Cli
