#include "ui/pages/ScanningPage.h"

#include "core/engine/TransferEngine.h"
#include "ui/widgets/CircleProgress.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/Labels.h"

#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

// The page is drawn before the part of the scan that runs on this thread begins.
constexpr auto DelayBeforeScan = 200ms;
constexpr auto ResultTime = 800ms;

} // namespace

ScanningPage::ScanningPage(TransferEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
{
    setupUi();
    connect(m_engine, &TransferEngine::scanProgress, this, &ScanningPage::onScanProgress);
    connect(m_engine, &TransferEngine::scanCompleted, this, &ScanningPage::onScanCompleted);
}

void ScanningPage::setupUi()
{
    m_subtitleLabel =
        makeCentredLabel(tr("Finding apps, files and settings to transfer..."), 14, Theme::Colour::TextMuted);
    m_subtitleLabel->setObjectName(u"subtitleLabel"_s);
    m_circleProgress = new CircleProgress;
    m_circleProgress->setSize(160);
    m_circleProgress->setColors(Theme::Colour::Border, Theme::Colour::Primary);
    auto *status = new ElidedLabel(tr("Scanning system..."), 12, Theme::Colour::TextFaint);
    status->setElideMode(Qt::ElideMiddle);
    status->setAlignment(Qt::AlignCenter);
    m_statusLabel = status;
    m_statusLabel->setObjectName(u"statusLabel"_s);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSpacing(0);
    layout->addStretch();
    layout->addWidget(makeCentredLabel(tr("Scanning Your PC"), 24, Theme::Colour::Text, Theme::Bold));
    layout->addSpacing(8);
    layout->addWidget(m_subtitleLabel);
    layout->addSpacing(48);
    layout->addWidget(m_circleProgress, 0, Qt::AlignHCenter);
    layout->addSpacing(48);
    layout->addLayout(createCounts());
    m_appCountLabel->setObjectName(u"appCountLabel"_s);
    m_accountCountLabel->setObjectName(u"accountCountLabel"_s);
    layout->addSpacing(32);
    layout->addWidget(m_statusLabel);
    layout->addStretch();
}

QBoxLayout *ScanningPage::createCounts()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(64);
    row->addStretch();
    m_appCountLabel = addCount(row, tr("Applications"), Theme::Colour::Primary);
    m_accountCountLabel = addCount(row, tr("Accounts"), Theme::Colour::Violet);
    row->addStretch();
    return row;
}

/// A number over its caption at the end of `row`. Returns the number.
QLabel *ScanningPage::addCount(QBoxLayout *row, const QString &caption, QLatin1StringView colour)
{
    QLabel *number = makeLabel(u"0"_s, 32, colour, Theme::Bold);
    number->setAccessibleDescription(caption);
    number->setAlignment(Qt::AlignCenter);
    QLabel *captionLabel = makeLabel(caption, 13, Theme::Colour::TextMuted);
    captionLabel->setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(number);
    column->addWidget(captionLabel);
    row->addLayout(column);
    return number;
}

void ScanningPage::startScan()
{
    m_circleProgress->setValue(0);
    m_appCountLabel->setNum(0);
    m_accountCountLabel->setNum(0);
    m_statusLabel->setText(tr("Scanning system..."));
    m_subtitleLabel->setText(tr("Finding apps, files and settings to transfer..."));
    QTimer::singleShot(DelayBeforeScan, m_engine, &TransferEngine::startScan);
}

void ScanningPage::cancelScan()
{
    m_engine->cancelScan();
}

void ScanningPage::onScanProgress(int percent, const QString &currentItem, int appsFound, int,
                                  int accountsFound)
{
    m_circleProgress->setValue(percent);
    m_statusLabel->setText(currentItem);
    m_appCountLabel->setNum(appsFound);
    m_accountCountLabel->setNum(accountsFound);
}

void ScanningPage::onScanCompleted(const ScanResult &result)
{
    m_circleProgress->setValue(100);
    m_appCountLabel->setNum(int(result.apps.size()));
    m_accountCountLabel->setNum(int(result.accounts.size()));
    m_statusLabel->setText(tr("Scan complete!"));
    m_subtitleLabel->setText(tr("Found items ready to transfer"));
    QTimer::singleShot(ResultTime, this, &ScanningPage::scanFinished);
}

} // namespace Zandrove
