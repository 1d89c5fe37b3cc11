#pragma once

#include "pipeline/MigrationRun.h"
#include "pipeline/SendPhases.h"

#include <QElapsedTimer>
#include <QHash>
#include <QMap>
#include <QStringList>
#include <QTimer>

namespace Zandrove {

class FileSenderWorker;

/// What the Old PC is to send.
struct SendSelection
{
    QList<AppInfo> apps; ///< of these only those that are selected and can be moved
    QList<FolderInfo> folders;
    QList<SettingInfo> settings; ///< of these only those that are selected and available
    int conflictPolicy = 0;      ///< carried only
};

/// A run of the Old PC. Three things begin together: the folders' files are sent, the applications are
/// packed, the settings are exported. The files of applications follow those of the folders, and only behind
/// them the New PC is told that an application is complete, which makes it install it. The run is complete
/// with the slowest of the three, and with the answers to all that was asked.
///
/// It belongs to the link that is accepted when it is made, and goes on over no later one.
class SendingRun final : public MigrationRun
{
    Q_OBJECT

public:
    SendingRun(RunLink link, SendSelection selection, QObject *parent);
    ~SendingRun() override;

    void begin() override;
    void end(RunEnd how) override;
    [[nodiscard]] bool belongsTo(quint64 link) const override { return link != 0 && link == m_linkNumber; }
    [[nodiscard]] bool hasAllLeft() const override { return m_confirmTimer.isActive(); }

protected:
    void pauseWorkers(bool paused) override;
    void stopWorkers() override;
    void noteSettled(const ItemResult &item) override;
    void onRequestSendCommand(int type, const QByteArray &payload) override;
    void onFilesThrough(int success, int failed, int skipped, qlonglong bytes) override;
    void onSettingsThrough(int succeeded, int failed) override;
    void onAnswer(const TransferMessages::Ack &answer) override;

private:
    void wireLedger();
    void sendList(QList<FileTransferTask> tasks);
    void queueAppFile(const QString &filePath, const QString &relativePath);
    void onAppsPacked(int success, int failed, int skipped);
    void act(const SendPhases::Actions &actions);
    void sendHeldAppEnds();
    void leave();
    void finishWhenConfirmed();
    void settleItems();
    [[nodiscard]] RunLedger::Time now() const { return RunLedger::Time(m_clock.elapsed()); }

    quint64 m_linkNumber;
    SendSelection m_selection;
    SendPhases m_phases;
    FileSenderWorker *m_sender;
    int m_nextTaskId = 0;
    QList<FileTransferTask> m_appTasks;  // files of applications, to follow those of the folders
    QStringList m_heldAppEnds;           // names of applications, held back until their files are through
    QList<RunMessage> m_early;           // what is to follow the announcement of the run
    MigrationReport m_through;           // the file counts of the lists that are through
    QHash<QString, QString> m_appOfFile; // by the source path of a file, the application that it belongs to
    QMap<QString, int> m_missingOfApp;   // files of it that did not arrive
    QList<ItemResult> m_sentItems;       // applications and settings that are packed, until the run is over
    QElapsedTimer m_clock;
    QTimer m_confirmTimer; // runs from the last message of the run to its end
};

} // namespace Zandrove
