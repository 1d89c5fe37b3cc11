#pragma once

#include "core/common/Records.h"

#include <QWidget>

class QBoxLayout;
class QLabel;

namespace Zandrove {

class ElidedLabel;

/// The row of a PC that was found, 80 pixels high. Selecting it is up to its owner.
class PCListItem final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)

public:
    explicit PCListItem(QWidget *parent = nullptr);

    void setPCInfo(const PCInfo &info);
    [[nodiscard]] const PCInfo &pcInfo() const { return m_info; }

    [[nodiscard]] bool isSelected() const { return m_selected; }
    void setSelected(bool selected);

Q_SIGNALS:
    /// A press of the left button, Space or Enter, while the PC is online.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setupUi();
    [[nodiscard]] QBoxLayout *createTexts();
    void showOnline(bool online);

    PCInfo m_info;
    QLabel *m_iconTile = nullptr;
    ElidedLabel *m_nameLabel = nullptr;
    ElidedLabel *m_detailsLabel = nullptr;
    QLabel *m_statusDot = nullptr;
    QLabel *m_checkLabel = nullptr;
    bool m_selected = false;
    bool m_hovered = false;
};

} // namespace Zandrove
