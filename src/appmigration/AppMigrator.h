#pragma once

#include "appmigration/AppPackage.h"
#include "core/common/Records.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>

namespace Zandrove {

/// Moves applications: on the Old PC it finds what belongs to each and asks for it to be sent, on the New PC
/// it takes the messages about an application and installs it.
///
/// It never touches the link. What it wants sent it says in `requestSendCommand` and `requestSendFile`, in
/// the order in which it must leave. `start` blocks its thread for the whole run; pause, resume and cancel
/// are called on other threads meanwhile.
class AppMigrator final : public QObject
{
    Q_OBJECT

public:
    explicit AppMigrator(QObject *parent = nullptr);

    /// Analyses and sends those of `apps` that are selected and can be moved; the others are counted as
    /// skipped. Does nothing while a run is under way. Ends with `finished`, or in silence when cancelled.
    void start(const QList<AppInfo> &apps);

    /// From here on applications are received. Does nothing while a run is under way.
    void startReceiving();

    /// The message that begins an application. One that can't be read, or has a name that leads out of the
    /// folder, is ignored.
    void onAppPackageReceived(const QByteArray &data);

    /// The message that ends `appName`. Installs it, which blocks; `appFinished` tells the outcome. Ignored
    /// for any but the application received last.
    void onAppEndReceived(const QString &appName);

    /// Any thread. A pause lasts from the end of one application to the beginning of the next.
    void pause() { m_paused = true; }
    void resume() { m_paused = false; }
    /// Any thread. Ends the run without a signal, as soon as the work at hand notices.
    void cancel();
    /// Any thread. A cancel for good: this object begins no other run.
    void stop();

Q_SIGNALS:
    void analyzeProgress(int current, int total, const QString &appName);
    void progress(int percent, const QString &status);
    void appStarted(const QString &appName);
    void appProgress(const QString &appName, int percent, const QString &status);
    void appFinished(const QString &appName, bool success, const QString &errorMsg);
    void finished(int success, int failed, int skipped); ///< numbers of applications
    void error(const QString &message); ///< never emitted: no failure is more than one application's

    void requestSendCommand(int type, const QByteArray &payload); ///< type: a Protocol::MessageType
    void requestSendFile(const QString &filePath, const QString &relativePath);

private:
    void analyzeAll();
    void sendAll();
    void waitWhilePaused() const;
    [[nodiscard]] bool sendApp(const AppPackage &package);
    void sendRegistry(const AppPackage &package, const QString &base);
    [[nodiscard]] bool sendFolders(const AppPackage &package, const QString &base);
    [[nodiscard]] bool sendDirectory(const QString &folder, const QString &relativeBase);
    void sendShortcuts(const AppPackage &package, const QString &base);
    void queueFile(const QString &filePath, const QString &relativePath);
    void logQueued(const QString &name) const;
    [[nodiscard]] bool installApp(AppPackage &package);
    void clearCounts();

    int m_filesQueued = 0;      ///< files of the current application that the link is to send
    int m_filesSkipped = 0;     ///< files of it that stay behind
    QStringList m_skippedPaths; ///< those of them that can't be read
    QList<AppInfo> m_apps;
    QList<AppPackage> m_packages;
    AppPackage m_currentApp; ///< New PC: the application that is being received
    QString m_receivePath;   ///< New PC
    std::atomic<bool> m_running = false;
    std::atomic<bool> m_paused = false;
    std::atomic<bool> m_cancelled = false;
    std::atomic<bool> m_stopped = false;
    int m_successCount = 0;
    int m_failedCount = 0;
    int m_skippedCount = 0;
};

} // namespace Zandrove
