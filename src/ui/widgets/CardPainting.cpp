#include "ui/widgets/CardPainting.h"

#include <QPainter>
#include <QWidget>

namespace Zandrove {

void paintCard(QWidget *card, int cornerRadius, QLatin1StringView fill, QLatin1StringView border)
{
    QPainter painter(card);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(fill));
    painter.setPen(QPen(QColor(border), 2));
    painter.drawRoundedRect(card->rect().adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
}

} // namespace Zandrove
