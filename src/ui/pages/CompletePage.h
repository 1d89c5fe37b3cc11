#pragma once

#include "core/common/Records.h"
#include "core/common/RunSummary.h"

#include <QList>
#include <QString>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace Zandrove {

class MissingItems;
class StatCard;
class TransferEngine;

/// The page of what a transfer achieved, and of what it did not, also of one that the link has ended. On the
/// Old PC the user ends the session or sends more from here; the New PC is told where its files are, and
/// waits for the Old PC.
class CompletePage final : public QWidget
{
    Q_OBJECT

public:
    explicit CompletePage(TransferEngine *engine, QWidget *parent = nullptr);

    /// Shows `report` in the view of the engine's role, for as long as there is no summary of the run.
    void setReport(const Zandrove::MigrationReport &report);
    /// Shows what became of a run that is over.
    void setSummary(const Zandrove::RunSummary &summary);

Q_SIGNALS:
    void backToSelectionRequested();
    void backToHomeRequested(); ///< reserved; nothing emits it yet
    void sessionEndRequested();

private Q_SLOTS:
    void onOpenFolder(const QString &path);

private:
    /// A folder of the New PC that files arrived in.
    struct SavedFolderEntry
    {
        QString name;
        QString path;
        QString sample; ///< the names of the first files, may be empty
        int fileCount = 0;
    };

    void setupUi();
    [[nodiscard]] QWidget *createContent();
    [[nodiscard]] QBoxLayout *createCounters();
    void showHeadline();
    void showCounts();
    void onSettingsFinished(int succeeded);
    void setupSavedFolders();
    void setupWaiting();
    [[nodiscard]] QBoxLayout *createButtons();

    [[nodiscard]] QList<SavedFolderEntry> savedFolders() const;
    void rebuildFolderRows();
    [[nodiscard]] QWidget *createFolderRow(const SavedFolderEntry &entry);
    [[nodiscard]] QPushButton *createOpenButton(const SavedFolderEntry &entry);

    TransferEngine *m_engine;
    RunSummary m_summary;
    QLabel *m_circle = nullptr;
    QLabel *m_headline = nullptr;
    QLabel *m_subtitle = nullptr;
    QLabel *m_counts = nullptr; ///< of what did not simply arrive
    MissingItems *m_missing = nullptr;
    StatCard *m_filesCard = nullptr;
    StatCard *m_appsCard = nullptr;
    StatCard *m_settingsCard = nullptr;
    QWidget *m_filesSavedWidget = nullptr;
    QVBoxLayout *m_folderListLayout = nullptr;
    QList<SavedFolderEntry> m_savedFolders;
    QPushButton *m_sendMoreButton = nullptr;
    QWidget *m_waitingWidget = nullptr;
    QLabel *m_waitingLabel = nullptr;
    QPushButton *m_finishButton = nullptr;
};

} // namespace Zandrove
