#include "ui/pages/ConnectionPage.h"

#include "core/engine/TransferEngine.h"
#include "support/PrintableText.h"
#include "ui/Log.h"
#include "ui/pages/AddressEntry.h"
#include "ui/pages/CodeCards.h"
#include "ui/pages/ConnectionQuestions.h"
#include "ui/pages/DeviceCard.h"
#include "ui/pages/DiagnosisPanel.h"
#include "ui/pages/SearchNotice.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Zandrove {

namespace Colour = Theme::Colour;

namespace {

constexpr auto AutoAdvanceDelay = 500ms;
constexpr auto NoDeviceFoundTime = 3000ms;

// Room for the name of a PC within a sentence; the rest of a longer one is left out.
constexpr int NameWidth = 300;

} // namespace

ConnectionPage::ConnectionPage(TransferEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
    , m_questions(new ConnectionQuestions(engine, this))
    , m_notice(new SearchNotice(engine, this))
{
    setupUi();
    connectEngine();
    connectQuestions();
}

void ConnectionPage::setupUi()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 16, 32, 12);
    layout->setSpacing(4);
    layout->addWidget(makeCentredLabel(tr("Connect to Another PC"), 24, Colour::Text, Theme::Bold));
    layout->addWidget(
        makeCentredLabel(tr("Select a device or enter verification code"), 14, Colour::TextMuted));
    layout->addSpacing(12);
    layout->addWidget(m_notice->bar());
    layout->addLayout(createColumns(), 1);
    layout->addSpacing(6);
    layout->addWidget(makeCentredLabel(tr("💡 Both PCs must be on the same network with Zandrove running"), 12,
                                       Colour::TextFaint));
}

QBoxLayout *ConnectionPage::createColumns()
{
    m_codes = new CodeCards;
    connect(m_codes, &CodeCards::codeEntered, this, &ConnectionPage::onCodeEntered);
    connect(m_codes->addressEntry(), &AddressEntry::addressEntered, this, &ConnectionPage::onAddressEntered);
    auto *columns = new QHBoxLayout;
    columns->setSpacing(20);
    columns->addWidget(createLeft(), 1);
    columns->addWidget(m_codes);
    return columns;
}

QWidget *ConnectionPage::createLeft()
{
    m_devices = new DeviceCard;
    connect(m_devices, &DeviceCard::picked, this, &ConnectionPage::onPicked);
    connect(m_devices, &DeviceCard::refreshClicked, this, &ConnectionPage::onRefreshClicked);
    connect(m_devices, &DeviceCard::helpClicked, this, &ConnectionPage::diagnose);
    m_diagnosis = new DiagnosisPanel;
    connect(m_diagnosis, &DiagnosisPanel::closed, this, &ConnectionPage::showDevices);
    m_left = new QStackedWidget;
    m_left->addWidget(m_devices);
    m_left->addWidget(m_diagnosis);
    return m_left;
}

void ConnectionPage::connectEngine()
{
    connect(m_engine, &TransferEngine::pcDiscovered, m_devices, &DeviceCard::setPeer);
    connect(m_engine, &TransferEngine::pcLost, m_devices,
            [this](const QString &, quint64 key) { m_devices->removePeer(key); });
    connect(m_engine, &TransferEngine::waitingForAnswer, this, [this](const QString &pcName) {
        m_devices->say(tr("Waiting for %1: somebody has to press Yes there").arg(shownName(pcName, this)),
                       Theme::Status::Working);
    });
    connect(m_engine, &TransferEngine::connected, this, &ConnectionPage::onConnected);
    connect(m_engine, &TransferEngine::connectionFailed, this, &ConnectionPage::onConnectionFailed);
    connect(m_engine, &TransferEngine::directScanStarted, this, &ConnectionPage::onDirectScanStarted);
    connect(m_engine, &TransferEngine::directScanProgress, this, &ConnectionPage::onDirectScanProgress);
    connect(m_engine, &TransferEngine::directScanFinished, this, &ConnectionPage::onDirectScanFinished);
}

void ConnectionPage::connectQuestions()
{
    connect(m_questions, &ConnectionQuestions::asked, this, [this](const QString &pcName) {
        m_devices->rest();
        m_devices->say(tr("Connection request from %1...").arg(shownName(pcName, this)),
                       Theme::Status::Working);
    });
    connect(m_notice, &SearchNotice::retryWanted, this, &ConnectionPage::onRefreshClicked);
    connect(m_questions, &ConnectionQuestions::accepted, this, &ConnectionPage::onAccepted);
    connect(m_questions, &ConnectionQuestions::rejected, this, [this] {
        m_devices->say(tr("Connection rejected"), Theme::Status::Neutral);
        m_devices->showPeers();
    });
    connect(m_questions, &ConnectionQuestions::withdrawn, this, [this] {
        if (m_devices->tellsSuccess()) // of another PC, for whose sake this one was turned down
            return;
        m_devices->showPeers();
        m_devices->say(tr("The other PC is no longer waiting"), Theme::Status::Failure);
    });
}

void ConnectionPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_discoveryStarted)
        return;
    m_discoveryStarted = true;
    qCDebug(logUi) << "ConnectionPage::showEvent - Starting discovery";
    startDiscovery();
}

void ConnectionPage::startDiscovery()
{
    showDevices();
    m_notice->forget();
    m_engine->startDiscovery();
    m_codes->setOwnCode(m_engine->verifyCode());
    m_codes->clearEntries();
    m_devices->removeAll();
    m_devices->say({}, Theme::Status::Neutral);
    const QList<PCInfo> known = m_engine->discoveredPCs();
    for (const PCInfo &pc : known)
        m_devices->setPeer(pc);
    m_devices->showPeers();
}

void ConnectionPage::onPicked(const PCInfo &pc)
{
    m_enteredAddress.clear();
    m_devices->say(tr("Connecting to %1...").arg(shownName(pc.name, this)), Theme::Status::Working);
    m_engine->connectToPC(pc);
}

void ConnectionPage::onAddressEntered(const QString &address)
{
    m_enteredAddress = address;
    showDevices();
    m_devices->say(tr("Connecting to %1...").arg(address), Theme::Status::Working);
    m_engine->connectToAddress(address);
}

void ConnectionPage::onCodeEntered(const QString &code)
{
    m_enteredAddress.clear();
    showDevices();
    m_devices->say(tr("Verifying code..."), Theme::Status::Working);
    m_engine->connectByCode(code);
}

void ConnectionPage::onRefreshClicked()
{
    m_devices->removeAll();
    m_devices->showSearch();
    m_notice->forget();
    m_engine->restartBroadcast();
}

void ConnectionPage::diagnose()
{
    m_left->setCurrentWidget(m_diagnosis);
    m_diagnosis->start({m_engine->role(), m_codes->addressEntry()->enteredText()});
}

void ConnectionPage::showDevices()
{
    m_diagnosis->cancel();
    m_left->setCurrentWidget(m_devices);
}

void ConnectionPage::onAccepted(const QString &pcName)
{
    m_engine->stopDiscovery();
    m_devices->showConnected();
    m_devices->say(tr("✓ Connected to %1").arg(shownName(pcName, this)), Theme::Status::Success);
    Q_EMIT connectionEstablished();
}

void ConnectionPage::onConnected()
{
    m_engine->stopDiscovery();
    showDevices();
    m_devices->rest();
    m_devices->say(tr("✓ Connected successfully!"), Theme::Status::Success);
    Q_EMIT connectionEstablished();
    if (m_engine->role() == NewPC)
        QTimer::singleShot(AutoAdvanceDelay, this, &ConnectionPage::requestAutoAdvance);
}

void ConnectionPage::onConnectionFailed(const QString &reason)
{
    m_devices->say(tr("✗ Connection failed: %1").arg(reason), Theme::Status::Failure);
    const QString entered = std::exchange(m_enteredAddress, {});
    if (!entered.isEmpty())
        m_codes->addressEntry()->showError(tr("No connection to %1: %2.").arg(entered, reason));
}

void ConnectionPage::onDirectScanStarted()
{
    m_devices->setByCable(true);
    m_devices->setCaption(tr("Scanning direct connection... 0%"));
    m_devices->showPeers();
}

void ConnectionPage::onDirectScanProgress(int scanned, int total)
{
    const int percent = total > 0 ? scanned * 100 / total : 0;
    m_devices->setCaption(
        tr("Scanning direct connection... %1% (%2/%3)").arg(percent).arg(scanned).arg(total));
}

void ConnectionPage::onDirectScanFinished(bool found)
{
    if (found) {
        m_devices->showPeers();
        return;
    }
    m_devices->setCaption(tr("No device found. Please ensure the other PC has Zandrove running"));
    QTimer::singleShot(NoDeviceFoundTime, this, [this] {
        if (!m_devices->hasPeers())
            m_devices->setCaption(tr("Looking for devices on your network..."));
    });
}

QString ConnectionPage::shownName(const QString &pcName, const QWidget *widget)
{
    return widget->fontMetrics().elidedText(printable(pcName), Qt::ElideRight, NameWidth);
}

} // namespace Zandrove
