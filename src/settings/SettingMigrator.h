#pragma once

#include "core/common/Records.h"
#include "settings/SettingApply.h"
#include "settings/SettingPackage.h"

#include <QByteArray>
#include <QList>
#include <QObject>

#include <atomic>

namespace Zandrove {

/// Moves settings. On the Old PC it exports the chosen ones and says them to the peer; on the New PC it puts
/// each together from the messages and applies it. A setting that fails costs itself alone; the peer never
/// hears of one that could not be exported.
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

    /// How many bytes of contents one setting may bring along; one that brings more fails. 512 MiB at first.
    void setContentLimit(qint64 bytes) { m_contentLimit = bytes; }

    /// Whether an export is on, or settings are being received.
    [[nodiscard]] bool isRunning() const { return m_state == State::Running; }
    /// A cancel for good: this object begins no other export, and applies no other setting. Those that come
    /// to their end all the same have failed, with this as the reason; the one at hand is finished first,
    /// unless the thread is asked for an interruption.
    void stop();

public Q_SLOTS:
    /// Exports and sends those that are selected and available. Ignored while another export is on. Ends by
    /// `finished`, at once and without a message where there is none, or silently when cancelled.
    void start(const QList<Zandrove::SettingInfo> &settings);
    /// Ends the export before its next setting. What is received is applied all the same, until a stop.
    void cancel();

    /// Begins to receive: the counts of `finished` from zero. Those of `progress` go on.
    void startReceiving();
    /// A setting begins; one that was still being received is dropped.
    void onSettingStart(const QByteArray &payload);
    /// A piece of the current setting; those of another are dropped.
    void onSettingData(const QByteArray &payload);
    /// The current setting is complete and gets applied.
    void onSettingEnd(const QByteArray &payload);
    /// The peer has no more settings: ends the run by `finished`.
    void onSettingComplete(const QByteArray &payload);
    /// No more messages come, for this translated reason: the setting that was
    /// still being received has failed.
    void giveUpReceiving(const QString &reason);

Q_SIGNALS:
    // In all of them name is the setting's display name.
    void settingStarted(const QString &name);
    /// On the New PC only: how much of the setting's file has arrived.
    void settingProgress(const QString &name, int percent);
    /// `error` is a translated text, empty on success.
    void settingFinished(const QString &name, bool success, const QString &error);
    /// On the New PC ten points for each setting, however many there are: more than 100 from the eleventh on.
    void progress(int percent, const QString &currentSetting);
    /// How many settings went well and how many did not.
    void finished(int applied, int failed);
    void error(const QString &message); ///< never emitted: no failure is more than one setting's
    void requestSendCommand(int type, const QByteArray &payload);

private:
    enum class State { Idle, Running, Cancelled };

    void beginRun();
    bool endRun();
    [[nodiscard]] bool isCancelled() const;
    void exportAndSend(const SettingInfo &setting);
    void sendPackage(const SettingPackage &package);
    void sendFile(const SettingPackage &package);
    void addContent(const SettingMessages::Data &data);
    [[nodiscard]] ApplyResult applyUnlessStopped(const SettingPackage &package, bool isDamaged) const;
    void countOutcome(const QString &name, bool success, const QString &failure);

    std::atomic<State> m_state = State::Idle;
    std::atomic<bool> m_stopped = false;
    int m_successCount = 0;
    int m_failedCount = 0;

    qint64 m_contentLimit = 512 * 1024 * 1024; // bytes
    SettingPackage m_currentPackage;
    bool m_currentIsDamaged = false; // something of it had to be dropped
    int m_processedCount = 0;        // of all runs
};

} // namespace Zandrove
