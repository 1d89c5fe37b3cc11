#pragma once

#include "core/common/Records.h"
#include "ui/Theme.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QMessageBox;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

namespace Zandrove {

class PCListItem;
class RadarWidget;
class TransferEngine;

/// The page where two PCs find each other: the PCs in reach to pick one from, this PC's own code to read out,
/// four boxes for the other's code, and the question whether another PC may connect.
///
/// Questions are asked one at a time. Those that arrive while one is shown wait, and of them only the newest
/// is shown, if whoever asked is still there.
class ConnectionPage final : public QWidget
{
    Q_OBJECT

public:
    /// `engine` outlives the events that the page handles.
    explicit ConnectionPage(TransferEngine *engine, QWidget *parent = nullptr);

public Q_SLOTS:
    /// Shows a fresh code and the PCs known by now. The first showing of the page does the same.
    void startDiscovery();

Q_SIGNALS:
    /// There is a link to another PC. Comes twice on the side that was asked.
    void connectionEstablished();
    /// New PC, half a second after the link came up: the user need not press Next.
    void requestAutoAdvance();

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void onPCDiscovered(const Zandrove::PCInfo &pc);
    void onPCLost(const QString &pcId);
    void onConnectionRequested(const QString &pcName, const QString &code);
    void onConnected();
    void onConnectionFailed(const QString &reason);
    void onRefreshClicked();
    void onConnectByCode();
    void onDirectScanStarted();
    void onDirectScanProgress(int scanned, int total);
    void onDirectScanFinished(bool found);

private:
    /// What the left card shows, by index of its stack.
    enum View : int { RadarView, ListView, DirectScanView };

    /// A PC that wants to connect, and the number by which the engine knows its question.
    struct Request
    {
        QString pcName;
        quint64 question = 0;
    };

    // ConnectionPageLayout.cpp
    void setupUi();
    [[nodiscard]] QWidget *createDeviceCard();
    [[nodiscard]] QBoxLayout *createDeviceHeading();
    [[nodiscard]] QWidget *createRadarView();
    [[nodiscard]] QWidget *createListView();
    [[nodiscard]] QWidget *createDirectScanView();
    [[nodiscard]] QWidget *createOwnCodeCard();
    [[nodiscard]] QWidget *createOtherCodeCard();
    void addCodeEdit(QBoxLayout *row);

    // ConnectionPage.cpp
    void connectEngine();
    void showIdle();
    void showListing();
    void showStatus(const QString &text, Theme::Status status);
    void showDeviceCount();
    void showOwnCode(const QString &code);
    void clearItems();
    [[nodiscard]] PCListItem *itemFor(const PCInfo &pc) const;
    void addItem(const PCInfo &pc);
    void onPCItemClicked(PCListItem *clicked);
    void onCodeEdited(int index, const QString &text);
    [[nodiscard]] QString enteredCode() const;
    void askNext();
    [[nodiscard]] bool isOpen(const Request &request) const;
    void ask(const Request &request);
    void onAnswered(const Request &request, bool yes);
    void accept(const Request &request);
    [[nodiscard]] QString shownName(const QString &pcName) const;

    TransferEngine *m_engine;
    bool m_discoveryStarted = false;
    QLabel *m_devicesTitle = nullptr;
    QLabel *m_statusLabel = nullptr;
    QPushButton *m_refreshButton = nullptr;
    QStackedWidget *m_contentStack = nullptr;
    RadarWidget *m_radar = nullptr;
    QLabel *m_radarCaption = nullptr;
    QVBoxLayout *m_listLayout = nullptr;
    QList<PCListItem *> m_items;
    QString m_selectedPcId;
    QList<QLabel *> m_codeLabels;
    QList<QLineEdit *> m_codeEdits;
    QPushButton *m_connectButton = nullptr;
    QLabel *m_directTitle = nullptr;
    QProgressBar *m_directProgress = nullptr;
    QLabel *m_directCount = nullptr;
    QList<Request> m_requests; ///< to be shown once no other one is
    QPointer<QMessageBox> m_questionBox;
};

} // namespace Zandrove
