#include "ui/widgets/TransferFileItem.h"

#include "support/PrintableText.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int BarHeight = 4;
constexpr int GlyphPixels = 12;
constexpr int NamePixels = 13;

struct StatusLook
{
    QString glyph;
    QLatin1StringView glyphColour;
    QLatin1StringView nameColour;
    int nameWeight;
    QLatin1StringView background;
    QLatin1StringView border;
};

StatusLook lookOf(TransferFileItem::Status status)
{
    using namespace Theme::Colour;
    switch (status) {
    case TransferFileItem::Active:
        return {u"●"_s, Primary, TextSecondary, Theme::Medium, BlueTint, BlueBorder};
    case TransferFileItem::Success:
        return {u"✓"_s, Theme::Colour::Success, TextSecondary, Theme::Regular, SuccessTint, {}};
    case TransferFileItem::Failed:
        return {u"✕"_s, Danger, TextSecondary, Theme::Regular, DangerRow, {}};
    case TransferFileItem::Pending:
        break;
    }
    return {u"○"_s, BorderStrong, TextFaint, Theme::Regular, Panel, {}};
}

} // namespace

TransferFileItem::TransferFileItem(QWidget *parent)
    : QWidget(parent)
{
    setupUi();
    setStatus(Pending);
}

void TransferFileItem::setupUi()
{
    setFixedHeight(48);
    setObjectName(u"TransferFileItem"_s);
    setAttribute(Qt::WA_StyledBackground);

    m_statusLabel = makeLabel(QString(), GlyphPixels);
    m_statusLabel->setFixedWidth(16);
    m_nameLabel = new ElidedLabel(QString(), NamePixels);
    m_nameLabel->setElideMode(Qt::ElideMiddle);
    m_sizeLabel = makeLabel(QString(), 11, Theme::Colour::TextFaint);
    m_progressBar = new QProgressBar;
    m_progressBar->setTextVisible(false);
    m_progressBar->setStyleSheet(Theme::progressBarStyle(BarHeight));
    m_progressBar->hide();

    auto *texts = new QHBoxLayout;
    texts->setSpacing(8);
    texts->addWidget(m_statusLabel);
    texts->addWidget(m_nameLabel, 1);
    texts->addWidget(m_sizeLabel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(4);
    layout->addLayout(texts);
    layout->addWidget(m_progressBar);
}

void TransferFileItem::setFileName(const QString &fileName)
{
    m_fileName = fileName;
    m_nameLabel->setText(printable(fileName));
    setAccessibleName(m_nameLabel->text());
    m_progressBar->setAccessibleName(m_nameLabel->text());
}

void TransferFileItem::setSizeText(const QString &text)
{
    m_sizeLabel->setText(text);
}

void TransferFileItem::setStatus(Status status)
{
    // Progress tells the status again and again, and style sheets are dear.
    if (status == m_status && !m_statusLabel->text().isEmpty())
        return;
    m_status = status;
    const StatusLook look = lookOf(status);
    m_statusLabel->setText(look.glyph);
    m_statusLabel->setStyleSheet(Theme::textStyle(GlyphPixels, look.glyphColour));
    m_nameLabel->setStyleSheet(Theme::textStyle(NamePixels, look.nameColour, look.nameWeight));
    setStyleSheet(Theme::boxStyle("#TransferFileItem"_L1, look.background, 8, look.border));
    m_progressBar->setVisible(status == Active);
}

void TransferFileItem::setProgress(int percent)
{
    if (m_status == Active)
        m_progressBar->setValue(percent);
}

} // namespace Zandrove
