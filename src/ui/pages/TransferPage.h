#pragma once

#include "core/common/Records.h"
#include "core/common/RunSummary.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

class QLabel;
class QMessageBox;
class QPushButton;

namespace Zandrove {

class NoticeBar;
class ProgressCard;
class TransferEngine;
class TransferFileList;

/// The page of a running transfer, on the Old PC what goes out, on the New PC the waiting room and what comes
/// in: progress, the files at work, and the ways to pause and to cancel. What became of a file it says only
/// once that is known, and 100 % only of a run that is complete.
///
/// What the engine tells arrives here by queued calls.
class TransferPage final : public QWidget
{
    Q_OBJECT

public:
    explicit TransferPage(TransferEngine *engine, QWidget *parent = nullptr);

    /// Shows the view of a `Role`.
    void setRole(int role);
    /// Shows one pending row for each of the first 30 paths, by the last two components.
    void setFiles(const QStringList &files);
    /// Clears the page and starts the engine's transfer.
    void startTransfer();
    /// Shows the waiting view. The engine is started by the caller.
    void startReceiving();
    /// Shows the waiting view of the next transfer; leaves the engine alone.
    void resetForNewTransfer();
    /// Something has been sent or received, and the end of it has not been told.
    [[nodiscard]] bool isRunning() const { return m_running; }
    /// For a window that is to be closed: asks the user whether a running transfer may end, and ends it then
    /// as a cancel. False when the window is to stay.
    [[nodiscard]] bool letGo();
    /// For a program that is to end: ends a running transfer as a cancel of the user's, without a question,
    /// and leaves its report in the user's documents.
    void cancelRun();

Q_SIGNALS:
    void transferFinished();
    /// Comes just before `transferFinished`.
    void transferFinishedWithReport(const Zandrove::MigrationReport &report);
    /// The user wants to go on from a run that the other PC has ended: "SelectionPage".
    void navigateBack(const QString &pageName);
    /// The transfer was cancelled: here, or on the Old PC also by the peer.
    void transferCancelled();
    void navigateToPage(int pageIndex); ///< reserved; nothing emits it yet

private Q_SLOTS:
    void onProgressChanged(const Zandrove::TransferProgress &progress);
    void onTransferCompleted(const Zandrove::MigrationReport &report);
    void onTransferFailed(const QString &reason);
    void onPausedByPeer();
    void onResumedByPeer();
    void onPeerCancelled();
    void onFileStarted(const QString &fileName);
    void onFileProgress(const QString &fileName, int percent);
    void onFileCompleted(const QString &fileName);
    void onFileFailed(const QString &fileName, const QString &reason);
    void onItemSettled(const Zandrove::ItemResult &item);
    void onRunEnded(const Zandrove::RunSummary &summary);
    void onSpaceShort(qint64 needed, qint64 available, const QString &volume);
    void onInstalling(const QString &name, int percent);
    void onPauseClicked();
    void onCancelClicked();
    void onRetryClicked();

private:
    void setupUi();
    [[nodiscard]] QWidget *createControls();
    void setupConnections();

    [[nodiscard]] bool isNewPC() const { return m_role == NewPC; }
    void showPaused(bool paused);
    void showFailedCount(const RunSummary &summary);
    void showControls(bool shown);
    /// Whatever a former run has left on the page goes.
    void begin();
    /// Says something of a run that is over, until the next one begins.
    void tellOfPast(const QString &text);
    /// An empty card with these texts in the places of the speed and the total.
    void clearCard(const QString &speed, const QString &total);

    [[nodiscard]] bool confirm(QMessageBox &question);
    void closeQuestion();

    QPointer<TransferEngine> m_engine;
    int m_role = OldPC;
    QLabel *m_titleLabel = nullptr;
    ProgressCard *m_progressCard = nullptr;
    NoticeBar *m_notice = nullptr;
    TransferFileList *m_files = nullptr;
    QPushButton *m_pauseButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QLabel *m_failedLabel = nullptr;
    QPushButton *m_retryLink = nullptr;
    bool m_isPaused = false;
    bool m_running = false;
    bool m_tellsOfPast = false;
    bool m_isComplete = false; ///< the run that the page shows
    int m_failedShown = -1;
    TransferProgress m_progress;
    QPointer<QMessageBox> m_question; ///< while it is open
    bool m_runEnded = false;          ///< since the question was asked
};

} // namespace Zandrove
