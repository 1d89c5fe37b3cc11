#pragma once

#include <QLatin1StringView>
#include <QWidget>

namespace Zandrove {

/// What the drawn cards have in common that are one choice of several: hovering, being pressed by mouse, key
/// or screen reader, the selected state and the painting. Selecting a card is up to its owner.
///
/// A screen reader hears of it as of a radio button. Its name is its accessible name.
class SelectableCard : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)

public:
    [[nodiscard]] bool isSelected() const { return m_selected; }
    void setSelected(bool selected);

Q_SIGNALS:
    /// A press of the left button, Space or Enter, while the card can be pressed.
    void clicked();

protected:
    /// A round rectangle that leaves 1 pixel free on each side, with a border 2 pixels wide; both are colours
    /// as style sheets write them.
    struct Face
    {
        QLatin1StringView fill;
        QLatin1StringView border;
    };

    /// Its faces by its state, of which selected wins over hovered. The radius of the corners is in pixels.
    struct Look
    {
        int cornerRadius;
        Face selected;
        Face hovered;
        Face plain;
    };

    SelectableCard(const Look &look, QWidget *parent);

    /// Whether a press is a click, which the cursor shows; it is from the start.
    void setPressable(bool pressable);
    /// Called when the state has changed, to show it in what the card holds.
    virtual void showSelected(bool selected) = 0;

    void mousePressEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void press();

    Look m_look;
    bool m_pressable = true;
    bool m_selected = false;
    bool m_hovered = false;
};

} // namespace Zandrove
