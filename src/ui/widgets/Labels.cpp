#include "ui/widgets/Labels.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace Zandrove {

QLabel *makeLabel(const QString &text, int pixels, QLatin1StringView colour, int weight, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setStyleSheet(Theme::textStyle(pixels, colour, weight));
    return label;
}

QLabel *makeCentredLabel(const QString &text, int pixels, QLatin1StringView colour, int weight,
                         QWidget *parent)
{
    QLabel *label = makeLabel(text, pixels, colour, weight, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

QLabel *makeTile(const QString &glyph, int glyphPixels, int side, int radius, const QString &background,
                 QWidget *parent)
{
    auto *tile = new QLabel(parent);
    tile->setTextFormat(Qt::PlainText);
    tile->setText(glyph);
    tile->setAlignment(Qt::AlignCenter);
    tile->setFixedSize(side, side);
    setTileBackground(tile, glyphPixels, radius, background);
    return tile;
}

void setTileBackground(QLabel *tile, int glyphPixels, int radius, const QString &background)
{
    // A text font would do where it has the picture, but in black and white.
    tile->setStyleSheet(
        u"QLabel { %1 font-size: %2px; font-family: \"Segoe UI Emoji\", \"Noto Color Emoji\", sans-serif; }"_s
            .arg(Theme::boxProperties(background, radius), QString::number(glyphPixels)));
}

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? u"<span>"_s + text.toHtmlEscaped() + u"</span>"_s : text;
}

} // namespace Zandrove
