#pragma once

#include <QWidget>

class QCheckBox;
class QHBoxLayout;

namespace Zandrove {

/// What the rows with a check box have in common: a press of the left button anywhere flips the box, and the
/// row is filled by whether it is checked or hovered.
class CheckRow : public QWidget
{
    Q_OBJECT

public:
    [[nodiscard]] bool isChecked() const;
    /// Works also while the user cannot flip the box.
    void setChecked(bool checked);

Q_SIGNALS:
    void checkStateChanged(bool checked);

protected:
    CheckRow(int fixedHeight, QWidget *parent);

    /// The row's layout, which begins with the box.
    [[nodiscard]] QHBoxLayout *rowLayout() const { return m_layout; }
    /// What a screen reader says for the row.
    void setBoxName(const QString &name, const QString &description = QString());
    /// Whether the user can flip the box.
    void setBoxEnabled(bool enabled);

    void mousePressEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QHBoxLayout *m_layout = nullptr;
    QCheckBox *m_checkBox = nullptr;
    bool m_hovered = false;
};

} // namespace Zandrove
