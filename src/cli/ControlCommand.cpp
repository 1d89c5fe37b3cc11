#include "cli/ControlCommand.h"

#include <QLatin1StringView>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

std::optional<ControlCommand> parseControlCommand(const QString &line)
{
    static constexpr std::array Words = {
        std::pair{"yes"_L1, ControlCommand::Yes},       std::pair{"no"_L1, ControlCommand::No},
        std::pair{"pause"_L1, ControlCommand::Pause},   std::pair{"resume"_L1, ControlCommand::Resume},
        std::pair{"cancel"_L1, ControlCommand::Cancel}, std::pair{"again"_L1, ControlCommand::Again},
        std::pair{"end"_L1, ControlCommand::End},
    };
    const QString text = line.trimmed();
    const QString word = text.section(u' ', 0, 0);
    const QString rest = text.mid(word.size()).trimmed();
    for (const auto &[name, kind] : Words) {
        if (word != name)
            continue;
        if (rest.isEmpty() || kind == ControlCommand::Again)
            return ControlCommand{kind, rest};
        const quint64 question = rest.toULongLong();
        const bool isAnswer = kind == ControlCommand::Yes || kind == ControlCommand::No;
        return isAnswer && question > 0 ? std::optional(ControlCommand{kind, {}, question}) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace Zandrove::Cli
