#include "ui/widgets/ElidedLabel.h"

#include "ui/widgets/Labels.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace Zandrove {

namespace {

/// `text` on one line.
QString singleLine(QString text)
{
    for (const char16_t lineBreak : {u'\n', u'\r', u'\u2028', u'\u2029'})
        text.replace(QChar(lineBreak), u' ');
    return text;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

ElidedLabel::ElidedLabel(const QString &text, int pixels, QLatin1StringView colour, int weight,
                         QWidget *parent)
    : ElidedLabel(parent)
{
    setText(text);
    setStyleSheet(Theme::textStyle(pixels, colour, weight));
}

void ElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    m_elideMode = mode;
    update();
}

QSize ElidedLabel::sizeHint() const
{
    ensurePolished(); // the font is the style sheet's
    const QMargins margins = contentsMargins();
    return QSize(fontMetrics().horizontalAdvance(singleLine(text())) + 1, fontMetrics().height())
        .grownBy(margins);
}

QSize ElidedLabel::minimumSizeHint() const
{
    constexpr int LeastCharacters = 4;
    const QSize hint = sizeHint();
    return {qMin(hint.width(), LeastCharacters * fontMetrics().averageCharWidth()), hint.height()};
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(singleLine(text()), m_elideMode, contentsRect().width());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shownText() != singleLine(text())) {
        // Not as a tool tip of this widget, which would take over the label's own look.
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(text()));
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    style()->drawItemText(&painter, contentsRect(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())), palette(),
                          isEnabled(), shownText(), foregroundRole());
}

} // namespace Zandrove
