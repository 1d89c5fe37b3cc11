#pragma once

#include "ui/Theme.h"

#include <QString>

class QLabel;
class QWidget;

namespace Zandrove {

/// A label that shows `text` as it is, never as markup: size in pixels, colour
/// and weight as in Theme::textStyle().
[[nodiscard]] QLabel *makeLabel(const QString &text, int pixels,
                                QLatin1StringView colour = Theme::Colour::Text, int weight = Theme::Regular,
                                QWidget *parent = nullptr);

/// The same, with the text centred and wrapped where it does not fit.
[[nodiscard]] QLabel *makeCentredLabel(const QString &text, int pixels,
                                       QLatin1StringView colour = Theme::Colour::Text,
                                       int weight = Theme::Regular, QWidget *parent = nullptr);

/// A tile with a picture or a glyph in its middle: a fixed square of `side` pixels with round corners, over a
/// colour or a Theme::gradient().
[[nodiscard]] QLabel *makeTile(const QString &glyph, int glyphPixels, int side, int radius,
                               const QString &background, QWidget *parent = nullptr);
/// Another background for such a tile.
void setTileBackground(QLabel *tile, int glyphPixels, int radius, const QString &background);

/// `text` as a tool tip that shows it as it is, also where it looks like markup.
[[nodiscard]] QString plainToolTip(const QString &text);

} // namespace Zandrove
