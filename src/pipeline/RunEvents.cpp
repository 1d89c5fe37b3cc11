#include "pipeline/RunEvents.h"

namespace Zandrove {

void RunEvents::repeat(const RunEvents *source)
{
    const auto also = [this, source](auto signal) { connect(source, signal, this, signal); };
    also(&RunEvents::paused);
    also(&RunEvents::resumed);
    also(&RunEvents::pausedByPeer);
    also(&RunEvents::resumedByPeer);
    also(&RunEvents::progressChanged);
    also(&RunEvents::failed);
    also(&RunEvents::itemSettled);
    also(&RunEvents::spaceShort);
    also(&RunEvents::installing);
    also(&RunEvents::fileTransferStarted);
    also(&RunEvents::fileTransferProgress);
    also(&RunEvents::fileTransferCompleted);
    also(&RunEvents::fileTransferFailed);
    also(&RunEvents::appInstallProgress);
    also(&RunEvents::appInstallFinished);
    also(&RunEvents::appOutcome);
    also(&RunEvents::settingOutcome);
    also(&RunEvents::settingsFinished);
}

} // namespace Zandrove
