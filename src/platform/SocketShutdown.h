#pragma once

#include <QtGlobal>

namespace Zandrove::Platform {

/// Tells the peer of a connected TCP socket that nothing more will be sent, and leaves the receiving
/// direction open. `descriptor` as the socket class gives it; an invalid one is ignored.
void endSending(qintptr descriptor);

} // namespace Zandrove::Platform
