#include "ui/widgets/RoleCard.h"

#include "core/common/Records.h"
#include "ui/Theme.h"
#include "ui/widgets/Labels.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int GlyphPixels = 36;
constexpr int TileRadius = 20;

} // namespace

RoleCard::RoleCard(int role, QWidget *parent)
    : SelectableCard({20,
                      role == OldPC ? Face{Theme::Colour::OrangeTint, Theme::Colour::Orange}
                                    : Face{Theme::Colour::SuccessTint, Theme::Colour::Teal},
                      {Theme::Colour::CardHover, Theme::Colour::BorderStrong},
                      {Theme::Colour::White, Theme::Colour::Border}},
                     parent)
    , m_role(role)
{
    setupUi();
    showSelected(false);
    setAccessibleName(m_titleLabel->text());
    setAccessibleDescription(m_subtitleLabel->text());
}

void RoleCard::setupUi()
{
    setFixedSize(224, 200);

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

void RoleCard::showSelected(bool selected)
{
    using namespace Theme::Colour;
    const QString roleGradient =
        m_role == OldPC ? Theme::gradient(OrangeLight, Danger) : Theme::gradient(TealLight, TealDark);
    setTileBackground(m_iconTile, GlyphPixels, TileRadius, selected ? roleGradient : QString(Hover));
}

} // namespace Zandrove
