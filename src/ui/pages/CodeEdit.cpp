#include "ui/pages/CodeEdit.h"

#include "ui/Theme.h"

#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

QString codeEditStyle()
{
    using namespace Theme::Colour;
    return u"QLineEdit { background: %1; color: %2; border: 2px solid %3; border-radius: 10px; padding: 0;"
           " font-size: 20px; font-weight: 600; }"
           " QLineEdit:focus { border-color: %4; }"_s.arg(White, Text, Border, Primary);
}

} // namespace

CodeEdit::CodeEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setFixedSize(44, 52);
    setMaxLength(1);
    setAlignment(Qt::AlignCenter);
    setStyleSheet(codeEditStyle());
}

void CodeEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    // The press of the mouse that brought the focus comes next and would take the selection away.
    QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void CodeEdit::keyPressEvent(QKeyEvent *event)
{
    auto *const before = qobject_cast<CodeEdit *>(previousInFocusChain());
    if (event->key() == Qt::Key_Backspace && text().isEmpty() && before)
        before->setFocus();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace Zandrove
