#pragma once

#include "pipeline/MigrationRun.h"
#include "pipeline/ReceivedFile.h"

#include <QTimer>

#include <functional>

namespace Zandrove {

class FileReceiverWorker;
class ReceivedApps;

/// Where a New PC puts what arrives.
struct Destination
{
    QString root; ///< for files that no standard folder is named for
    int conflictPolicy = int(ConflictPolicy::Skip);
};

/// A run of the New PC: files are written as they come, an application is installed once it is whole, a
/// setting is applied once it is. The peer's last message leads to the report, when all that has arrived is
/// worked off and every application is installed; settings may still be being applied then.
class ReceivingRun final : public MigrationRun
{
    Q_OBJECT

public:
    ReceivingRun(RunLink link, const Destination &destination, QObject *parent);
    ~ReceivingRun() override;

    void begin() override;
    void end(RunEnd how) override;
    [[nodiscard]] bool hasBegun() const override { return m_begun; }
    [[nodiscard]] bool isLinkLost() const override { return m_linkLost; }
    void handle(Protocol::MessageType type, const QByteArray &payload) override;
    /// Before anything of it has come, whoever is accepted; then that peer's link alone. Behind a lost one,
    /// what comes by the next waits for the end of the run.
    [[nodiscard]] bool belongsTo(quint64 link) const override
    {
        return link != 0 && (!m_begun || m_linkLost || link == m_linkNumber);
    }
    [[nodiscard]] RunState state() const override;
    [[nodiscard]] bool mayReadLink() const override;

    /// Settings have arrived of which it isn't known yet what became of them.
    [[nodiscard]] bool isApplyingSettings() const;
    /// The next run waits for the settings: for a minute at most from now on.
    void boundSettings();

protected:
    void pauseWorkers(bool paused) override;
    void stopWorkers() override;
    [[nodiscard]] bool owesSettings() const override;
    [[nodiscard]] MigrationReport buildReport() const override;
    void onFilesThrough(int success, int failed, int skipped, qlonglong bytes) override;
    void onSettingsThrough(int succeeded, int failed) override;
    void onTransferStart(const QByteArray &payload) override;
    void onFileHeader(const QByteArray &payload) override;
    void onFileData(const QByteArray &payload) override;
    void onFileEnd(const QByteArray &payload) override;
    void onAnswerRequest(const TransferMessages::Ack &request) override;
    void onTransferComplete() override;
    void onAppStart(const QByteArray &payload) override;
    void onAppEnd(const QByteArray &payload) override;
    void onSetting(Protocol::MessageType type, const QByteArray &payload) override;

private:
    /// Where the settings of the run are.
    enum class Settings {
        None,     ///< none has come
        Arriving, ///< the peer may send more
        AllHere,  ///< the peer has no more; they are being applied
        Unclosed, ///< the run is complete and the peer forgot to say that they are
        Through,  ///< all are applied, or have failed
    };

    void wireApps();
    void onReceived(const ReceivedFile &file);
    void beginReceivingSettings();
    void tellReceiver(std::function<void(FileReceiverWorker &)> what);
    void behindReceiver(std::function<void()> action);
    void processAppEnd(const QString &appName);
    void onAppsThrough();
    void onSettingsOver();

    FileReceiverWorker *m_receiver;
    ReceivedApps *m_apps; // child
    Settings m_settings = Settings::None;
    QPair<QString, int> m_installing; // the application that is being installed, and its percent
    bool m_begun = false;             // something of it has come
    quint64 m_linkNumber = 0;         // the link that it came by
    bool m_workingOff = false;        // all has arrived, the report is due
    bool m_linkLost = false;          // nobody hears of it any more; what has arrived is worked off
    QTimer m_settingsBound;
};

} // namespace Zandrove
