#pragma once

#include <cstdint>
#include <string>

namespace quorvel {

// A macOS virtual key code: it names a physical key by its position on an ANSI keyboard. Settings keep these codes on
// every platform; adapters translate them.
using KeyCode = int;

namespace keyCodes {
inline constexpr KeyCode a = 0;
inline constexpr KeyCode tab = 48;
inline constexpr KeyCode escape = 53;
inline constexpr KeyCode leftArrow = 123;
inline constexpr KeyCode rightArrow = 124;
inline constexpr KeyCode downArrow = 125;
inline constexpr KeyCode upArrow = 126;
} // namespace keyCodes

// Modifier masks as global hot keys store them.
namespace hotKeyModifiers {
inline constexpr std::uint32_t command = 0x100;
inline constexpr std::uint32_t shift = 0x200;
inline constexpr std::uint32_t option = 0x800;
inline constexpr std::uint32_t control = 0x1000;
} // namespace hotKeyModifiers

// Modifier flags as key events carry them.
namespace eventFlags {
inline constexpr std::uint64_t capsLock = 0x10000;
inline constexpr std::uint64_t shift = 0x20000;
inline constexpr std::uint64_t control = 0x40000;
inline constexpr std::uint64_t option = 0x80000;
inline constexpr std::uint64_t command = 0x100000;
// The low 16 bits tell left from right keys and the like; only the bits above mean the same on every device.
inline constexpr std::uint64_t deviceIndependentMask = 0xFFFF0000;
} // namespace eventFlags

// The hot-key mask of the modifiers that an event's flags hold; other flags are ignored.
constexpr std::uint32_t hotKeyModifiersOf(std::uint64_t flags)
{
    std::uint32_t modifiers = 0;
    modifiers |= (flags & eventFlags::command) != 0 ? hotKeyModifiers::command : 0U;
    modifiers |= (flags & eventFlags::shift) != 0 ? hotKeyModifiers::shift : 0U;
    modifiers |= (flags & eventFlags::option) != 0 ? hotKeyModifiers::option : 0U;
    modifiers |= (flags & eventFlags::control) != 0 ? hotKeyModifiers::control : 0U;
    return modifiers;
}

// One key-down as a platform reports it.
struct KeyEvent {
    KeyCode keyCode = 0;
    std::string characters;  // what the key types in the current keyboard layout with the held modifiers; may be empty
    std::uint64_t flags = 0; // eventFlags of the modifiers a person holds; locks and what belongs to a key never occur
};

} // namespace quorvel
