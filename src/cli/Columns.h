#pragma once

#include <QString>

namespace Zandrove::Cli {

/// Columns that `text` takes on a terminal: wide East Asian characters two, combining ones none.
[[nodiscard]] int columnsOf(const QString &text);

/// As much of `text` as fits into `columns`, with "…" in place of a cut end.
[[nodiscard]] QString fitted(const QString &text, int columns);

/// `text` in lines of at most `columns`, the lines behind the first indented by `indent` blanks, which count.
/// A line ends at a blank, or where a wide character meets its neighbour and the rules
/// of its language allow it.
[[nodiscard]] QString wrapped(const QString &text, int indent, int columns);

} // namespace Zandrove::Cli
