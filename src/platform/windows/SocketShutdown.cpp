#include "platform/SocketShutdown.h"

#include <winsock2.h>

namespace Zandrove::Platform {

void endSending(qintptr descriptor)
{
    if (descriptor >= 0)
        ::shutdown(SOCKET(descriptor), SD_SEND);
}

} // namespace Zandrove::Platform
