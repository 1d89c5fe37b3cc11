#include "ui/pages/TransferPage.h"

#include "core/engine/TransferEngine.h"
#include "support/Utilities.h"
#include "ui/Log.h"
#include "ui/Theme.h"
#include "ui/widgets/ProgressCard.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

QString noRemaining()
{
    return u"--:--"_s;
}

/// Finds the two buttons by their English texts: in another language they keep the plain look.
QString cancelQuestionStyle()
{
    const auto button = [](const QString &text, QLatin1StringView background, QLatin1StringView hover,
                           QLatin1StringView colour, QLatin1StringView border) {
        return u"QPushButton[text=\"%1\"] { background: %2; color: %4; border: 1px solid %5; border-radius: "
               u"6px; "
               "padding: 8px 20px; font-size: 13px; } QPushButton[text=\"%1\"]:hover { background: %3; }"_s
                   .arg(text, background, hover, colour, border);
    };
    using namespace Theme::Colour;
    return u"QMessageBox { background: %1; } QLabel { color: %2; font-size: 13px; }"_s.arg(White, SlateText) +
           button(u"Yes, Cancel"_s, Danger, DangerText, White, Danger) +
           button(u"Continue Transfer"_s, Hover, Border, TextSecondary, BorderStrong);
}

/// A path as its row shows it: the last two of more than two components.
QString shortenedPath(const QString &path)
{
    static const QRegularExpression Separator(u"[/\\\\]"_s);
    const QStringList parts = path.split(Separator);
    return parts.size() > 2 ? parts.last(2).join(u'/') : path;
}

} // namespace

TransferPage::TransferPage(TransferEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
{
    setupUi();
    setupConnections();
}

void TransferPage::setupConnections()
{
    using Engine = TransferEngine;
    const auto listen = [this](auto signal, auto slot) {
        connect(m_engine, signal, this, slot, Qt::QueuedConnection);
    };
    listen(&Engine::transferProgressChanged, &TransferPage::onProgressChanged);
    listen(&Engine::transferCompleted, &TransferPage::onTransferCompleted);
    listen(&Engine::transferFailed, &TransferPage::onTransferFailed);
    listen(&Engine::peerCancelled, &TransferPage::onPeerCancelled);
    listen(&Engine::fileTransferStarted, &TransferPage::onFileStarted);
    listen(&Engine::fileTransferProgress, &TransferPage::onFileProgress);
    listen(&Engine::fileTransferCompleted, &TransferPage::onFileCompleted);
    listen(&Engine::fileTransferFailed, &TransferPage::onFileFailed);
    listen(&Engine::pausedByPeer, &TransferPage::onPausedByPeer);
    listen(&Engine::resumedByPeer, &TransferPage::onResumedByPeer);

    // At once: an answer that is given to the open question before the queued calls arrive is too late as
    // well.
    for (auto end : {&Engine::peerCancelled, &Engine::transferReset, &Engine::sessionEndReceived})
        connect(m_engine, end, this, &TransferPage::onRunEnded);
    connect(m_engine, &Engine::transferCompleted, this, &TransferPage::onRunEnded);
}

void TransferPage::setRole(int role)
{
    m_role = role;
    m_titleLabel->setText(isNewPC() ? tr("Receiving Data") : tr("Sending Data"));
}

void TransferPage::setFiles(const QStringList &files)
{
    clearFileItems();
    const QStringList shown = files.first(std::min<qsizetype>(files.size(), MAX_VISIBLE_FILES));
    for (const QString &file : shown)
        addFileItem(shortenedPath(file));
    qCDebug(logUi) << "TransferPage: Set" << files.size() << "files for transfer (showing" << shown.size()
                   << ")";
}

void TransferPage::startTransfer()
{
    qCDebug(logUi) << "TransferPage::startTransfer() - Starting real transfer as sender";
    clearFileItems();
    showPaused(false);
    clearCard(u"0 MB/s"_s, u"--"_s);
    showFailedCount(0);
    m_engine->startTransfer();
}

void TransferPage::startReceiving()
{
    qCDebug(logUi) << "TransferPage::startReceiving() - Waiting for incoming data";
    showPaused(false);
    m_titleLabel->setText(tr("Waiting for Data..."));
    clearCard(tr("Waiting..."), u"-- GB"_s);
    clearFileItems();
}

void TransferPage::resetForNewTransfer()
{
    qCDebug(logUi) << "TransferPage::resetForNewTransfer()";
    clearFileItems();
    clearCard(tr("Waiting..."), u"-- GB"_s);
    m_titleLabel->setText(tr("Waiting for Data..."));
    showPaused(false);
    showFailedCount(0);
    m_progress = TransferProgress();
}

void TransferPage::clearCard(const QString &speed, const QString &total)
{
    m_progressCard->setProgress(0);
    m_progressCard->setSpeed(speed);
    m_progressCard->setRemaining(noRemaining());
    m_progressCard->setSizes(u"0 B"_s, total);
}

void TransferPage::onProgressChanged(const TransferProgress &progress)
{
    m_progress = progress;
    m_progressCard->setProgress(progress.overallPercent);
    m_progressCard->setSpeed(formatSpeed(progress.bytesPerSecond));
    m_progressCard->setRemaining(formatTime(progress.remainingSeconds));
    m_progressCard->setSizes(formatSize(progress.transferredBytes), formatSize(progress.totalBytes));
    m_titleLabel->setText(
        (isNewPC() ? tr("Receiving Data - %1%") : tr("Sending Data - %1%")).arg(progress.overallPercent));
    showFailedCount(std::max(progress.failedItems, 0));
}

void TransferPage::onTransferCompleted(const MigrationReport &report)
{
    qCDebug(logUi) << "TransferPage::onTransferCompleted() - Success:" << report.filesSuccess
                   << "Failed:" << report.filesFailed;
    m_progressCard->setProgress(100);
    m_progressCard->setSpeed(u"--"_s);
    m_progressCard->setRemaining(u"00:00"_s);
    for (TransferFileItem *item : std::as_const(m_fileItems)) {
        if (item->status() != TransferFileItem::Failed)
            item->setStatus(TransferFileItem::Success);
    }
    Q_EMIT transferFinishedWithReport(report);
    Q_EMIT transferFinished();
}

void TransferPage::onTransferFailed(const QString &reason)
{
    qCDebug(logUi) << "TransferPage::onTransferFailed():" << reason;
    m_titleLabel->setText(tr("Transfer Failed"));
}

void TransferPage::onPauseClicked()
{
    showPaused(!m_isPaused);
    if (m_isPaused)
        m_engine->pauseTransfer();
    else
        m_engine->resumeTransfer();
}

void TransferPage::onPausedByPeer()
{
    qCDebug(logUi) << "TransferPage::onPausedByPeer() - peer paused transfer";
    showPaused(true);
    m_titleLabel->setText(isNewPC() ? tr("Receiving Paused") : tr("Sending Paused"));
}

void TransferPage::onResumedByPeer()
{
    qCDebug(logUi) << "TransferPage::onResumedByPeer() - peer resumed transfer";
    showPaused(false);
    m_titleLabel->setText(isNewPC() ? tr("Receiving Data") : tr("Sending Data"));
}

void TransferPage::onRetryClicked()
{
    m_engine->retryFailed();
}

/// The user's answer. The run goes on while the question is open; false also when it ended meanwhile.
bool TransferPage::confirmCancel()
{
    QMessageBox question(QMessageBox::Warning, tr("Cancel Transfer"),
                         tr("Are you sure you want to cancel the transfer?"),
                         QMessageBox::Ok | QMessageBox::Cancel, this);
    question.setTextFormat(Qt::PlainText);
    question.setInformativeText(
        tr("All progress will be lost and incomplete files may remain on the destination."));
    question.setDefaultButton(QMessageBox::Cancel);
    question.button(QMessageBox::Ok)->setText(tr("Yes, Cancel"));
    question.button(QMessageBox::Cancel)->setText(tr("Continue Transfer"));
    question.setStyleSheet(cancelQuestionStyle());
    m_cancelQuestion = &question;
    m_runEnded = false;
    return question.exec() == QMessageBox::Ok && !m_runEnded;
}

/// There is nothing left to cancel, and who ended it says what comes next.
void TransferPage::onRunEnded()
{
    m_runEnded = true;
    if (m_cancelQuestion)
        m_cancelQuestion->reject();
}

void TransferPage::onCancelClicked()
{
    if (!confirmCancel())
        return;
    qCDebug(logUi) << "[TransferPage] User cancelled transfer - Role:" << roleName(m_role);
    m_engine->cancelTransfer();
    resetForNewTransfer();
    if (!isNewPC()) {
        Q_EMIT transferCancelled();
        return;
    }
    m_titleLabel->setText(tr("Waiting for Data..."));
    qCDebug(logUi) << "Restarting receive mode after cancel...";
}

void TransferPage::onPeerCancelled()
{
    qCDebug(logUi) << "[TransferPage] Peer cancelled transfer - Role:" << roleName(m_role);
    resetForNewTransfer();
    if (!isNewPC()) {
        Q_EMIT transferCancelled();
        return;
    }
    m_titleLabel->setText(tr("Sender cancelled. Waiting..."));
}

TransferFileItem *TransferPage::findFileItem(const QString &fileName) const
{
    const auto found =
        std::find_if(m_fileItems.cbegin(), m_fileItems.cend(),
                     [&fileName](const TransferFileItem *item) { return item->fileName() == fileName; });
    return found == m_fileItems.cend() ? nullptr : *found;
}

TransferFileItem *TransferPage::addFileItem(const QString &fileName)
{
    auto *item = new TransferFileItem(m_fileContainer);
    item->setFileName(fileName);
    item->setSizeText(QString());
    item->setStatus(TransferFileItem::Pending);
    m_fileListLayout->insertWidget(m_fileListLayout->count() - 1, item);
    item->show(); // at once, so that the layout counts it before the list scrolls to it
    m_fileItems.append(item);
    return item;
}

TransferFileItem *TransferPage::findOrAddFileItem(const QString &fileName)
{
    if (TransferFileItem *item = findFileItem(fileName))
        return item;
    trimFileItems();
    return addFileItem(fileName);
}

/// Makes room for a new row. Unfinished rows stay, however many there are.
void TransferPage::trimFileItems()
{
    while (m_fileItems.size() >= MAX_VISIBLE_FILES) {
        auto oldest = m_fileItems.end();
        for (const auto status : {TransferFileItem::Success, TransferFileItem::Failed}) {
            if (oldest == m_fileItems.end())
                oldest =
                    std::find_if(m_fileItems.begin(), m_fileItems.end(),
                                 [status](const TransferFileItem *item) { return item->status() == status; });
        }
        if (oldest == m_fileItems.end())
            return;
        TransferFileItem *item = *oldest;
        m_fileItems.erase(oldest);
        m_fileListLayout->removeWidget(item);
        item->hide();
        item->deleteLater();
    }
}

void TransferPage::clearFileItems()
{
    for (TransferFileItem *item : std::as_const(m_fileItems)) {
        m_fileListLayout->removeWidget(item);
        item->hide();
        item->deleteLater();
    }
    m_fileItems.clear();
}

void TransferPage::onFileStarted(const QString &fileName)
{
    if (QThread::currentThread() != thread()) {
        qCWarning(logUi) << "onFileStarted called from non-GUI thread!";
        return;
    }
    TransferFileItem *item = findOrAddFileItem(fileName);
    item->setStatus(TransferFileItem::Active);
    item->setProgress(0);
    // The layout makes room for the row first.
    QMetaObject::invokeMethod(
        this,
        [this] { m_fileScroll->verticalScrollBar()->setValue(m_fileScroll->verticalScrollBar()->maximum()); },
        Qt::QueuedConnection);
}

void TransferPage::onFileProgress(const QString &fileName, int percent)
{
    TransferFileItem *item = findFileItem(fileName);
    if (!item)
        return;
    item->setStatus(TransferFileItem::Active);
    item->setProgress(percent);
}

void TransferPage::onFileCompleted(const QString &fileName)
{
    if (TransferFileItem *item = findFileItem(fileName)) {
        item->setStatus(TransferFileItem::Success);
        item->setProgress(100);
    }
}

void TransferPage::onFileFailed(const QString &fileName, const QString &reason)
{
    Q_UNUSED(reason)
    findOrAddFileItem(fileName)->setStatus(TransferFileItem::Failed);
}

} // namespace Zandrove
