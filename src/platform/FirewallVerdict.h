#pragma once

#include "platform/Firewall.h"

namespace Zandrove::Platform {

/// What may become of something that comes in, as far as a list of rules has been read.
struct FirewallVerdict
{
    bool mayPass = false;
    bool mayEnd = false;

    void add(FirewallVerdict other)
    {
        mayPass = mayPass || other.mayPass;
        mayEnd = mayEnd || other.mayEnd;
    }

    [[nodiscard]] Passage passage() const
    {
        if (mayPass == mayEnd)
            return Passage::Unknown;
        return mayPass ? Passage::Open : Passage::Closed;
    }
};

} // namespace Zandrove::Platform
