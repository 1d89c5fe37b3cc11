#include "ui/widgets/TransferFileItem.h"

#include "support/PrintableText.h"
#include "ui/Theme.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int RowHeight = 48;
constexpr int Margin = 12;
constexpr qreal CornerRadius = 8.0;
constexpr int GlyphSide = 16;
constexpr int Spacing = 8;
constexpr int BarHeight = 4;
constexpr int GlyphPixels = 12;
constexpr int NamePixels = 13;
constexpr int TextPixels = 11;

struct StatusLook
{
    char16_t glyph;
    QLatin1StringView glyphColour;
    QLatin1StringView disc; ///< behind the glyph; none when empty
    QLatin1StringView nameColour;
    QLatin1StringView background;
    QLatin1StringView border;
};

StatusLook lookOf(TransferFileItem::Status status)
{
    using namespace Theme::Colour;
    switch (status) {
    case TransferFileItem::Active:
        return {u'●', Primary, {}, TextSecondary, BlueTint, BlueBorder};
    case TransferFileItem::Success:
        return {u'✓', White, SuccessTextDark, TextSecondary, SuccessTint, {}};
    case TransferFileItem::Failed:
        return {u'✕', DangerText, {}, TextSecondary, DangerRow, {}};
    case TransferFileItem::Sent:
        return {u'✓', TextMuted, {}, TextSecondary, Panel, {}};
    case TransferFileItem::WasThere:
        return {u'=', TextMuted, {}, TextMuted, Panel, {}};
    case TransferFileItem::WasDifferent:
        return {u'≠', AmberText, {}, TextSecondary, OrangeTint, {}};
    case TransferFileItem::Pending:
        break;
    }
    return {u'○', TextMuted, {}, TextMuted, Panel, {}};
}

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    return font;
}

} // namespace

TransferFileItem::TransferFileItem(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(u"TransferFileItem"_s);
    setFixedHeight(RowHeight);
}

void TransferFileItem::setFileName(const QString &fileName)
{
    if (fileName == m_fileName)
        return;
    m_fileName = fileName;
    setAccessibleName(printable(fileName));
    update();
}

void TransferFileItem::setSizeText(const QString &text)
{
    if (text == m_sizeText)
        return;
    m_sizeText = text;
    refreshDescription();
}

void TransferFileItem::setStatus(Status status)
{
    if (status == m_status)
        return;
    m_status = status;
    refreshDescription();
}

void TransferFileItem::setProgress(int percent)
{
    if (m_status != Active || percent == m_percent)
        return;
    m_percent = percent;
    refreshDescription();
}

void TransferFileItem::refreshDescription()
{
    setAccessibleDescription(m_status == Active ? u"%1%"_s.arg(m_percent) : printable(m_sizeText));
    update();
}

void TransferFileItem::paintEvent(QPaintEvent *)
{
    const StatusLook look = lookOf(m_status);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(look.border.isEmpty() ? QPen(Qt::NoPen) : QPen(QColor(look.border)));
    painter.setBrush(QColor(look.background));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);

    QRect line = rect().adjusted(Margin, 0, -Margin, 0);
    if (m_status == Active) {
        const QRect bar(Margin, height() - 8 - BarHeight, line.width(), BarHeight);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(Theme::Colour::Border));
        painter.drawRoundedRect(bar, 2.0, 2.0);
        painter.setBrush(QColor(Theme::Colour::Primary));
        painter.drawRoundedRect(QRectF(bar.x(), bar.y(), bar.width() * m_percent / 100.0, BarHeight), 2.0,
                                2.0);
        line.setBottom(bar.top());
    }
    const QRect glyph(line.left(), line.center().y() - GlyphSide / 2, GlyphSide, GlyphSide);
    if (!look.disc.isEmpty()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(look.disc));
        painter.drawEllipse(glyph);
    }
    painter.setPen(QColor(look.glyphColour));
    painter.setFont(sized(font(), look.disc.isEmpty() ? GlyphPixels : TextPixels));
    painter.drawText(glyph, Qt::AlignCenter, QString(QChar(look.glyph)));
    line.setLeft(glyph.right() + Spacing);

    // A reason gives way to the name down to half of the line.
    painter.setFont(sized(font(), TextPixels));
    const QString text =
        painter.fontMetrics().elidedText(printable(m_sizeText), Qt::ElideRight, line.width() / 2);
    painter.setPen(QColor(look.nameColour));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, text);
    line.setRight(line.right() - painter.fontMetrics().horizontalAdvance(text) - Spacing);
    QFont nameFont = sized(font(), NamePixels);
    if (m_status == Active)
        nameFont.setWeight(QFont::Medium);
    painter.setFont(nameFont);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(printable(m_fileName), Qt::ElideMiddle, line.width()));
}

} // namespace Zandrove
