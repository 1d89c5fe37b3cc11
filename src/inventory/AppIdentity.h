#pragma once

#include <QString>
#include <QStringList>

/// What makes two names one application, and what is no application at all. Plain text rules, any thread.
namespace Zandrove {

/// The form in which names are compared: without letter case, notes on architecture and language, version
/// numbers, and everything but Latin letters and digits. A name without any of
/// those keeps its other characters.
[[nodiscard]] QString normalizeAppName(const QString &name);

/// A name with what the rules compare of it, so that many names can be compared with many.
struct AppIdentity
{
    QString lowerName;
    QString form;            ///< the normalized name
    QStringList words;       ///< of `form`; one word for a name with Latin letters
    bool uninstalls = false; ///< the name of a program that removes another one
};

[[nodiscard]] AppIdentity identityOf(const QString &name);

/// Whether two names mean the same application, in another version, architecture or language.
[[nodiscard]] bool isSameApp(const AppIdentity &a, const AppIdentity &b);
[[nodiscard]] bool isSameApp(const QString &a, const QString &b);

/// Whether an entry is part of the system, an update, a runtime or a driver, or has no name worth the word.
/// `location` is the folder as the registry writes it, with backslashes; it and `publisher` may be empty.
[[nodiscard]] bool isSystemApp(const QString &name, const QString &location, const QString &publisher);

/// `lowerName` without everything but Latin letters and digits. Takes a lower-case text.
[[nodiscard]] QString lettersAndDigits(const QString &lowerName);

} // namespace Zandrove
