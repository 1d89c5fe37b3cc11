#pragma once

#include <QPointF>
#include <QWidget>

class QPropertyAnimation;

namespace Zandrove {

/// The animated display of a search, 200 x 200. Until start() it shows a still picture.
class RadarWidget final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double sweepAngle READ sweepAngle WRITE setSweepAngle)

public:
    explicit RadarWidget(QWidget *parent = nullptr);
    ~RadarWidget() override;

    /// Where the beam stands, in degrees clockwise from the top.
    [[nodiscard]] double sweepAngle() const { return m_sweepAngle; }
    void setSweepAngle(double degrees);

    /// Turns, once in three seconds, until stop(). Goes on as it is while it turns already. While it is
    /// hidden it rests, and goes on when it is shown again.
    void start();
    void stop();
    [[nodiscard]] bool isRunning() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void drawDial(QPainter &painter, const QPointF &centre, double radius) const;
    void drawSweep(QPainter &painter, const QPointF &centre, double radius) const;
    void drawHub(QPainter &painter, const QPointF &centre) const;

    double m_sweepAngle = 0.0;
    QPropertyAnimation *m_animation = nullptr;
};

} // namespace Zandrove
