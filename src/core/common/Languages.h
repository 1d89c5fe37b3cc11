#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <span>

namespace Zandrove {

/// A language that the program and its pages on the web are in.
struct Language
{
    QLatin1StringView code; ///< of a translation and of a link, such as "zh_TW"
    QStringView ownName;    ///< with its flag, never translated: each reader finds the own language by it
};

/// The key of the user's settings under which the code of the chosen language is kept.
inline constexpr QLatin1StringView LanguageKey("language");

/// All of them, in the order in which they are offered.
[[nodiscard]] std::span<const Language> languages();

/// The one for the two small letters that a system calls a language by; null where there is none. Readers of
/// any Chinese get the traditional one.
[[nodiscard]] const Language *languageForLetters(QStringView twoLetters);

} // namespace Zandrove
