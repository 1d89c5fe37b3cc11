// TransferPage: what it is made of, and how it looks.

#include "ui/Theme.h"
#include "ui/pages/TransferPage.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/ProgressCard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int FileListHeight = 180;

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
    setupFileList();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 32, 40, 32);
    layout->setSpacing(16);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_progressCard);
    layout->addSpacing(8);
    layout->addWidget(makeLabel(tr("Current Files"), 14, Theme::Colour::Text, Theme::SemiBold));
    layout->addWidget(m_fileScroll);
    layout->addWidget(createControls());
    layout->addStretch();
}

void TransferPage::setupFileList()
{
    m_fileContainer = new QWidget;
    m_fileListLayout = new QVBoxLayout(m_fileContainer);
    m_fileListLayout->setContentsMargins(0, 0, 8, 0);
    m_fileListLayout->setSpacing(4);
    m_fileListLayout->addStretch();

    m_fileScroll = new QScrollArea;
    m_fileScroll->setFixedHeight(FileListHeight);
    m_fileScroll->setWidgetResizable(true);
    m_fileScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_fileScroll->setStyleSheet(Theme::scrollAreaStyle());
    m_fileScroll->setAccessibleName(tr("Current Files"));
    m_fileScroll->setWidget(m_fileContainer);
}

QWidget *TransferPage::createControls()
{
    m_pauseButton = makeButton(QString(), pauseLook());
    connect(m_pauseButton, &QPushButton::clicked, this, &TransferPage::onPauseClicked);
    m_cancelButton = makeButton(tr("Cancel"), cancelLook());
    connect(m_cancelButton, &QPushButton::clicked, this, &TransferPage::onCancelClicked);
    m_failedLabel = makeLabel(QString(), 13);
    auto *retryLink = new QPushButton(tr("Retry"));
    retryLink->setCursor(Qt::PointingHandCursor);
    retryLink->setStyleSheet(linkStyle());
    connect(retryLink, &QPushButton::clicked, this, &TransferPage::onRetryClicked);
    showPaused(false);
    showFailedCount(0);

    auto *controls = new QWidget;
    auto *layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_pauseButton);
    layout->addWidget(m_cancelButton);
    layout->addStretch();
    layout->addWidget(m_failedLabel);
    layout->addWidget(retryLink);
    return controls;
}

void TransferPage::showPaused(bool paused)
{
    m_isPaused = paused;
    m_pauseButton->setText(paused ? tr("▶ Resume") : tr("⏸ Pause"));
    m_pauseButton->setAccessibleName(paused ? tr("Resume") : tr("Pause"));
    m_pauseButton->setStyleSheet(Theme::buttonStyle(paused ? resumeLook() : pauseLook()));
}

void TransferPage::showFailedCount(int count)
{
    m_failedLabel->setText(tr("%1 failed").arg(count));
    m_failedLabel->setStyleSheet(
        Theme::textStyle(13, count > 0 ? Theme::Colour::DangerText : Theme::Colour::TextMuted));
}

} // namespace Zandrove
