#include "ui/widgets/ModeCard.h"

#include "ui/Log.h"
#include "ui/Theme.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int IconSide = 28;
constexpr int IconScale = 4; // sharp on any screen

/// The picture in an SVG file, null where there is none.
QPixmap renderSvg(const QString &path)
{
    QSvgRenderer renderer(path);
    if (!renderer.isValid()) {
        qCDebug(logUi) << "Invalid SVG:" << path;
        return {};
    }
    QPixmap pixmap(IconSide * IconScale, IconSide * IconScale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                           QPainter::TextAntialiasing);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(IconScale);
    return pixmap;
}

} // namespace

ModeCard::ModeCard(QWidget *parent)
    : SelectableCard({16,
                      {Theme::Colour::BlueTint, Theme::Colour::Primary},
                      {Theme::Colour::CardHover, Theme::Colour::BorderStrong},
                      {Theme::Colour::White, Theme::Colour::Border}},
                     parent)
{
    setupUi();
    showSelected(false);
}

void ModeCard::setupUi()
{
    setFixedHeight(88);

    m_iconTile = new QWidget;
    m_iconTile->setFixedSize(48, 48);
    m_iconTile->setAttribute(Qt::WA_StyledBackground);
    m_iconLabel = new QLabel;
    m_iconLabel->setFixedSize(IconSide, IconSide);
    auto *tileLayout = new QHBoxLayout(m_iconTile);
    tileLayout->setContentsMargins(0, 0, 0, 0);
    tileLayout->addWidget(m_iconLabel, 0, Qt::AlignCenter);

    m_titleLabel = makeLabel(QString(), 15, Theme::Colour::Text, Theme::SemiBold);
    m_subtitleLabel = makeLabel(QString(), 13, Theme::Colour::TextMuted);
    for (QLabel *label : {m_titleLabel, m_subtitleLabel})
        label->setWordWrap(true);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addStretch();
    texts->addWidget(m_titleLabel);
    texts->addWidget(m_subtitleLabel);
    texts->addStretch();

    m_badgeLabel = new QLabel;
    m_badgeLabel->setTextFormat(Qt::PlainText);
    m_badgeLabel->hide();
    m_checkLabel = makeLabel(u"✓"_s, 16, Theme::Colour::Primary);
    m_checkLabel->hide();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 8, 20, 8);
    layout->setSpacing(16);
    layout->addWidget(m_iconTile);
    layout->addLayout(texts, 1);
    layout->addWidget(m_badgeLabel, 0, Qt::AlignVCenter);
    layout->addWidget(m_checkLabel);
}

void ModeCard::setIcons(const QString &unselectedPath, const QString &selectedPath)
{
    m_unselectedIcon = unselectedPath;
    m_selectedIcon = selectedPath;
    showSelected(isSelected());
}

void ModeCard::setTitle(const QString &title)
{
    m_titleLabel->setText(title);
    refreshAccessibleName();
}

void ModeCard::setSubtitle(const QString &subtitle)
{
    m_subtitleLabel->setText(subtitle);
    refreshAccessibleName();
}

void ModeCard::setBadge(const QString &text, const QString &kind)
{
    using namespace Theme::Colour;
    const bool green = kind == "green"_L1;
    m_badgeLabel->setText(text);
    m_badgeLabel->setStyleSheet(u"QLabel { %1 color: %2; font-size: 11px; padding: 4px 8px; }"_s.arg(
        Theme::boxProperties(green ? SuccessTint : Hover, 4), green ? SuccessText : TextMuted));
    m_badgeLabel->setVisible(!text.isEmpty());
    refreshAccessibleName();
}

void ModeCard::refreshAccessibleName()
{
    setAccessibleName(m_titleLabel->text());
    QStringList details = {m_subtitleLabel->text(), m_badgeLabel->text()};
    details.removeAll(QString());
    setAccessibleDescription(details.join(u", "_s));
}

void ModeCard::showSelected(bool selected)
{
    m_checkLabel->setVisible(selected);
    m_iconTile->setStyleSheet(u"QWidget { %1 } QLabel { background: transparent; }"_s.arg(
        Theme::boxProperties(selected ? Theme::Colour::Primary : Theme::Colour::Hover, 12)));
    const QString &path = selected ? m_selectedIcon : m_unselectedIcon;
    if (path.isEmpty())
        return;
    const QPixmap icon = renderSvg(path);
    if (!icon.isNull())
        m_iconLabel->setPixmap(icon);
}

} // namespace Zandrove
