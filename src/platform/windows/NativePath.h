#pragma once

#include <QString>

namespace Zandrove::Platform {

/// `path` for the system's own calls: absolute, with backslashes, and marked so that it may be longer than
/// 260 characters.
[[nodiscard]] QString nativePath(const QString &path);

/// The text as the system's own calls take it. Lives no longer than `text`.
[[nodiscard]] inline const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

} // namespace Zandrove::Platform
