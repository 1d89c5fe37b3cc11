#include "ui/pages/TransferPage.h"

#include "core/engine/TransferEngine.h"
#include "support/PrintableText.h"
#include "support/ReportDocument.h"
#include "support/RunTexts.h"
#include "support/Utilities.h"
#include "ui/Log.h"
#include "ui/Theme.h"
#include "ui/widgets/NoticeBar.h"
#include "ui/widgets/ProgressCard.h"
#include "ui/widgets/TransferFileList.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int MostBeforeTheEnd = 99; // percent

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
           button(u"Cancel and Close"_s, DangerText, Danger, White, DangerText) +
           button(u"Continue Transfer"_s, Hover, Border, TextSecondary, BorderStrong);
}

/// A path as its row shows it: the last two of more than two components.
QString shortenedPath(const QString &path)
{
    static const QRegularExpression Separator(u"[/\\\\]"_s);
    const QStringList parts = path.split(Separator);
    return parts.size() > 2 ? parts.last(2).join(u'/') : path;
}

/// For the user of a New PC whose run was called off.
QString whatWasDone(const RunSummary &summary)
{
    QStringList sentences{arrivedFilesText(summary)};
    for (const ItemResult &item : summary.items) {
        if (item.kind == ItemKind::Application)
            sentences += item.path + u": "_s + itemText(item);
    }
    constexpr qsizetype MostSentences = 6;
    return sentences.first(std::min(sentences.size(), MostSentences)).join(u". "_s) + u'.';
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
    listen(&Engine::itemSettled, &TransferPage::onItemSettled);
    listen(&Engine::runEnded, &TransferPage::onRunEnded);
    listen(&Engine::spaceShort, &TransferPage::onSpaceShort);
    listen(&Engine::installing, &TransferPage::onInstalling);
    connect(m_notice, &NoticeBar::actionClicked, this, [this] { Q_EMIT navigateBack(u"SelectionPage"_s); });

    // At once: an answer that is given to the open question before the queued calls arrive
    // is too late as well.
    for (auto end : {&Engine::peerCancelled, &Engine::transferReset, &Engine::sessionEndReceived})
        connect(m_engine, end, this, &TransferPage::closeQuestion);
    connect(m_engine, &Engine::transferCompleted, this, [this] {
        m_isComplete = true;
        closeQuestion();
    });
    connect(m_engine, &Engine::runEnded, this, &TransferPage::closeQuestion);
}

void TransferPage::setRole(int role)
{
    m_role = role;
    m_titleLabel->setText(isNewPC() ? tr("Receiving Data") : tr("Sending Data"));
    m_files->setSentText(isNewPC() ? tr("received") : tr("sent"));
}

void TransferPage::setFiles(const QStringList &files)
{
    m_files->clear();
    const QStringList shown = files.first(std::min<qsizetype>(files.size(), TransferFileList::MaxRows));
    for (const QString &file : shown)
        m_files->add(shortenedPath(file));
    qCDebug(logUi) << "TransferPage: Set" << files.size() << "files for transfer (showing" << shown.size()
                   << ")";
}

void TransferPage::startTransfer()
{
    qCDebug(logUi) << "TransferPage::startTransfer() - Starting real transfer as sender";
    begin();
    clearCard(u"0 MB/s"_s, u"--"_s);
    m_running = true;
    m_engine->startTransfer();
}

void TransferPage::startReceiving()
{
    qCDebug(logUi) << "TransferPage::startReceiving() - Waiting for incoming data";
    begin();
    m_titleLabel->setText(tr("Waiting for Data..."));
    clearCard(tr("Waiting..."), u"-- GB"_s);
}

void TransferPage::resetForNewTransfer()
{
    qCDebug(logUi) << "TransferPage::resetForNewTransfer()";
    begin();
    clearCard(tr("Waiting..."), u"-- GB"_s);
    m_titleLabel->setText(tr("Waiting for Data..."));
    m_progress = TransferProgress();
}

void TransferPage::begin()
{
    m_running = m_isComplete = false;
    m_notice->tell(QString());
    m_files->clear();
    showPaused(false);
    showControls(true);
    showFailedCount({});
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
    const int percent = std::min(progress.overallPercent, MostBeforeTheEnd);
    m_progressCard->setProgress(percent);
    m_progressCard->setSpeed(formatSpeed(progress.bytesPerSecond));
    m_progressCard->setRemaining(formatTime(progress.remainingSeconds));
    m_progressCard->setSizes(formatSize(progress.transferredBytes), formatSize(progress.totalBytes));
    m_titleLabel->setText((isNewPC() ? tr("Receiving Data - %1%") : tr("Sending Data - %1%")).arg(percent));
    showFailedCount(m_engine->summary());
}

void TransferPage::onTransferCompleted(const MigrationReport &report)
{
    // Told in a queue: the page may show the next run by now.
    if (!std::exchange(m_isComplete, false))
        return;
    qCDebug(logUi) << "TransferPage::onTransferCompleted() - Success:" << report.filesSuccess
                   << "Failed:" << report.filesFailed;
    m_running = false;
    m_progressCard->setProgress(100);
    m_progressCard->setSpeed(u"--"_s);
    m_progressCard->setRemaining(u"00:00"_s);
    m_files->stop();
    Q_EMIT transferFinishedWithReport(report);
    Q_EMIT transferFinished();
}

/// Of a lost link the window says what was lost, and offers the way back.
void TransferPage::onRunEnded(const RunSummary &summary)
{
    // One that outlived its link has nothing to do with the page of the next.
    if (summary.end == RunEnd::LinkLost && m_engine->hasAcceptedLink()) {
        if (isNewPC() && m_running) {
            resetForNewTransfer();
            tellOfPast(arrivedFilesText(summary) + u'.');
        }
        return;
    }
    m_running = false;
    const bool isCancelled = summary.end == RunEnd::CancelledHere || summary.end == RunEnd::CancelledThere;
    if (isCancelled && isNewPC() && summary.total() > 0)
        tellOfPast(whatWasDone(summary));
    const bool isReset = summary.end == RunEnd::Reset && !isNewPC();
    if (summary.end != RunEnd::LinkLost && !isReset)
        return;
    m_titleLabel->setText(isReset ? printable(headlineOf(summary)) : tr("Connection lost"));
    if (isReset)
        m_notice->tell(arrivedFilesText(summary) + u'.', tr("Back to selection"));
    m_progressCard->setSpeed(u"--"_s);
    m_progressCard->setRemaining(noRemaining());
    m_files->stop();
    showFailedCount(m_engine->summary());
    showControls(false);
}

void TransferPage::onSpaceShort(qint64 needed, qint64 available, const QString &volume)
{
    m_tellsOfPast = false;
    m_notice->tell(tr("%1 are on their way, but only %2 are free on %3. Not everything will fit.")
                       .arg(formatSize(needed), formatSize(available), volume));
}

void TransferPage::onInstalling(const QString &name, int percent)
{
    if (isNewPC())
        m_titleLabel->setText(tr("Installing %1 - %2 %").arg(printable(name), QString::number(percent)));
    else
        m_titleLabel->setText(tr("%1 is installing...").arg(printable(m_engine->connectedPC().name)));
}

void TransferPage::onTransferFailed(const QString &reason)
{
    qCDebug(logUi) << "TransferPage::onTransferFailed():" << reason;
    m_running = false;
    m_titleLabel->setText(tr("Transfer Failed"));
    m_notice->tell(reason);
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
bool TransferPage::confirm(QMessageBox &question)
{
    question.setTextFormat(Qt::PlainText);
    question.setDefaultButton(QMessageBox::Cancel);
    question.button(QMessageBox::Cancel)->setText(tr("Continue Transfer"));
    question.setStyleSheet(cancelQuestionStyle());
    m_question = &question;
    m_runEnded = false;
    return question.exec() == QMessageBox::Ok && !m_runEnded;
}

bool TransferPage::letGo()
{
    if (!m_running)
        return true;
    if (m_question)
        return false;
    QMessageBox question(QMessageBox::Warning, tr("Close Zandrove"),
                         tr("A transfer is running. Closing the window cancels it."),
                         QMessageBox::Ok | QMessageBox::Cancel, this);
    question.setInformativeText(
        tr("What has arrived stays on the New PC, and nothing is deleted on the Old PC. A report is left in "
           "your documents."));
    question.button(QMessageBox::Ok)->setText(tr("Cancel and Close"));
    if (!confirm(question))
        return false;
    cancelRun();
    return true;
}

void TransferPage::cancelRun()
{
    if (!std::exchange(m_running, false))
        return;
    m_engine->cancelTransfer();
    const RunSummary summary = m_engine->summary();
    if (const QString problem = saveReport(summary, reportPathFor(summary)); !problem.isEmpty())
        qCWarning(logUi) << problem;
}

/// There is nothing left to cancel, and who ended it says what comes next.
void TransferPage::closeQuestion()
{
    m_runEnded = true;
    if (m_question)
        m_question->reject();
}

void TransferPage::onCancelClicked()
{
    QMessageBox question(QMessageBox::Warning, tr("Cancel Transfer"),
                         tr("Are you sure you want to cancel the transfer?"),
                         QMessageBox::Ok | QMessageBox::Cancel, this);
    question.setInformativeText(
        tr("All progress will be lost. Files that have arrived stay; nothing incomplete remains."));
    question.button(QMessageBox::Ok)->setText(tr("Yes, Cancel"));
    if (!confirm(question))
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

void TransferPage::onFileStarted(const QString &fileName)
{
    if (QThread::currentThread() != thread()) {
        qCWarning(logUi) << "onFileStarted called from non-GUI thread!";
        return;
    }
    m_running = true;
    if (std::exchange(m_tellsOfPast, false))
        m_notice->tell(QString());
    m_files->begin(fileName);
}

void TransferPage::onFileProgress(const QString &fileName, int percent)
{
    m_files->advance(fileName, percent);
}

void TransferPage::onFileCompleted(const QString &fileName)
{
    if (!isNewPC())
        m_files->markSent(fileName);
}

void TransferPage::onFileFailed(const QString &fileName, const QString &reason)
{
    if (!isNewPC()) // there the outcome follows, and a file that was there before hasn't failed
        m_files->fail(fileName, reason);
}

void TransferPage::onItemSettled(const ItemResult &item)
{
    m_files->settle(item);
}

} // namespace Zandrove
