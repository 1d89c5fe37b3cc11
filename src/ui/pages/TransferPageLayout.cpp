// TransferPage: what it is made of, and how it looks.

#include "core/engine/TransferEngine.h"
#include "support/RunTexts.h"
#include "ui/Theme.h"
#include "ui/pages/TransferPage.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/NoticeBar.h"
#include "ui/widgets/ProgressCard.h"
#include "ui/widgets/TransferFileList.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

Theme::ButtonLook controlLook(QLatin1StringView background, QLatin1StringView text, QLatin1StringView hover)
{
    Theme::ButtonLook look;
    look.background = background;
    look.text = text;
    look.hover = hover;
    look.padding = "10px 20px"_L1;
    return look;
}

Theme::ButtonLook pauseLook()
{
    return controlLook(Theme::Colour::Amber, Theme::Colour::AmberText, Theme::Colour::AmberHover);
}

Theme::ButtonLook resumeLook()
{
    return controlLook(Theme::Colour::SuccessSoftTint, Theme::Colour::SuccessTextDark,
                       Theme::Colour::SuccessSoftHover);
}

Theme::ButtonLook cancelLook()
{
    return controlLook(Theme::Colour::DangerTint, Theme::Colour::DangerText, Theme::Colour::DangerHover);
}

QString linkStyle()
{
    return u"QPushButton { background: transparent; border: none; color: %1; font-size: 13px; "
           u"text-decoration: "
           "underline; padding: 4px; }"_s.arg(Theme::Colour::Primary);
}

QPushButton *makeButton(const QString &text, const Theme::ButtonLook &look)
{
    auto *button = new QPushButton(text);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(Theme::buttonStyle(look));
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred); // one height, whatever the glyphs
    return button;
}

} // namespace

void TransferPage::setupUi()
{
    m_titleLabel = makeLabel(tr("Transferring Data"), 20, Theme::Colour::Text, Theme::Bold);
    m_progressCard = new ProgressCard;
    m_notice = new NoticeBar;
    m_files = new TransferFileList;
    m_files->setAccessibleName(tr("Current Files"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 32, 40, 32);
    layout->setSpacing(16);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_notice);
    layout->addWidget(m_progressCard);
    layout->addSpacing(8);
    layout->addWidget(makeLabel(tr("Current Files"), 14, Theme::Colour::Text, Theme::SemiBold));
    layout->addWidget(m_files);
    layout->addWidget(createControls());
    layout->addStretch();
}

QWidget *TransferPage::createControls()
{
    m_pauseButton = makeButton(QString(), pauseLook());
    connect(m_pauseButton, &QPushButton::clicked, this, &TransferPage::onPauseClicked);
    m_cancelButton = makeButton(tr("Cancel"), cancelLook());
    connect(m_cancelButton, &QPushButton::clicked, this, &TransferPage::onCancelClicked);
    m_failedLabel = makeLabel(QString(), 13);
    m_retryLink = new QPushButton(tr("Retry"));
    m_retryLink->setCursor(Qt::PointingHandCursor);
    m_retryLink->setStyleSheet(linkStyle());
    connect(m_retryLink, &QPushButton::clicked, this, &TransferPage::onRetryClicked);
    showPaused(false);
    showFailedCount({});

    auto *controls = new QWidget;
    auto *layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_pauseButton);
    layout->addWidget(m_cancelButton);
    layout->addStretch();
    layout->addWidget(m_failedLabel);
    layout->addWidget(m_retryLink);
    return controls;
}

void TransferPage::showPaused(bool paused)
{
    m_isPaused = paused;
    m_pauseButton->setText(paused ? tr("▶ Resume") : tr("⏸ Pause"));
    m_pauseButton->setAccessibleName(paused ? tr("Resume") : tr("Pause"));
    m_pauseButton->setStyleSheet(Theme::buttonStyle(paused ? resumeLook() : pauseLook()));
}

void TransferPage::showControls(bool shown)
{
    for (QWidget *control : {m_pauseButton, m_cancelButton, m_retryLink})
        control->setVisible(shown);
}

void TransferPage::tellOfPast(const QString &text)
{
    m_notice->tell(text);
    m_tellsOfPast = true;
}

/// What failed of all that is to be moved, which may grow with every snapshot.
void TransferPage::showFailedCount(const RunSummary &summary)
{
    int count = 0;
    for (const OutcomeCounts &counts : {summary.files, summary.apps, summary.settings})
        count += counts.failed + counts.notConfirmed;
    if (std::exchange(m_failedShown, count) == count)
        return;
    m_failedLabel->setText(tr("%1 failed").arg(countText(count)));
    m_failedLabel->setStyleSheet(
        Theme::textStyle(13, count > 0 ? Theme::Colour::DangerText : Theme::Colour::TextMuted));
}

} // namespace Zandrove
