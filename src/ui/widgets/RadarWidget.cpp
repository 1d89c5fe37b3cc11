#include "ui/widgets/RadarWidget.h"

#include "ui/Theme.h"

#include <QConicalGradient>
#include <QPainter>
#include <QPropertyAnimation>

#include <chrono>
#include <cmath>

using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr int Side = 200;
constexpr auto TurnTime = 3000ms;
constexpr double HubRadius = 28.0;
constexpr double PulsesPerTurn = 3.0;

QColor blue(int alpha)
{
    QColor colour(Theme::Colour::Primary);
    colour.setAlpha(alpha);
    return colour;
}

} // namespace

RadarWidget::RadarWidget(QWidget *parent)
    : QWidget(parent)
    , m_animation(new QPropertyAnimation(this, "sweepAngle", this))
{
    setFixedSize(Side, Side);
    setAttribute(Qt::WA_TranslucentBackground);
    m_animation->setStartValue(0.0);
    m_animation->setEndValue(360.0);
    m_animation->setDuration(int(TurnTime.count()));
    m_animation->setLoopCount(-1);
}

RadarWidget::~RadarWidget()
{
    m_animation->stop();
}

void RadarWidget::setSweepAngle(double degrees)
{
    m_sweepAngle = degrees;
    update();
}

void RadarWidget::start()
{
    if (!isRunning())
        m_animation->start();
}

void RadarWidget::stop()
{
    m_animation->stop();
}

bool RadarWidget::isRunning() const
{
    return m_animation->state() != QAbstractAnimation::Stopped;
}

void RadarWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_animation->state() == QAbstractAnimation::Paused)
        m_animation->resume();
}

void RadarWidget::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_animation->state() == QAbstractAnimation::Running)
        m_animation->pause();
}

void RadarWidget::paintEvent(QPaintEvent *)
{
    const QPointF centre(width() * 0.5, height() * 0.5);
    const double radius = qMin(width(), height()) * 0.5 - 4.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawDial(painter, centre, radius);
    drawSweep(painter, centre, radius);
    drawHub(painter, centre);
}

void RadarWidget::drawDial(QPainter &painter, const QPointF &centre, double radius) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Theme::Colour::SkyTint));
    painter.drawEllipse(centre, radius, radius);

    struct Ring
    {
        double scale;
        int alpha;
    };
    painter.setBrush(Qt::NoBrush);
    for (const auto &[scale, alpha] : {Ring{1.0, 40}, Ring{0.75, 60}, Ring{0.5, 80}, Ring{0.25, 100}}) {
        painter.setPen(QPen(blue(alpha), 1));
        painter.drawEllipse(centre, radius * scale, radius * scale);
    }

    painter.setPen(QPen(blue(30), 1));
    painter.drawLine(centre - QPointF(0, radius), centre + QPointF(0, radius));
    painter.drawLine(centre - QPointF(radius, 0), centre + QPointF(radius, 0));
}

void RadarWidget::drawSweep(QPainter &painter, const QPointF &centre, double radius) const
{
    QConicalGradient tail(0, 0, 0);
    tail.setColorAt(0.0, blue(120));
    tail.setColorAt(0.08, blue(80));
    tail.setColorAt(0.15, blue(40));
    tail.setColorAt(0.25, blue(0));
    tail.setColorAt(1.0, blue(0));

    painter.save();
    painter.translate(centre);
    painter.rotate(m_sweepAngle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tail);
    painter.drawEllipse(QPointF(0, 0), radius - 2.0, radius - 2.0);
    painter.setPen(QPen(blue(200), 2));
    painter.drawLine(QPointF(0, 0), QPointF(0, 4.0 - radius));
    painter.restore();
}

void RadarWidget::drawHub(QPainter &painter, const QPointF &centre) const
{
    const double pulse = std::fmod(m_sweepAngle / 360.0 * PulsesPerTurn, 1.0);
    const double pulseRadius = pulse * 20.0 + HubRadius;
    painter.setPen(Qt::NoPen);
    painter.setBrush(blue(int((1.0 - pulse) * 80.0)));
    painter.drawEllipse(centre, pulseRadius, pulseRadius);

    const QPointF corner(HubRadius, HubRadius);
    QLinearGradient fill(centre - corner, centre + corner);
    fill.setColorAt(0.0, QColor(Theme::Colour::PrimaryLight));
    fill.setColorAt(1.0, QColor(Theme::Colour::Primary));
    painter.setBrush(fill);
    painter.drawEllipse(centre, HubRadius, HubRadius);

    painter.save();
    painter.translate(centre);
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(-12, -10, 24, 16), 2, 2);
    painter.drawLines({QLineF(-6, 6, -6, 10), QLineF(6, 6, 6, 10), QLineF(-10, 10, 10, 10)});
    painter.restore();
}

} // namespace Zandrove
