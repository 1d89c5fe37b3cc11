#pragma once

class QBoxLayout;
class QVBoxLayout;
class QWidget;

namespace Zandrove {

/// Gives `page` a column in its middle, at most `maximumWidth` pixels wide with its margins, and returns the
/// layout of the column.
[[nodiscard]] QVBoxLayout *createCentredContent(QWidget *page, int maximumWidth);

/// A gap of this many pixels, less only where a text that wraps leaves no room for it.
void addGap(QBoxLayout *layout, int pixels);

} // namespace Zandrove
