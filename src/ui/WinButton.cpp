#include "ui/WinButton.h"

#include "ui/Theme.h"

#include <QPainter>

namespace Zandrove {

WinButton::WinButton(Type type, QWidget *parent)
    : QPushButton(parent)
    , m_type(type)
{
    setFixedSize(46, 32);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    // By keyboard only: a click is to leave the focus within the page.
    setFocusPolicy(Qt::TabFocus);
}

void WinButton::setType(Type type)
{
    m_type = type;
    update();
}

void WinButton::paintEvent(QPaintEvent * /*event*/)
{
    constexpr int HoverAlpha = 25;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool hovered = underMouse();
    if (hovered)
        painter.fillRect(rect(), m_type == Close ? QColor(Theme::Colour::CloseHover)
                                                 : QColor(255, 255, 255, HoverAlpha));
    painter.setPen(QPen(QColor(hovered ? Theme::Colour::White : Theme::Colour::SlateFaint), 1.0));
    painter.setBrush(Qt::NoBrush);
    drawGlyph(painter);
}

void WinButton::drawGlyph(QPainter &painter) const
{
    const int cx = width() / 2;
    const int cy = height() / 2;
    switch (m_type) {
    case Minimize:
        painter.drawLine(cx - 5, cy, cx + 5, cy);
        break;
    case Maximize:
        painter.drawRect(cx - 5, cy - 5, 10, 10);
        break;
    case Restore:
        painter.drawRect(cx - 3, cy - 5, 8, 8);
        painter.fillRect(cx - 5, cy - 3, 8, 8, QColor(Theme::Colour::Slate));
        painter.drawRect(cx - 5, cy - 3, 8, 8);
        break;
    case Close:
        painter.drawLine(cx - 4, cy - 4, cx + 4, cy + 4);
        painter.drawLine(cx + 4, cy - 4, cx - 4, cy + 4);
        break;
    case Menu:
        for (const int y : {cy - 4, cy, cy + 4})
            painter.drawLine(cx - 6, y, cx + 6, y);
        break;
    default:
        break;
    }
}

} // namespace Zandrove
