#pragma once

#include <QPushButton>

namespace Zandrove {

/// A small drawn button of the window's own frame, 46 x 32.
class WinButton final : public QPushButton
{
    Q_OBJECT

public:
    enum Type : int { Minimize = 0, Maximize = 1, Restore = 2, Close = 3, Menu = 4 };

    explicit WinButton(Type type, QWidget *parent = nullptr);

    [[nodiscard]] int type() const { return m_type; }
    /// Another glyph for the same button; repaints.
    void setType(Type type);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawGlyph(QPainter &painter) const;

    int m_type;
};

} // namespace Zandrove
