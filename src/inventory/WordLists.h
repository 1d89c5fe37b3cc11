#pragma once

#include <QLatin1StringView>
#include <QString>

#include <algorithm>

/// A text held against a fixed list of words. Letter case counts.
namespace Zandrove {

template <typename Words>
[[nodiscard]] bool containsAny(const QString &text, const Words &words)
{
    return std::any_of(words.begin(), words.end(),
                       [&text](QLatin1StringView word) { return text.contains(word); });
}

template <typename Words>
[[nodiscard]] bool endsWithAny(const QString &text, const Words &words)
{
    return std::any_of(words.begin(), words.end(),
                       [&text](QLatin1StringView word) { return text.endsWith(word); });
}

template <typename Words>
[[nodiscard]] bool equalsAny(const QString &text, const Words &words)
{
    return std::any_of(words.begin(), words.end(), [&text](QLatin1StringView word) { return text == word; });
}

} // namespace Zandrove
