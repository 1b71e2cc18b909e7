#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/Keys.h"

namespace quorvel {

// A key-down that was kept from the frontmost application.
struct CapturedKey {
    KeyCode keyCode = 0;
    std::string character = "?"; // the first character it types; "?" for a key that types none
    std::uint64_t flags = 0;     // eventFlags, those that mean the same on every device

    bool operator==(const CapturedKey&) const = default;
};

using CapturedKeyHandler = std::function<void(const CapturedKey&)>;

CapturedKey capturedKeyFrom(const KeyEvent& event);

} // namespace quorvel
