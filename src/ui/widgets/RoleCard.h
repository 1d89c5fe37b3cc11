#pragma once

#include <QWidget>

class QLabel;

namespace Zandrove {

/// A big clickable choice between Old PC and New PC, 224 x 200. Selecting it is up to its owner.
class RoleCard final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)

public:
    /// `role` is a `Role`.
    explicit RoleCard(int role, QWidget *parent = nullptr);

    [[nodiscard]] bool isSelected() const { return m_selected; }
    void setSelected(bool selected);

Q_SIGNALS:
    /// A press of the left button, Space or Enter.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setupUi();
    void refreshTile();

    int m_role;
    QLabel *m_iconTile = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    bool m_selected = false;
    bool m_hovered = false;
};

} // namespace Zandrove
