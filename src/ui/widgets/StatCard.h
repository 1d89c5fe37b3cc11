#pragma once

#include <QString>
#include <QWidget>

class QLabel;

namespace Zandrove {

/// One number over its caption, 128 x 96.
class StatCard final : public QWidget
{
    Q_OBJECT

public:
    /// `type` chooses the colours: 0 green, 1 blue, 2 violet.
    explicit StatCard(int type, QWidget *parent = nullptr);

    void setValue(const QString &value);
    void setLabel(const QString &label);

private:
    void refreshAccessibleName();

    int m_type;
    QLabel *m_valueLabel = nullptr;
    QLabel *m_captionLabel = nullptr;
};

} // namespace Zandrove
