#include "cli/ScanSession.h"

#include "core/engine/TransferEngine.h"

namespace Zandrove::Cli {

void ScanSession::start()
{
    const TransferEngine *source = &engine();
    connect(source, &TransferEngine::scanProgress, this, [this](int percent, const QString &item, int apps) {
        if (progressIsDue())
            output().scanning(percent, item, apps);
    });
    connect(source, &TransferEngine::scanCompleted, this, [this](const ScanResult &result) {
        output().inventory(result);
        finish(EverythingMoved);
    });
    connect(source, &TransferEngine::scanFailed, this, [this](const QString &reason) {
        output().error(reason);
        finish(RunFailed);
    });
    engine().setRole(options().role);
    engine().startScan();
}

void ScanSession::onInterrupt()
{
    engine().cancelScan();
    output().cancelled(Side::Here);
    finish(Cancelled);
}

} // namespace Zandrove::Cli
