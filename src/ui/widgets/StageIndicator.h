#pragma once

#include <QList>
#include <QWidget>

class QLabel;

namespace Zandrove {

/// The five stages of a transfer in a row.
class StageIndicator final : public QWidget
{
    Q_OBJECT

public:
    explicit StageIndicator(QWidget *parent = nullptr);

private:
    struct Stage
    {
        QWidget *circle = nullptr;
        QLabel *label = nullptr;
        QWidget *line = nullptr; ///< to the next stage; none behind the last
    };

    void addStage(const QString &name, bool isLast);

    QList<Stage> m_stages;
};

} // namespace Zandrove
