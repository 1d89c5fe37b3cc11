#pragma once

#include <QColor>
#include <QWidget>

namespace Zandrove {

/// A ring that fills clockwise from the top, with the percent in its middle.
class CircleProgress final : public QWidget
{
    Q_OBJECT

public:
    explicit CircleProgress(QWidget *parent = nullptr);

    /// In percent; held within 0 to 100.
    void setValue(int value);
    void setColors(const QColor &track, const QColor &progress);
    /// The side of the square that the widget takes, in pixels.
    void setSize(int size);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_value = 0;
    int m_size = 144;
    int m_lineWidth = 8;
    QColor m_trackColor;
    QColor m_progressColor;
};

} // namespace Zandrove
