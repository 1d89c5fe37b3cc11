// MainWindow: how the window is built, wired and painted, and what it does when its link
// goes or it is closed.

#include "core/common/AppConfig.h"
#include "core/engine/TransferEngine.h"
#include "ui/LinkWatch.h"
#include "ui/MainWindow.h"
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
#include "ui/widgets/KeyboardFocus.h"
#include "ui/widgets/NoticeBar.h"
#include "ui/widgets/ProgressDots.h"

#include <QCloseEvent>
#include <QGraphicsDropShadowEffect>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int FrameWidth = 12; // room for the soft edge around the content
constexpr int CornerRadius = 12;
constexpr QSize MinimumSize(900, 640);
constexpr QSize InitialSize(980, 700);
constexpr int NavBarHeight = 72;

QPushButton *makeNavButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

Theme::ButtonLook backLook()
{
    Theme::ButtonLook look;
    look.background = "transparent"_L1;
    look.text = Theme::Colour::TextMuted;
    look.hover = Theme::Colour::Hover;
    look.hoverText = Theme::Colour::TextSecondary;
    look.disabledText = Theme::Colour::BorderStrong;
    look.padding = "10px 20px"_L1;
    return look;
}

} // namespace

void MainWindow::setupWindow()
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowMaximizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(AppConfig::appName());
    if (windowIcon().isNull())
        setWindowIcon(QIcon(u":/icons/app.svg"_s));
    setMinimumSize(MinimumSize);
    resize(InitialSize);
    new KeyboardFocus(this);
}

void MainWindow::setupUi()
{
    setupWindow();

    auto *content = new QWidget;
    content->setObjectName(u"ContentWidget"_s);
    content->setAttribute(Qt::WA_StyledBackground);
    content->setStyleSheet(Theme::boxStyle("#ContentWidget"_L1, Theme::Colour::White, CornerRadius));
    auto *shadow = new QGraphicsDropShadowEffect(content);
    shadow->setBlurRadius(25.0);
    shadow->setColor(QColor(0, 0, 0, 50));
    shadow->setOffset(0.0, 4.0);
    content->setGraphicsEffect(shadow);

    m_titleBar = new TitleBar(nullptr, m_license);
    m_pageStack = new QStackedWidget;
    m_pageStack->setObjectName(u"PageStack"_s);
    m_navBar = createNavBar();
    auto *linkBar = new NoticeBar;
    m_linkWatch = new LinkWatch(m_engine, linkBar, this);
    linkBar->setContentsMargins(24, 10, 24, 0);
    auto *contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->setSpacing(0);
    // Tab goes by the order of adding: from the end of a page to the navigation and then to the title bar.
    contentLayout->addWidget(m_navBar);
    contentLayout->insertWidget(0, m_titleBar);
    contentLayout->insertWidget(1, linkBar);
    contentLayout->insertWidget(2, m_pageStack, 1);

    auto *central = new QWidget;
    central->setAttribute(Qt::WA_TranslucentBackground);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(FrameWidth, FrameWidth, FrameWidth, FrameWidth);
    layout->setSpacing(0);
    layout->addWidget(content);
    setCentralWidget(central);
}

QWidget *MainWindow::createNavBar()
{
    m_backButton = makeNavButton(tr("← Back"));
    m_backButton->setAccessibleName(tr("Back"));
    m_backButton->setStyleSheet(Theme::buttonStyle(backLook()));
    m_nextButton = makeNavButton(tr("Next →"));
    m_progressDots = new ProgressDots(PageCount);

    auto *navBar = new QWidget;
    navBar->setObjectName(u"NavBar"_s);
    navBar->setFixedHeight(NavBarHeight);
    auto *layout = new QHBoxLayout(navBar);
    layout->setContentsMargins(24, 0, 24, 0);
    layout->addWidget(m_backButton);
    layout->addStretch();
    layout->addWidget(m_progressDots);
    layout->addStretch();
    layout->addWidget(m_nextButton);
    return navBar;
}

void MainWindow::setupPages()
{
    m_welcomePage = new WelcomePage(m_engine);
    m_rolePage = new RolePage(m_engine);
    m_connectionPage = new ConnectionPage(m_engine);
    m_scanningPage = new ScanningPage(m_engine);
    m_selectionPage = new SelectionPage(m_engine);
    m_transferPage = new TransferPage(m_engine);
    m_completePage = new CompletePage(m_engine);
    const std::array<QWidget *, PageCount> pages = {m_welcomePage,  m_rolePage,      m_connectionPage,
                                                    m_scanningPage, m_selectionPage, m_transferPage,
                                                    m_completePage};
    for (QWidget *page : pages)
        m_pageStack->addWidget(page);
}

void MainWindow::setupConnections()
{
    connectTitleBar();
    connectNavigation();
    connectPages();
    connectLink();
}

void MainWindow::connectTitleBar()
{
    connect(m_titleBar, &TitleBar::minimizeClicked, this, &MainWindow::onMinimize);
    connect(m_titleBar, &TitleBar::maximizeClicked, this, &MainWindow::onMaximize);
    connect(m_titleBar, &TitleBar::closeClicked, this, &MainWindow::onClose);
    connect(m_titleBar, &TitleBar::settingsClicked, this, &MainWindow::onSettings);
    connect(m_titleBar, &TitleBar::activateClicked, this, &MainWindow::onActivateClicked);
    connect(m_titleBar, &TitleBar::aboutClicked, m_dialogs, &ProductDialogs::showAbout);
    connect(m_titleBar, &TitleBar::purchaseClicked, m_dialogs, &ProductDialogs::openPurchase);
    connect(m_titleBar, &TitleBar::helpClicked, m_dialogs, &ProductDialogs::openHelp);
    connect(m_titleBar, &TitleBar::supportClicked, m_dialogs, &ProductDialogs::openSupport);
    connect(m_titleBar, &TitleBar::languageChanged, m_dialogs, &ProductDialogs::restartIn);
}

void MainWindow::connectNavigation()
{
    connect(m_backButton, &QPushButton::clicked, this, &MainWindow::onBackClicked);
    connect(m_nextButton, &QPushButton::clicked, this, &MainWindow::onNextClicked);
    connect(m_rolePage, &RolePage::selectionChanged, this, &MainWindow::updateNavigation);
    connect(m_completePage, &CompletePage::sessionEndRequested, this, &MainWindow::onSessionEnd);
    connect(m_engine, &TransferEngine::sessionEndReceived, this, &MainWindow::onSessionEndReceived);
    connect(m_engine, &TransferEngine::connected, this, &MainWindow::onConnected);
    connect(m_engine, &TransferEngine::scanCompleted, this, &MainWindow::onScanCompleted);
    connect(m_engine, &TransferEngine::transferCompleted, this, &MainWindow::onTransferCompleted);
    connect(m_engine, &TransferEngine::newTransferStarted, this, &MainWindow::onNewTransferStarted);
}

void MainWindow::connectPages()
{
    connect(m_connectionPage, &ConnectionPage::connectionEstablished, this, &MainWindow::updateNavigation);
    connect(m_connectionPage, &ConnectionPage::requestAutoAdvance, this, &MainWindow::onRequestAutoAdvance);
    connect(m_engine, &TransferEngine::transferReset, this, &MainWindow::onTransferReset);
    connect(m_selectionPage, &SelectionPage::selectionChanged, this, &MainWindow::updateNavigation);
    connect(m_scanningPage, &ScanningPage::scanFinished, this, &MainWindow::onScanFinished);
    connect(m_transferPage, &TransferPage::transferFinished, this, &MainWindow::onTransferFinished);
    connect(m_transferPage, &TransferPage::navigateBack, this, &MainWindow::navigateBack);
    connect(m_transferPage, &TransferPage::transferCancelled, this, &MainWindow::onLocalCancel);
    connect(m_engine, &TransferEngine::peerCancelled, this, &MainWindow::onPeerCancelled);
    connect(m_completePage, &CompletePage::backToSelectionRequested, this, &MainWindow::onBackToSelection);
}

void MainWindow::connectLink()
{
    // Queued: the engine is still about to take the link's end in.
    connect(m_linkWatch, &LinkWatch::lost, this, &MainWindow::onLinkLost, Qt::QueuedConnection);
    connect(m_linkWatch, &LinkWatch::regained, this, &MainWindow::onLinkRegained);
    connect(m_linkWatch, &LinkWatch::connectionsWanted, this, &MainWindow::backToConnections);
    connect(m_linkWatch, &LinkWatch::outcomeWanted, this, [this] { goToPage(PageComplete); });
    // At once: the system waits for this answer, and for nothing behind it.
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { m_transferPage->cancelRun(); },
        Qt::DirectConnection);
}

/// Both PCs look for each other at once; the New PC needs no click to be found again.
void MainWindow::onLinkLost()
{
    if (!m_linkWatch->isLost()) // any more
        return;
    m_keepsSelection = m_keepsSelection || (!isNewPC() && m_currentPage >= PageSelection);
    m_connectionPage->startDiscovery();
    if (isNewPC() && m_currentPage == PageTransfer)
        goToPage(PageConnection);
    updateNavigation();
}

void MainWindow::onLinkRegained()
{
    // The loss is told in a queue, and may stand behind this.
    m_keepsSelection = m_keepsSelection || (!isNewPC() && m_currentPage >= PageSelection);
    const bool onTheWay = m_currentPage == PageConnection;
    if (isNewPC() && !onTheWay)
        goToPage(PageConnection); // which goes on by itself
    if (!isNewPC() && m_currentPage == PageTransfer)
        leaveConnections();
    if (!onTheWay)
        m_keepsSelection = false;
    updateNavigation();
}

void MainWindow::backToConnections()
{
    if (m_currentPage == PageScanning)
        m_engine->cancelScan();
    goToPage(PageConnection);
}

void MainWindow::endProgram()
{
    m_transferPage->cancelRun();
    QCoreApplication::exit();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_currentPage != PageTransfer || m_transferPage->letGo());
}

void MainWindow::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect content = rect().adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth);
    for (int grown = 0; grown < FrameWidth; ++grown) {
        const int alpha = (300 - 25 * grown) / FrameWidth;
        painter.setPen(QPen(QColor(0, 0, 0, alpha), 1.0));
        painter.drawRoundedRect(content.adjusted(-grown, -grown, grown, grown), CornerRadius + grown,
                                CornerRadius + grown);
    }
    QPainterPath shape;
    shape.addRoundedRect(content, CornerRadius, CornerRadius);
    painter.fillPath(shape, QColor(Theme::Colour::White));
    painter.setPen(QPen(QColor(200, 200, 200, 100), 1.0));
    painter.drawPath(shape);
}

void MainWindow::onMinimize()
{
    showMinimized();
}

void MainWindow::onMaximize()
{
    if (isMaximized()) {
        showNormal();
        m_titleBar->setMaximized(false);
    } else {
        showMaximized();
        m_titleBar->setMaximized(true);
    }
}

void MainWindow::onClose()
{
    close();
}

void MainWindow::onSettings() {}

} // namespace Zandrove
