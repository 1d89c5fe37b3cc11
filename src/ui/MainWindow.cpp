#include "ui/MainWindow.h"

#include "core/engine/TransferEngine.h"
#include "ui/LinkWatch.h"
#include "ui/Log.h"
#include "ui/ProductDialogs.h"
#include "ui/Theme.h"
#include "ui/TitleBar.h"
#include "ui/pages/CompletePage.h"
#include "ui/pages/ConnectionPage.h"
#include "ui/pages/RolePage.h"
#include "ui/pages/ScanningPage.h"
#include "ui/pages/SelectionPage.h"
#include "ui/pages/TransferPage.h"
#include "ui/pages/WelcomePage.h"
#include "ui/widgets/ProgressDots.h"

#include <QPushButton>
#include <QStackedWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

LinkWatch::Place placeOf(int page)
{
    if (page == MainWindow::PageConnection)
        return LinkWatch::Place::Connections;
    return page < MainWindow::PageConnection ? LinkWatch::Place::Elsewhere : LinkWatch::Place::Work;
}

} // namespace

MainWindow::MainWindow(QWidget *parent, License &license, TransferEngine *engine)
    : QMainWindow(parent)
    , m_license(license)
    , m_engine(engine ? engine : new TransferEngine(this))
    , m_dialogs(new ProductDialogs(this, license))
{
    m_engine->setParent(this);
    setupUi();
    setupPages();
    setupConnections();
    m_titleBar->refreshActivateButton();
    goToPage(PageWelcome);
}

MainWindow::~MainWindow()
{
    // It speaks once more while it ends; nobody here is to answer by then.
    m_engine->disconnect();
    delete m_engine;
}

bool MainWindow::isNewPC() const
{
    return m_engine->role() == NewPC;
}

void MainWindow::updateNavigation()
{
    m_progressDots->setCurrent(m_currentPage);
    m_progressDots->setCompleted(m_currentPage - 1);

    bool canGoBack =
        m_currentPage == PageRole || m_currentPage == PageConnection || m_currentPage == PageSelection;
    if (isNewPC() && m_currentPage == PageTransfer)
        canGoBack = false;
    m_backButton->setEnabled(canGoBack);
    m_nextButton->setEnabled(canGoNext());

    const bool last = m_currentPage == PageComplete;
    m_nextButton->setText(last ? tr("Finish") : tr("Next →"));
    m_nextButton->setAccessibleName(last ? tr("Finish") : tr("Next"));
    Theme::ButtonLook look = Theme::primaryButton();
    if (last) {
        look.background = Theme::Colour::Success;
        look.hover = Theme::Colour::SuccessHover;
    }
    m_nextButton->setStyleSheet(Theme::buttonStyle(look));

    m_navBar->setVisible(m_currentPage != PageScanning && m_currentPage != PageTransfer && !last);
}

bool MainWindow::canGoNext() const
{
    switch (m_currentPage) {
    case PageRole:
        return m_rolePage->hasSelection();
    case PageConnection:
        return m_engine->isConnected();
    case PageScanning:
    case PageTransfer:
        return false;
    case PageSelection:
        return isNewPC() || (m_selectionPage->hasSelection() && !m_linkWatch->isLost());
    default:
        return true;
    }
}

void MainWindow::showPage(int index)
{
    const QWidget *focused = focusWidget();
    m_currentPage = index;
    m_pageStack->setCurrentIndex(index);
    m_linkWatch->setPlace(placeOf(index));
    updateNavigation();
    // A control that went out of sight or was disabled has handed the focus to any other.
    if (!focused || focusWidget() != focused)
        moveFocusToPage();
}

void MainWindow::goToPage(int index)
{
    showPage(index);
    m_titleBar->setRole(isNewPC());
}

/// Who works by keyboard begins at the first control of the page.
void MainWindow::moveFocusToPage()
{
    const QWidget *page = m_pageStack->currentWidget();
    QWidget *candidate = nextInFocusChain();
    while (candidate != this) {
        if (page->isAncestorOf(candidate) && candidate->isVisibleTo(page) && candidate->isEnabled() &&
            (candidate->focusPolicy() & Qt::TabFocus)) {
            candidate->setFocus(Qt::OtherFocusReason);
            return;
        }
        candidate = candidate->nextInFocusChain();
    }
}

void MainWindow::beginScanning()
{
    goToPage(PageScanning);
    m_scanningPage->startScan();
}

void MainWindow::beginDiscovery()
{
    goToPage(PageConnection);
    m_connectionPage->startDiscovery();
}

void MainWindow::enterTransferPage()
{
    goToPage(PageTransfer);
    beginOnTransferPage();
}

void MainWindow::beginOnTransferPage()
{
    m_transferPage->setRole(m_engine->role());
    if (isNewPC()) {
        qCDebug(logUi) << "New PC: Starting to receive data";
        m_transferPage->setFiles({});
        m_transferPage->startReceiving();
        m_engine->startReceiving();
        return;
    }
    const QStringList paths = m_selectionPage->selectedPaths();
    qCDebug(logUi) << "Old PC: Starting transfer with" << paths.size() << "files";
    m_engine->setSelectedPaths(paths);
    m_transferPage->setFiles(paths);
    m_transferPage->startTransfer();
}

void MainWindow::onNextClicked()
{
    const int left = m_currentPage;
    if (left == PageComplete) {
        resetToRolePage();
        return;
    }
    if (left == PageConnection) {
        m_engine->stopDiscovery();
        if (isNewPC()) {
            qCDebug(logUi) << "New PC flow: Connection → Transfer (receiving)";
            enterTransferPage();
        } else {
            leaveConnections();
        }
        return;
    }
    if (left == PageSelection && !isNewPC() && !ensureRegistered())
        return;
    goToPage(left + 1);
    if (m_currentPage == PageConnection)
        m_connectionPage->startDiscovery();
    if (left == PageSelection)
        beginOnTransferPage();
}

void MainWindow::onBackClicked()
{
    const int left = m_currentPage;
    if (left == PageComplete) {
        if (isNewPC()) {
            beginDiscovery();
        } else {
            m_engine->notifyPeerReadyForNew();
            goToPage(PageSelection);
        }
        return;
    }
    if (left < PageRole)
        return;
    goToPage(left - 1);
    if (left == PageScanning)
        m_connectionPage->startDiscovery();
    if (left == PageSelection && !isNewPC())
        m_scanningPage->startScan();
}

void MainWindow::onConnected()
{
    qCDebug(logUi) << "MainWindow::onConnected() - Role:" << roleName(m_engine->role());
    if (m_currentPage == PageConnection) {
        m_engine->stopDiscovery();
        if (!isNewPC())
            leaveConnections();
    }
    updateNavigation();
}

/// On the Old PC: to the scan, or past it where a lost link has left a selection.
void MainWindow::leaveConnections()
{
    if (std::exchange(m_keepsSelection, false)) {
        m_engine->resetForNewConnection();
        goToPage(PageSelection);
        return;
    }
    qCDebug(logUi) << "Old PC flow: Connection → Scanning";
    beginScanning();
}

void MainWindow::onRequestAutoAdvance()
{
    if (!isNewPC() || m_currentPage != PageConnection || m_linkWatch->isLost())
        return;
    qCDebug(logUi) << "New PC: Auto-advancing to transfer page for receiving";
    m_engine->stopDiscovery();
    enterTransferPage();
}

void MainWindow::onScanFinished()
{
    if (m_currentPage == PageScanning)
        goToPage(PageSelection);
}

/// Queued behind the engine's own signals: by now the peer may have ended the session as well.
void MainWindow::onTransferFinished()
{
    if (m_currentPage == PageTransfer)
        goToPage(PageComplete);
}

void MainWindow::onScanCompleted(const ScanResult &result)
{
    Q_UNUSED(result)
    qCDebug(logUi) << "MainWindow::onScanCompleted()";
}

void MainWindow::onTransferCompleted(const MigrationReport &report)
{
    Q_UNUSED(report)
    qCDebug(logUi) << "MainWindow::onTransferCompleted()";
}

void MainWindow::onTransferReset()
{
    qCDebug(logUi) << "Received transferReset signal";
    if (!isNewPC())
        return;
    m_transferPage->resetForNewTransfer();
    m_transferPage->setRole(NewPC);
    showPage(PageTransfer);
    qCDebug(logUi) << "New PC: Switched to waiting page";
}

void MainWindow::onNewTransferStarted()
{
    qCDebug(logUi) << "MainWindow::onNewTransferStarted() - currentPage:" << m_currentPage;
    if (!isNewPC())
        return;
    m_engine->resetForNewReceive();
    m_transferPage->resetForNewTransfer();
    if (m_currentPage != PageTransfer) {
        qCDebug(logUi) << "Switching from page" << m_currentPage << "to PageTransfer";
        showPage(PageTransfer);
        m_transferPage->setRole(NewPC);
    }
    updateNavigation();
    qCDebug(logUi) << "New PC: Ready to receive new transfer";
}

void MainWindow::onLocalCancel()
{
    const int role = m_engine->role();
    qCDebug(logUi) << "Local cancel - Role:" << roleName(role);
    if (m_currentPage >= PageSelection) // else the session has ended meanwhile
        returnFromCancel(role != OldPC);
}

void MainWindow::onPeerCancelled()
{
    const int role = m_engine->role();
    qCDebug(logUi) << "Peer cancelled - Role:" << roleName(role);
    returnFromCancel(role == NewPC);
}

/// The Old PC chooses anew; the New PC goes on waiting where it is.
void MainWindow::returnFromCancel(bool waits)
{
    if (waits)
        m_transferPage->resetForNewTransfer();
    else
        goToPage(PageSelection);
}

void MainWindow::navigateBack(const QString &pageName)
{
    qCDebug(logUi) << "[MainWindow] Navigate back to:" << pageName;
    if (pageName == "SelectionPage"_L1) {
        goToPage(PageSelection);
    } else if (pageName == "WaitingPage"_L1) {
        beginDiscovery();
        m_engine->resetForNewConnection();
    }
}

void MainWindow::onBackToSelection()
{
    qCDebug(logUi) << "Send More Files - back to selection page";
    m_engine->resetTransfer();
    m_engine->notifyPeerReadyForNew();
    goToPage(PageSelection);
    updateNavigation();
}

void MainWindow::resetToRolePage()
{
    qCDebug(logUi) << "Resetting to role selection page";
    m_keepsSelection = false;
    goToPage(PageRole); // where a link that ends is nothing to tell
    m_engine->disconnectFromPeer();
    m_engine->reset();
    updateNavigation();
}

void MainWindow::onSessionEnd()
{
    qCDebug(logUi) << "User requested session end";
    m_engine->sendSessionEnd();
    resetToRolePage();
}

void MainWindow::onSessionEndReceived()
{
    qCDebug(logUi) << "Session end received from peer";
    resetToRolePage();
}

void MainWindow::onActivateClicked()
{
    m_dialogs->registerCopy();
    m_titleBar->refreshActivateButton();
}

/// Offers an unregistered copy its registration. False when nothing is to follow.
bool MainWindow::ensureRegistered()
{
    if (m_license.isRegistered())
        return true;
    const bool registered = m_dialogs->registerCopy();
    if (registered)
        m_titleBar->refreshActivateButton();
    // The peer may have ended the session behind the dialog.
    return registered && m_currentPage == PageSelection;
}

} // namespace Zandrove
