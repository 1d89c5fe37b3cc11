#include "ui/pages/PageCard.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace Colour = Theme::Colour;

QVBoxLayout *makePageCard(QWidget *card, const QString &background)
{
    constexpr int Radius = 16;
    card->setObjectName(u"Card"_s);
    card->setAttribute(Qt::WA_StyledBackground);
    card->setStyleSheet(Theme::boxStyle("#Card"_L1, background, Radius));
    auto *layout = new QVBoxLayout(card);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);
    return layout;
}

QString linkButtonStyle()
{
    Theme::ButtonLook look;
    look.background = "transparent"_L1;
    look.text = Colour::Primary;
    look.hoverText = Colour::PrimaryHover;
    look.disabledText = Colour::TextFaint;
    look.fontPixels = 12;
    look.padding = "4px 8px"_L1;
    return Theme::buttonStyle(look);
}

QString quietButtonStyle()
{
    Theme::ButtonLook look;
    look.background = Colour::White;
    look.hover = Colour::Hover;
    look.text = Colour::TextSecondary;
    look.disabledText = Colour::TextFaint;
    look.border = Colour::Border;
    look.fontPixels = 13;
    look.padding = "6px 14px"_L1;
    return Theme::buttonStyle(look);
}

QPushButton *makeSmallButton(const QString &text, const QString &style)
{
    auto *button = new QPushButton(text);
    button->setStyleSheet(style);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

} // namespace Zandrove
