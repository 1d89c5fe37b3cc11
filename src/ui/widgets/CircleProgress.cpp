#include "ui/widgets/CircleProgress.h"

#include "ui/Theme.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

// QPainter counts a sixteenth of a degree, from three o'clock, anticlockwise.
constexpr int Top = 90 * 16;
constexpr int FullCircle = 360 * 16;

} // namespace

CircleProgress::CircleProgress(QWidget *parent)
    : QWidget(parent)
    , m_trackColor(Theme::Colour::Border)
    , m_progressColor(Theme::Colour::Primary)
{
    setSize(m_size);
    setValue(m_value);
}

void CircleProgress::setValue(int value)
{
    m_value = qBound(0, value, 100);
    setAccessibleDescription(u"%1%"_s.arg(m_value));
    update();
}

void CircleProgress::setColors(const QColor &track, const QColor &progress)
{
    m_trackColor = track;
    m_progressColor = progress;
    update();
}

void CircleProgress::setSize(int size)
{
    m_size = size;
    setFixedSize(size, size);
}

void CircleProgress::paintEvent(QPaintEvent *)
{
    const int side = qMin(width(), height());
    const QRectF ring(m_lineWidth * 0.5, m_lineWidth * 0.5, side - m_lineWidth, side - m_lineWidth);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    painter.setPen(QPen(m_trackColor, m_lineWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(ring);
    if (m_value > 0) {
        painter.setPen(QPen(m_progressColor, m_lineWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(ring, Top, -(m_value * FullCircle / 100));
    }

    QFont font = painter.font();
    font.setPixelSize(qMax(1, side / 4));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor(Theme::Colour::Text));
    painter.drawText(ring, Qt::AlignCenter, u"%1%"_s.arg(m_value));
}

} // namespace Zandrove
