#pragma once

namespace Zandrove {

/// Whether this copy of the program is registered: a yes or no. This copy always is; another answer is that
/// of a class derived from this one.
class License
{
public:
    License() = default;
    virtual ~License() = default;
    License(const License &) = delete;
    License &operator=(const License &) = delete;

    /// The licence of this copy, one for the process.
    [[nodiscard]] static License &ofThisCopy();

    [[nodiscard]] virtual bool isRegistered() const { return true; }

    /// The user's wish to register. True when the copy is registered afterwards.
    [[nodiscard]] virtual bool registerCopy() { return isRegistered(); }
};

} // namespace Zandrove
