#include "ui/widgets/RoleCard.h"

#include "core/common/Records.h"
#include "ui/Theme.h"
#include "ui/widgets/AccessibleCard.h"
#include "ui/widgets/CardPainting.h"
#include "ui/widgets/KeyboardFocus.h"
#include "ui/widgets/Labels.h"

#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int CornerRadius = 20;
constexpr int GlyphPixels = 36;
constexpr int TileRadius = 20;

} // namespace

RoleCard::RoleCard(int role, QWidget *parent)
    : QWidget(parent)
    , m_role(role)
{
    makeAccessibleChoice(this);
    setupUi();
    refreshTile();
    setAccessibleName(m_titleLabel->text());
    setAccessibleDescription(m_subtitleLabel->text());
    clickByKey(this, [this] { Q_EMIT clicked(); });
    KeyboardFocus::setArea(this, this, CornerRadius);
}

void RoleCard::setupUi()
{
    setFixedSize(224, 200);
    setCursor(Qt::PointingHandCursor);

    m_iconTile = makeTile(u"🖥️"_s, GlyphPixels, 80, TileRadius, Theme::Colour::Hover);
    m_titleLabel =
        makeCentredLabel(m_role == OldPC ? tr("Old PC") : tr("New PC"), 18, Theme::Colour::Text, Theme::Bold);
    m_subtitleLabel = makeCentredLabel(m_role == OldPC ? tr("Source / Sender") : tr("Target / Receiver"), 13,
                                       Theme::Colour::TextMuted);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(0);
    layout->addStretch();
    layout->addWidget(m_iconTile, 0, Qt::AlignHCenter);
    layout->addSpacing(14);
    layout->addWidget(m_titleLabel);
    layout->addSpacing(4);
    layout->addWidget(m_subtitleLabel);
    layout->addStretch();
}

void RoleCard::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    refreshTile();
    update();
    notifySelected(this);
}

void RoleCard::refreshTile()
{
    using namespace Theme::Colour;
    const QString roleGradient =
        m_role == OldPC ? Theme::gradient(OrangeLight, Danger) : Theme::gradient(TealLight, TealDark);
    setTileBackground(m_iconTile, GlyphPixels, TileRadius, m_selected ? roleGradient : QString(Hover));
}

void RoleCard::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked();
    else
        QWidget::mousePressEvent(event);
}

void RoleCard::enterEvent(QEnterEvent *)
{
    m_hovered = true;
    update();
}

void RoleCard::leaveEvent(QEvent *)
{
    m_hovered = false;
    update();
}

void RoleCard::paintEvent(QPaintEvent *)
{
    using namespace Theme::Colour;
    if (m_selected && m_role == OldPC)
        paintCard(this, CornerRadius, OrangeTint, Orange);
    else if (m_selected)
        paintCard(this, CornerRadius, SuccessTint, Teal);
    else if (m_hovered)
        paintCard(this, CornerRadius, CardHover, BorderStrong);
    else
        paintCard(this, CornerRadius, White, Border);
}

} // namespace Zandrove
