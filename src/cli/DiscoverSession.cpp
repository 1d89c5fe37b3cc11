#include "cli/DiscoverSession.h"

#include "cli/Notices.h"
#include "core/engine/TransferEngine.h"

#include <chrono>

using namespace std::chrono_literals;

namespace Zandrove::Cli {

namespace {

constexpr auto ChangeInterval = 1000ms; // a peer's new code enters the table without a signal

} // namespace

DiscoverSession::DiscoverSession(const Options &options, TransferEngine &engine, Output &output,
                                 QObject *parent)
    : Session(options, engine, output, parent)
{
    connect(&m_changeTimer, &QTimer::timeout, this, &DiscoverSession::showChangedCodes);
}

void DiscoverSession::start()
{
    TransferEngine *source = &engine();
    connect(source, &TransferEngine::pcDiscovered, this, &DiscoverSession::show);
    connect(source, &TransferEngine::pcLost, this, [this](const QString &id, quint64 key) {
        m_codes.remove(key);
        output().peerLost(id, key);
    });
    connect(source, &TransferEngine::connectionRequested, this, [this](const QString &name) {
        refuseLastRequest();
        output().refused(name, tr("this PC is only looking around."));
    });
    engine().setRole(options().role);
    engine().setMode(options().mode);
    auto *notices = new Notices(engine(), output(), {}, this);
    engine().startDiscovery();
    notices->lookingBegins();
    m_changeTimer.start(ChangeInterval);
    if (options().seconds)
        QTimer::singleShot(*options().seconds, this, [this] { finish(EverythingMoved); });
}

void DiscoverSession::onInterrupt()
{
    finish(Cancelled);
}

void DiscoverSession::show(const PCInfo &pc)
{
    m_codes.insert(pc.key, pc.verifyCode);
    output().peer(pc);
}

void DiscoverSession::showChangedCodes()
{
    const QList<PCInfo> peers = engine().discoveredPCs();
    for (const PCInfo &pc : peers) {
        if (m_codes.value(pc.key) != pc.verifyCode)
            show(pc);
    }
}

} // namespace Zandrove::Cli
