#pragma once

#include <QLineEdit>

namespace Zandrove {

/// A box for one character of a code, 44 x 52. Whoever enters it types over what stands there, and Backspace
/// in an empty one goes back to the box before.
class CodeEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit CodeEdit(QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Zandrove
