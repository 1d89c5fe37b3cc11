#pragma once

#include "core/common/License.h"
#include "core/common/Records.h"

#include <QMainWindow>

#include <array>

class QPushButton;
class QStackedWidget;

namespace Zandrove {

class CompletePage;
class ConnectionPage;
class LinkWatch;
class ProductDialogs;
class ProgressDots;
class RolePage;
class ScanningPage;
class SelectionPage;
class TitleBar;
class TransferEngine;
class TransferPage;
class WelcomePage;

/// The one window of the program: seven wizard pages between a title bar and a navigation bar, in a frame of
/// its own. It owns the engine and the pages and alone decides which page is shown: by the user's clicks, the
/// pages' wishes and what the peer does. Its only state is the index of the current page; the role is always
/// the engine's.
///
/// When the link goes on a page that needs one, both PCs look for each other again at once; the New PC goes
/// back to the page of connections by itself, the Old PC keeps its selection and comes back to it once the
/// two are joined.
///
/// Closing it in a running transfer asks first, and then cancels that; the end of the system's session, and
/// whoever wants the program to end at once, cancel it without a question. A report is left behind.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// The pages by index. The Old PC walks through all of them, the New PC skips scanning and selection.
    enum Page : int {
        PageWelcome = 0,
        PageRole = 1,
        PageConnection = 2,
        PageScanning = 3,
        PageSelection = 4,
        PageTransfer = 5,
        PageComplete = 6,
    };
    static constexpr int PageCount = 7;

    /// `license` must outlive the window. `engine` is taken over; without one the window makes its own.
    explicit MainWindow(QWidget *parent = nullptr, License &license = License::ofThisCopy(),
                        TransferEngine *engine = nullptr);
    ~MainWindow() override;

public Q_SLOTS:
    /// Ends the program politely, without a question, whatever is open.
    void endProgram();

protected:
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private Q_SLOTS:
    void onMinimize();
    void onMaximize();
    void onClose();
    void onSettings();
    void onNextClicked();
    void onBackClicked();
    void onConnected();
    void onScanCompleted(const Zandrove::ScanResult &result);
    void onTransferCompleted(const Zandrove::MigrationReport &report);
    void onSessionEnd();
    void onSessionEndReceived();
    void onNewTransferStarted();
    void onActivateClicked();

private:
    void setupUi();
    void setupWindow();
    [[nodiscard]] QWidget *createNavBar();
    void setupPages();
    void setupConnections();
    void connectTitleBar();
    void connectNavigation();
    void connectPages();
    void connectLink();

    [[nodiscard]] bool isNewPC() const;
    void updateNavigation();
    [[nodiscard]] bool canGoNext() const;
    void goToPage(int index);
    void showPage(int index);
    void moveFocusToPage();
    void enterTransferPage();
    void beginOnTransferPage();
    void beginScanning();
    void beginDiscovery();
    void leaveConnections();
    void resetToRolePage();
    void navigateBack(const QString &pageName);

    void onRequestAutoAdvance();
    void onScanFinished();
    void onTransferFinished();
    void onTransferReset();
    void onLocalCancel();
    void onPeerCancelled();
    void onBackToSelection();
    void onLinkLost();
    void onLinkRegained();
    void backToConnections();
    void returnFromCancel(bool waits);

    [[nodiscard]] bool ensureRegistered();

    License &m_license;
    TransferEngine *m_engine = nullptr;
    ProductDialogs *m_dialogs = nullptr;
    TitleBar *m_titleBar = nullptr;
    QStackedWidget *m_pageStack = nullptr;
    QWidget *m_navBar = nullptr;
    QPushButton *m_backButton = nullptr;
    QPushButton *m_nextButton = nullptr;
    ProgressDots *m_progressDots = nullptr;
    WelcomePage *m_welcomePage = nullptr;
    RolePage *m_rolePage = nullptr;
    ConnectionPage *m_connectionPage = nullptr;
    ScanningPage *m_scanningPage = nullptr;
    SelectionPage *m_selectionPage = nullptr;
    TransferPage *m_transferPage = nullptr;
    CompletePage *m_completePage = nullptr;
    LinkWatch *m_linkWatch = nullptr;
    int m_currentPage = PageWelcome;
    bool m_keepsSelection = false; ///< Old PC: a link was lost behind the scan
};

} // namespace Zandrove
