#include "ui/pages/ConnectionPage.h"

#include "core/engine/TransferEngine.h"
#include "support/PrintableText.h"
#include "ui/Log.h"
#include "ui/widgets/PCListItem.h"
#include "ui/widgets/RadarWidget.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto AutoAdvanceDelay = 500ms;
constexpr auto NoDeviceFoundTime = 3000ms;

// Room for the name of a PC within a sentence; the rest of a longer one is left out.
constexpr int NameWidth = 300;

} // namespace

ConnectionPage::ConnectionPage(TransferEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
{
    setupUi();
    connectEngine();
}

void ConnectionPage::connectEngine()
{
    connect(m_engine, &TransferEngine::pcDiscovered, this, &ConnectionPage::onPCDiscovered);
    connect(m_engine, &TransferEngine::pcLost, this, &ConnectionPage::onPCLost);
    connect(m_engine, &TransferEngine::connected, this, &ConnectionPage::onConnected);
    connect(m_engine, &TransferEngine::connectionFailed, this, &ConnectionPage::onConnectionFailed);
    connect(m_engine, &TransferEngine::connectionRequested, this, &ConnectionPage::onConnectionRequested);
    connect(m_engine, &TransferEngine::directScanStarted, this, &ConnectionPage::onDirectScanStarted);
    connect(m_engine, &TransferEngine::directScanProgress, this, &ConnectionPage::onDirectScanProgress);
    connect(m_engine, &TransferEngine::directScanFinished, this, &ConnectionPage::onDirectScanFinished);
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
    m_engine->startDiscovery();
    showOwnCode(m_engine->verifyCode());
    m_devicesTitle->setText(tr("Available Devices"));
    m_refreshButton->show();
    clearItems();
    for (QLineEdit *edit : std::as_const(m_codeEdits))
        edit->clear();
    const QList<PCInfo> known = m_engine->discoveredPCs();
    for (const PCInfo &pc : known)
        onPCDiscovered(pc);
    if (known.isEmpty())
        showIdle();
}

void ConnectionPage::showIdle()
{
    m_devicesTitle->hide();
    m_statusLabel->hide();
    m_contentStack->setCurrentIndex(RadarView);
    m_radar->start();
}

void ConnectionPage::showListing()
{
    m_devicesTitle->show();
    m_statusLabel->show();
    m_refreshButton->show();
    m_radar->stop();
    m_contentStack->setCurrentIndex(ListView);
}

void ConnectionPage::showStatus(const QString &text, Theme::Status status)
{
    m_statusLabel->setStyleSheet(Theme::statusStyle(status));
    m_statusLabel->setText(text);
}

void ConnectionPage::showDeviceCount()
{
    const auto online = std::count_if(m_items.cbegin(), m_items.cend(),
                                      [](const PCListItem *item) { return item->pcInfo().online; });
    showStatus(tr("%1 device(s) found, %2 online").arg(m_items.size()).arg(online), Theme::Status::Neutral);
}

void ConnectionPage::showOwnCode(const QString &code)
{
    const qsizetype shown = std::min(code.size(), m_codeLabels.size());
    for (qsizetype i = 0; i < shown; ++i)
        m_codeLabels[i]->setText(code.at(i));
}

void ConnectionPage::clearItems()
{
    qDeleteAll(std::exchange(m_items, {}));
}

/// The row of `pc`. One that a sweep of the addresses has found is listed by its address until it is heard.
PCListItem *ConnectionPage::itemFor(const PCInfo &pc) const
{
    const auto itemOf = [this](const QString &id) {
        const auto item = std::find_if(m_items.cbegin(), m_items.cend(),
                                       [&id](const PCListItem *row) { return row->pcInfo().id == id; });
        return item == m_items.cend() ? nullptr : *item;
    };
    PCListItem *const known = itemOf(pc.id);
    return known ? known : itemOf(pc.ip);
}

void ConnectionPage::onPCDiscovered(const PCInfo &pc)
{
    if (PCListItem *item = itemFor(pc)) {
        item->setPCInfo(pc);
        return;
    }
    if (m_items.isEmpty())
        showListing();
    addItem(pc);
    showDeviceCount();
}

void ConnectionPage::addItem(const PCInfo &pc)
{
    auto *item = new PCListItem(this);
    item->setPCInfo(pc);
    connect(item, &PCListItem::clicked, this, [this, item] { onPCItemClicked(item); });
    m_listLayout->insertWidget(m_listLayout->count() - 1, item);
    setTabOrder(m_items.isEmpty() ? static_cast<QWidget *>(m_refreshButton) : m_items.constLast(), item);
    m_items.append(item);
}

void ConnectionPage::onPCLost(const QString &pcId)
{
    const auto lost = std::find_if(m_items.cbegin(), m_items.cend(),
                                   [&pcId](const PCListItem *item) { return item->pcInfo().id == pcId; });
    if (lost != m_items.cend()) {
        delete *lost;
        m_items.erase(lost);
    }
    if (m_items.isEmpty())
        showIdle();
    showDeviceCount();
}

void ConnectionPage::onPCItemClicked(PCListItem *clicked)
{
    const PCInfo pc = clicked->pcInfo();
    if (!pc.online)
        return;
    for (PCListItem *item : std::as_const(m_items))
        item->setSelected(item == clicked);
    m_selectedPcId = pc.id;
    showStatus(tr("Connecting to %1...").arg(shownName(pc.name)), Theme::Status::Working);
    m_engine->connectToPC(pc);
}

void ConnectionPage::onCodeEdited(int index, const QString &text)
{
    if (!text.isEmpty() && index < m_codeEdits.size() - 1)
        m_codeEdits[index + 1]->setFocus();
    const bool complete = enteredCode().size() == m_codeEdits.size();
    m_connectButton->setEnabled(complete);
    if (complete)
        m_connectButton->setFocus();
}

QString ConnectionPage::enteredCode() const
{
    QString code;
    for (const QLineEdit *edit : m_codeEdits)
        code += edit->text();
    return code;
}

void ConnectionPage::onConnectByCode()
{
    const QString code = enteredCode();
    if (code.size() != m_codeEdits.size())
        return;
    showStatus(tr("Verifying code..."), Theme::Status::Working);
    m_statusLabel->show();
    m_engine->connectByCode(code);
}

void ConnectionPage::onRefreshClicked()
{
    clearItems();
    showIdle();
    m_engine->restartBroadcast();
}

/// The question runs from an event of its own: this signal comes from within the reading of a socket, which
/// the next caller replaces.
void ConnectionPage::onConnectionRequested(const QString &pcName, const QString &)
{
    const QList<ConnectionQuestion> open = m_engine->openQuestions();
    m_requests.append({pcName, open.isEmpty() ? 0 : open.last().number});
    QMetaObject::invokeMethod(this, &ConnectionPage::askNext, Qt::QueuedConnection);
}

void ConnectionPage::askNext()
{
    while (!m_questionBox && !m_requests.isEmpty()) {
        const Request request = m_requests.takeFirst();
        if (isOpen(request))
            ask(request);
    }
}

bool ConnectionPage::isOpen(const Request &request) const
{
    const QList<ConnectionQuestion> open = m_engine->openQuestions();
    return (request.question == 0 && open.isEmpty()) ||
           std::any_of(open.cbegin(), open.cend(), [&request](const ConnectionQuestion &question) {
               return question.number == request.question;
           });
}

void ConnectionPage::ask(const Request &request)
{
    const QString name = shownName(request.pcName);
    m_radar->stop();
    showStatus(tr("Connection request from %1...").arg(name), Theme::Status::Working);
    m_statusLabel->show();

    m_questionBox =
        new QMessageBox(QMessageBox::Question, tr("Connection Request"),
                        tr("'%1' wants to connect to this PC.\n\nDo you want to accept?").arg(name),
                        QMessageBox::Yes | QMessageBox::No, this);
    m_questionBox->setTextFormat(Qt::PlainText);
    m_questionBox->setDefaultButton(QMessageBox::Yes);
    m_questionBox->setStyleSheet(Theme::messageBoxStyle());
    m_questionBox->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_questionBox, &QMessageBox::finished, this,
            [this, request](int button) { onAnswered(request, button == QMessageBox::Yes); });
    // Not exec(): the window may go while the question is open.
    m_questionBox->setModal(true);
    m_questionBox->show();
}

void ConnectionPage::onAnswered(const Request &request, bool yes)
{
    m_questionBox.clear();
    if (yes) {
        accept(request);
    } else {
        m_engine->rejectConnection(request.question);
        showStatus(tr("Connection rejected"), Theme::Status::Neutral);
        showIdle();
    }
    askNext();
}

void ConnectionPage::accept(const Request &request)
{
    if (!isOpen(request)) {
        onConnectionFailed(tr("The other PC is no longer waiting"));
        if (m_contentStack->currentIndex() == RadarView)
            m_radar->start();
        return;
    }
    m_engine->acceptConnection(m_engine->verifyCode(), request.question);
    m_engine->stopDiscovery();
    m_contentStack->setCurrentIndex(ListView);
    m_devicesTitle->setText(tr("Connected"));
    m_devicesTitle->show();
    m_refreshButton->hide();
    showStatus(tr("✓ Connected to %1").arg(shownName(request.pcName)), Theme::Status::Success);
    m_statusLabel->show();
    Q_EMIT connectionEstablished();
}

void ConnectionPage::onConnected()
{
    m_engine->stopDiscovery();
    m_radar->stop();
    showStatus(tr("✓ Connected successfully!"), Theme::Status::Success);
    Q_EMIT connectionEstablished();
    if (m_engine->role() == NewPC)
        QTimer::singleShot(AutoAdvanceDelay, this, &ConnectionPage::requestAutoAdvance);
}

void ConnectionPage::onConnectionFailed(const QString &reason)
{
    showStatus(tr("✗ Connection failed: %1").arg(reason), Theme::Status::Failure);
}

void ConnectionPage::onDirectScanStarted()
{
    m_devicesTitle->hide();
    m_statusLabel->hide();
    m_refreshButton->show();
    m_contentStack->setCurrentIndex(RadarView);
    m_radar->start();
    m_radarCaption->setText(tr("Scanning direct connection... 0%"));
    m_directTitle->setText(tr("Scanning Direct Connection..."));
}

void ConnectionPage::onDirectScanProgress(int scanned, int total)
{
    const int percent = total > 0 ? scanned * 100 / total : 0;
    m_radarCaption->setText(
        tr("Scanning direct connection... %1% (%2/%3)").arg(percent).arg(scanned).arg(total));
}

void ConnectionPage::onDirectScanFinished(bool found)
{
    if (found) {
        showListing();
        return;
    }
    m_radarCaption->setText(tr("No device found. Please ensure the other PC has Zandrove running"));
    QTimer::singleShot(NoDeviceFoundTime, this, [this] {
        if (m_items.isEmpty())
            m_radarCaption->setText(tr("Looking for devices on your network..."));
    });
}

/// A name as it came from the network, made fit for a sentence of this page.
QString ConnectionPage::shownName(const QString &pcName) const
{
    return fontMetrics().elidedText(printable(pcName), Qt::ElideRight, NameWidth);
}

} // namespace Zandrove
