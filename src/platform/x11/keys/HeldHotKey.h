#pragma once

#include <compare>
#include <cstdint>

namespace quorvel::x11 {

// A hot key that a program has grabbed in every state of the locks: a key code and a mask of hotKeyModifiers.
struct HeldHotKey {
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;

    auto operator<=>(const HeldHotKey&) const = default;
};

} // namespace quorvel::x11
