#pragma once

#include "core/common/Records.h"
#include "ui/widgets/TransferFileItem.h"

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QLabel;
class QMessageBox;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace Zandrove {

class ProgressCard;
class TransferEngine;

/// The page of a running transfer, on the Old PC what goes out, on the New PC the waiting room and what comes
/// in: progress, the files at work, and the ways to pause and to cancel.
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

Q_SIGNALS:
    void transferFinished();
    /// Comes just before `transferFinished`.
    void transferFinishedWithReport(const Zandrove::MigrationReport &report);
    void navigateBack(const QString &pageName); ///< reserved; nothing emits it yet
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
    void onPauseClicked();
    void onCancelClicked();
    void onRetryClicked();

private:
    static constexpr int MAX_VISIBLE_FILES = 30;

    void setupUi();
    void setupFileList();
    [[nodiscard]] QWidget *createControls();
    void setupConnections();

    [[nodiscard]] bool isNewPC() const { return m_role == NewPC; }
    void showPaused(bool paused);
    void showFailedCount(int count);
    /// An empty card with these texts in the places of the speed and the total.
    void clearCard(const QString &speed, const QString &total);

    [[nodiscard]] bool confirmCancel();
    void onRunEnded();

    [[nodiscard]] TransferFileItem *findFileItem(const QString &fileName) const;
    TransferFileItem *addFileItem(const QString &fileName);
    TransferFileItem *findOrAddFileItem(const QString &fileName);
    void trimFileItems();
    void clearFileItems();

    QPointer<TransferEngine> m_engine;
    int m_role = OldPC;
    QLabel *m_titleLabel = nullptr;
    ProgressCard *m_progressCard = nullptr;
    QScrollArea *m_fileScroll = nullptr;
    QWidget *m_fileContainer = nullptr;
    QVBoxLayout *m_fileListLayout = nullptr;
    QPushButton *m_pauseButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QLabel *m_failedLabel = nullptr;
    QList<TransferFileItem *> m_fileItems;
    bool m_isPaused = false;
    TransferProgress m_progress;
    QPointer<QMessageBox> m_cancelQuestion; ///< while it is open
    bool m_runEnded = false;                ///< since the question was asked
};

} // namespace Zandrove
