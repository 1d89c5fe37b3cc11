#pragma once

#include "core/common/Records.h"
#include "core/common/RunSummary.h"

#include <QObject>

namespace Zandrove {

/// What a run says while it is on, whichever side it is of. `MigrationManager` says the same of whichever run
/// it has.
class RunEvents : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Says from now on whatever `source` says.
    void repeat(const RunEvents *source);

Q_SIGNALS:
    void paused();
    void resumed();
    void pausedByPeer();
    void resumedByPeer();
    void progressChanged(const Zandrove::TransferProgress &progress);
    void failed(const QString &reason); ///< no worker causes it
    /// An item of the run has its outcome.
    void itemSettled(const Zandrove::ItemResult &item);
    /// New PC: the peer has announced more bytes than its destination has room for. The run goes on.
    void spaceShort(qlonglong needed, qlonglong available, const QString &volume);
    /// The New PC installs this application; `percent` is 0 on the Old PC, which doesn't know how far it is.
    void installing(const QString &appName, int percent);
    void fileTransferStarted(const QString &fileName);
    void fileTransferProgress(const QString &fileName, int percent);
    void fileTransferCompleted(const QString &fileName);
    void fileTransferFailed(const QString &fileName, const QString &reason);
    void appInstallProgress(const QString &appName, int percent, const QString &status);
    void appInstallFinished(const QString &appName, bool success, const QString &error);
    /// What became of one application: on the Old PC whether it was packed, on the New
    /// PC whether it is installed.
    void appOutcome(const QString &appName, bool success, const QString &error);
    /// What became of one setting: on the Old PC whether it was exported, on the New
    /// PC whether it is applied.
    void settingOutcome(const QString &name, bool success, const QString &error);
    /// All settings of the run are through.
    void settingsFinished(int succeeded, int failed);
};

} // namespace Zandrove
