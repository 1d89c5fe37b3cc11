#pragma once

#include <QObject>
#include <QSettings>
#include <QString>

namespace Zandrove {

/// The application-wide configuration: one object for the whole process that knows the program's name and
/// version and owns a settings store of its own. That store and the user's settings (`userOrganisation`)
/// differ in their organisation on purpose, so that they never mix.
///
/// Main thread only. Constructing it writes nothing.
class AppConfig final : public QObject
{
    Q_OBJECT

public:
    /// The one object, made on first use and destroyed at process exit.
    [[nodiscard]] static AppConfig &instance();

    [[nodiscard]] static QString appName();
    [[nodiscard]] static QString appVersion();
    /// Organisation under which what the user chooses is kept, together with `appName`.
    [[nodiscard]] static QString userOrganisation();

Q_SIGNALS:
    /// Reserved for a changed setting; nothing emits it yet.
    void configChanged();

private:
    AppConfig();
    ~AppConfig() override = default;
    Q_DISABLE_COPY_MOVE(AppConfig)

    QSettings m_settings;
};

} // namespace Zandrove
