#include "ui/widgets/PCListItem.h"

#include "support/PrintableText.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int GlyphPixels = 24;
constexpr int TileRadius = 14;
constexpr int DotSide = 10;

} // namespace

PCListItem::PCListItem(QWidget *parent)
    : SelectableCard({14,
                      {Theme::Colour::BlueTint, Theme::Colour::Primary},
                      {Theme::Colour::Panel, Theme::Colour::Border},
                      {Theme::Colour::White, "transparent"_L1}},
                     parent)
{
    setupUi();
    showOnline(false);
}

void PCListItem::setupUi()
{
    setFixedHeight(80);

    m_iconTile = makeTile(u"💻"_s, GlyphPixels, 52, TileRadius, Theme::Colour::Border);
    m_statusDot = new QLabel;
    m_statusDot->setFixedSize(DotSide, DotSide);
    m_checkLabel = makeLabel(u"✓"_s, 18, Theme::Colour::Primary, Theme::Bold);
    m_checkLabel->hide();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(16);
    layout->addWidget(m_iconTile);
    layout->addLayout(createTexts(), 1);
    layout->addWidget(m_statusDot);
    layout->addWidget(m_checkLabel);
}

QBoxLayout *PCListItem::createTexts()
{
    m_nameLabel = new ElidedLabel(QString(), 15, Theme::Colour::Text, Theme::SemiBold);
    m_detailsLabel = new ElidedLabel(QString(), 12, Theme::Colour::TextMuted);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addStretch();
    texts->addWidget(m_nameLabel);
    texts->addWidget(m_detailsLabel);
    texts->addStretch();
    return texts;
}

void PCListItem::setPCInfo(const PCInfo &info)
{
    m_info = info;
    m_nameLabel->setText(printable(info.name));
    m_detailsLabel->setText(u"%1 | %2"_s.arg(printable(info.os), printable(info.ip)));
    setAccessibleName(m_nameLabel->text());
    setAccessibleDescription(m_detailsLabel->text() + u", "_s + (info.online ? tr("Online") : tr("Offline")));
    showOnline(info.online);
}

void PCListItem::showOnline(bool online)
{
    using namespace Theme::Colour;
    m_statusDot->setStyleSheet(Theme::boxStyle("QLabel"_L1, online ? Success : BorderStrong, DotSide / 2));
    setTileBackground(m_iconTile, GlyphPixels, TileRadius,
                      online ? Theme::gradient(PrimaryLight, Primary) : QString(Border));
    setPressable(online);
}

void PCListItem::showSelected(bool selected)
{
    m_checkLabel->setVisible(selected);
}

} // namespace Zandrove
