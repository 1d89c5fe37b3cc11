#include "platform/SocketShutdown.h"

#include <sys/socket.h>

namespace Zandrove::Platform {

void endSending(qintptr descriptor)
{
    if (descriptor >= 0)
        ::shutdown(int(descriptor), SHUT_WR);
}

} // namespace Zandrove::Platform
