#pragma once

#include <QString>

namespace Zandrove::Platform {

/// Gives the file `from` the name `to`, on the same volume. A file or a link that stands there is replaced in
/// one step: at no time is neither of them there. Where another program holds one of the two for a moment, as
/// virus scanners do, it is tried again for half a second. False where that failed; both are as they were
/// then, and lastErrorCode() says why.
[[nodiscard]] bool replaceFile(const QString &from, const QString &to);

} // namespace Zandrove::Platform
