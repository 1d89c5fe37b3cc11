#include "platform/Identity.h"

#include <qt_windows.h>

#include <array>

namespace Zandrove::Platform {

namespace {

constexpr std::size_t ComputerNameRoom = 16; // characters, with the terminating zero
constexpr std::size_t UserNameRoom = 257;

} // namespace

std::optional<QString> shortComputerName()
{
    std::array<wchar_t, ComputerNameRoom> name = {};
    auto room = DWORD(name.size());
    if (GetComputerNameW(name.data(), &room) == 0)
        return std::nullopt;
    return QString::fromWCharArray(name.data());
}

QString userName()
{
    std::array<wchar_t, UserNameRoom> name = {};
    auto room = DWORD(name.size());
    if (GetUserNameW(name.data(), &room) == 0)
        return qEnvironmentVariable("USER");
    return QString::fromWCharArray(name.data());
}

} // namespace Zandrove::Platform
