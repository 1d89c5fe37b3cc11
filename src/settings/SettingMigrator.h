#pragma once

#include "core/common/Records.h"
#include "settings/SettingPackage.h"

#include <QByteArray>
#include <QList>
#include <QObject>

#include <atomic>

namespace Zandrove {

/// Exports the chosen settings of the Old PC and says them to the peer. A setting that fails costs itself
/// alone, and the peer never hears of it.
///
/// Its slots run on the thread that it lives in, and block it while programs of the system run. It knows no
/// socket: each message leaves by `requestSendCommand`. `cancel`, `stop` and `isRunning` may be called from
/// any thread.
class SettingMigrator final : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype ChunkBytes = 524288; ///< 512 KiB of a file in one message

    explicit SettingMigrator(QObject *parent = nullptr);

    /// Whether an export is on, or settings are being received.
    [[nodiscard]] bool isRunning() const { return m_state == State::Running; }
    /// A cancel for good: this object begins no other export.
    void stop();

public Q_SLOTS:
    /// Exports and sends those that are selected and available. Ignored while another export is on. Ends by
    /// `finished`, at once and without a message where there is none, or silently when cancelled.
    void start(const QList<Zandrove::SettingInfo> &settings);
    /// Ends the export before its next setting.
    void cancel();

Q_SIGNALS:
    // In all of them name is the setting's display name.
    void settingStarted(const QString &name);
    void settingProgress(const QString &name, int percent);
    /// `error` is a translated text, empty on success.
    void settingFinished(const QString &name, bool success, const QString &error);
    void progress(int percent, const QString &currentSetting);
    /// How many settings went well and how many did not.
    void finished(int applied, int failed);
    void error(const QString &message); ///< never emitted: no failure is more than one setting's
    void requestSendCommand(int type, const QByteArray &payload);

private:
    enum class State { Idle, Running, Cancelled };

    void beginRun();
    [[nodiscard]] bool isCancelled() const;
    void exportAndSend(const SettingInfo &setting);
    void sendPackage(const SettingPackage &package);
    void sendFile(const SettingPackage &package);
    void countOutcome(const QString &name, bool success, const QString &failure);

    std::atomic<State> m_state = State::Idle;
    std::atomic<bool> m_stopped = false;
    int m_successCount = 0;
    int m_failedCount = 0;
};

} // namespace Zandrove
