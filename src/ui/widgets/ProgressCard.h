#pragma once

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace Zandrove {

/// The state of a transfer: percent, speed, remaining time, sizes, and a bar.
class ProgressCard final : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressCard(QWidget *parent = nullptr);

    /// The bar takes its length from the width that it has at the time of the call.
    void setProgress(int percent);
    void setSpeed(const QString &speed);
    void setRemaining(const QString &remaining);
    void setSizes(const QString &transferred, const QString &total);

private:
    void setupUi();
    [[nodiscard]] QHBoxLayout *createNumbers();
    [[nodiscard]] QWidget *createBar();

    QLabel *m_percentLabel = nullptr;
    QLabel *m_speedLabel = nullptr;
    QLabel *m_remainingLabel = nullptr;
    QLabel *m_transferredLabel = nullptr;
    QLabel *m_totalLabel = nullptr;
    QWidget *m_barTrack = nullptr;
    QWidget *m_barFill = nullptr;
};

} // namespace Zandrove
