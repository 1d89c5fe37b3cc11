#include "pipeline/RunLink.h"

#include "peer/NetworkManager.h"

#include <QPointer>

namespace Zandrove {

RunLink RunLink::over(NetworkManager *network)
{
    RunLink link;
    if (!network)
        return link;
    const QPointer guarded(network);
    link.send = [guarded](Protocol::MessageType type, const QByteArray &payload) {
        if (guarded)
            guarded->sendCommand(type, payload);
    };
    link.acceptedNumber = [guarded] { return guarded ? guarded->acceptedLink() : 0; };
    link.peerName = [guarded] { return guarded ? guarded->connectedPC().name : QString(); };
    link.unsentBytes = network->pendingBytes();
    link.resumeReading = [guarded] {
        if (guarded)
            guarded->resumeReading();
    };
    link.watch = [guarded](const QObject *context, const std::function<void()> &onChange) {
        if (!guarded)
            return;
        QObject::connect(guarded, &NetworkManager::connected, context, onChange);
        QObject::connect(guarded, &NetworkManager::disconnected, context, onChange);
        QObject::connect(guarded, &NetworkManager::connectionFailed, context, onChange);
    };
    link.watchBreaks = [guarded](const QObject *context, const std::function<void()> &onBreak) {
        if (guarded)
            QObject::connect(guarded, &NetworkManager::linkBroke, context, onBreak);
    };
    link.setGate = [guarded](std::function<bool()> mayRead) {
        if (guarded)
            guarded->setReadGate(std::move(mayRead));
    };
    return link;
}

} // namespace Zandrove
