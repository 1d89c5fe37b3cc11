#pragma once

#include "cli/Session.h"

namespace Zandrove::Cli {

/// Lists what can be moved from this PC, and ends. Needs no network and no other PC.
class ScanSession final : public Session
{
    Q_OBJECT

public:
    using Session::Session;

    void start() override;

protected:
    void onInterrupt() override;
};

} // namespace Zandrove::Cli
