#pragma once

#include "core/common/Records.h"
#include "inventory/ScanRuns.h"

#include <QList>
#include <QObject>

#include <optional>

namespace Zandrove {

struct KnownSetting;

/// Lists the system settings that can be moved: a fixed catalogue, in which only the wallpaper and the number
/// of environment variables are looked up. The wallpaper is left out where there is no picture.
///
/// Works inside start(), on the calling thread, so a cancel comes from a slot connected to `progress` or from
/// another thread. Its destructor cancels as well, with the signal. No step fails.
class SettingScanner final : public QObject
{
    Q_OBJECT

public:
    explicit SettingScanner(QObject *parent = nullptr);
    ~SettingScanner() override;

public Q_SLOTS:
    /// Does nothing while a scan is running. Emits `started`, `progress` and, unless cancelled, `finished`.
    void start();
    /// Emits `cancelled`. The scan still walks through its announcements, and adds nothing more.
    void cancel();

Q_SIGNALS:
    void started();
    void progress(int percent, const QString &currentItem);
    void finished(const QList<Zandrove::SettingInfo> &settings);
    void error(const QString &errorMessage); ///< never emitted: no step can fail
    void cancelled();

private:
    [[nodiscard]] static std::optional<SettingInfo> settingFor(const KnownSetting &entry);
    [[nodiscard]] QList<SettingInfo> scanSettings(quint64 run);

    ScanRuns m_runs;
};

} // namespace Zandrove
