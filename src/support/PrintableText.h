#pragma once

#include <QString>

namespace Zandrove {

/// `text` without the characters that would steer a terminal, break a line or reorder what stands around
/// them: names come from other PCs. Each is shown as U+FFFD.
[[nodiscard]] QString printable(const QString &text);

} // namespace Zandrove
