#pragma once

#include <QLatin1StringView>

class QWidget;

namespace Zandrove {

/// Fills `card` with a round rectangle that leaves 1 pixel free on each side, and strokes it 2 pixels wide.
/// Both are colours as style sheets write them. For use in the card's paint event.
void paintCard(QWidget *card, int cornerRadius, QLatin1StringView fill, QLatin1StringView border);

} // namespace Zandrove
