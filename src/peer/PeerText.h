#pragma once

#include <QJsonValue>
#include <QString>

namespace Zandrove {

/// A name, an address or a description as a peer sends it, cut to what fits a row or a question to the user.
[[nodiscard]] inline QString boundedText(const QJsonValue &value)
{
    constexpr qsizetype Longest = 255;
    QString text = value.toString();
    if (text.size() <= Longest)
        return text;
    // Not through the middle of a character.
    return text.left(text.at(Longest - 1).isHighSurrogate() ? Longest - 1 : Longest);
}

} // namespace Zandrove
