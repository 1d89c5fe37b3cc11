#pragma once

#include <QWidget>

namespace Zandrove {

/// Where the user is in a row of steps: a dot for each, a pill for the current one.
class ProgressDots final : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressDots(int count, QWidget *parent = nullptr);

    /// The step that the user is at, from 0.
    void setCurrent(int current);
    /// The last step that is done, -1 for none.
    void setCompleted(int completed);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refreshAccessibleName();

    int m_count;
    int m_current = 0;
    int m_completed = -1;
};

} // namespace Zandrove
