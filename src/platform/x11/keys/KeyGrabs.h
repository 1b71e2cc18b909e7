#pragma once

#include <compare>
#include <map>
#include <set>

#include <xcb/xcb.h>

#include "platform/x11/keys/KeyMapping.h"

namespace quorvel::x11 {

class Connection;

struct KeyCombination {
    xcb_keycode_t keycode = 0;
    KeyState modifiers = 0;

    auto operator<=>(const KeyCombination&) const = default;
};

// Key combinations that come to this program wherever the keyboard is. Several of its parts may hold the same one; the
// server knows of one grab a program, so that the parts' claims are counted here.
class KeyGrabs {
public:
    using Combinations = std::set<KeyCombination>;

    // What becomes of further keys while a taken key is down: they all come here, or the keyboard stops after each one
    // until KeyboardGrab decides whether it goes on to the application.
    enum class Mode { swallowing, stopping };

    explicit KeyGrabs(Connection& connection) : connection(connection) {}
    KeyGrabs(const KeyGrabs&) = delete;
    KeyGrabs& operator=(const KeyGrabs&) = delete;
    ~KeyGrabs() = default;

    // Takes combinations, however many, in one round trip. Answers those that another program holds; of these nothing
    // is taken. One that is taken twice keeps its first mode.
    Combinations take(const Combinations& combinations, Mode mode);

    // Gives back what take() gave. Afterwards, keys that nobody holds any more go to the application again; a key that
    // is down stays here until it is released.
    void giveBack(const Combinations& combinations);

private:
    Connection& connection;
    std::map<KeyCombination, int> claims;
};

} // namespace quorvel::x11
