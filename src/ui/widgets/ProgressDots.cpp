#include "ui/widgets/ProgressDots.h"

#include "ui/Theme.h"

#include <QPainter>

namespace Zandrove {

namespace {

constexpr int DotSide = 8;
constexpr int PillWidth = 16;
constexpr int Gap = 8;

} // namespace

ProgressDots::ProgressDots(int count, QWidget *parent)
    : QWidget(parent)
    , m_count(count)
{
    setFixedHeight(16);
    setMinimumWidth(count * 20 - 8);
    refreshAccessibleName();
}

void ProgressDots::setCurrent(int current)
{
    m_current = current;
    refreshAccessibleName();
    update();
}

void ProgressDots::setCompleted(int completed)
{
    m_completed = completed;
    update();
}

void ProgressDots::refreshAccessibleName()
{
    setAccessibleName(tr("Step %1 of %2").arg(m_current + 1).arg(m_count));
}

void ProgressDots::paintEvent(QPaintEvent *)
{
    using namespace Theme::Colour;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const auto dotWidth = [this](int dot) { return dot == m_current ? PillWidth : DotSide; };
    int total = (m_count - 1) * Gap;
    for (int dot = 0; dot < m_count; ++dot)
        total += dotWidth(dot);

    int x = (width() - total) / 2;
    for (int dot = 0; dot < m_count; ++dot) {
        if (dot == m_current) {
            // Half of its width, not of its height, above the middle: it stands out of the row.
            painter.setBrush(QColor(Primary));
            painter.drawRoundedRect(x, height() / 2 - PillWidth / 2, PillWidth, DotSide, DotSide / 2,
                                    DotSide / 2);
        } else {
            painter.setBrush(QColor(dot <= m_completed ? Success : BorderStrong));
            painter.drawEllipse(x, height() / 2 - DotSide / 2, DotSide, DotSide);
        }
        x += dotWidth(dot) + Gap;
    }
}

} // namespace Zandrove
