#pragma once

#include <QAccessible>

class QWidget;

namespace Zandrove {

/// Makes `card`, a drawn widget with the property `selected` and the signal `clicked()`, known to a screen
/// reader as one of several choices: its role is `role`, its state follows the property, and it can be
/// pressed. Its name is its accessible name.
void makeAccessibleChoice(QWidget *card, QAccessible::Role role = QAccessible::RadioButton);

/// Tells a screen reader that the property `selected` of such a card has changed.
void notifySelected(QWidget *card);

} // namespace Zandrove
