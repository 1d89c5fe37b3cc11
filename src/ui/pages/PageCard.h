#pragma once

#include "ui/Theme.h"

#include <QString>

class QPushButton;
class QVBoxLayout;
class QWidget;

namespace Zandrove {

/// Makes `card` a card of the page of connections: a box with round corners over a colour or a
/// Theme::gradient(). Returns its layout.
[[nodiscard]] QVBoxLayout *makePageCard(QWidget *card, const QString &background = Theme::Colour::Panel);

/// The style sheets of a button that looks like a link, and of a small white one with a border.
[[nodiscard]] QString linkButtonStyle();
[[nodiscard]] QString quietButtonStyle();
/// A button of one of these styles.
[[nodiscard]] QPushButton *makeSmallButton(const QString &text, const QString &style);

} // namespace Zandrove
