#pragma once

#include <QString>

/// What happens before the event loop of a program begins, each step a function. A program with a window
/// takes them in the order in which they stand here; a headless one chooses its language first, so that it
/// can say what is wrong with its arguments. They run on the main thread, after the application object is
/// made. No failure stops a program: it goes on with that much less.
namespace Zandrove::StartUp {

/// Names the application, its version and its organisation.
void setIdentity();

/// Adds the two inbound firewall rules of the program, unless its TCP rule stands already. Without the rights
/// to do so, or without a firewall program, nothing happens. Blocks while the firewall program runs.
void ensureFirewallRules();

/// Registers the shared records and their lists by their full names, so that they
/// cross threads by queued signals.
void registerMetaTypes();

/// The language to show: `storedLanguage` as it stands unless it is empty, else the one that fits
/// `localeName` ("pt_BR" gives "pt", every Chinese locale "zh_TW"), else "en".
[[nodiscard]] QString chooseLanguage(const QString &storedLanguage, const QString &localeName);

/// Where the translation into `language` is looked for, with the program in `applicationDir`.
[[nodiscard]] QString translationPath(const QString &applicationDir, const QString &language);

/// Loads the translation into `language` and installs it for the rest of the process. False means that the
/// English texts of the program stay.
bool installTranslation(const QString &applicationDir, const QString &language);

/// Chooses the language by the user's settings and the system, installs its translation, and returns it: also
/// when there is no translation into it.
QString initTranslation();

/// The style sheet of the window, out of the resource at `path`; empty when it cannot be read.
[[nodiscard]] QString styleSheet(const QString &path = QStringLiteral(":/styles/style.qss"));

} // namespace Zandrove::StartUp
