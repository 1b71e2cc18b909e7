#pragma once

#include <vector>

#include <xcb/xcb.h>

#include "support/KeyInjector.h"
#include "support/XClient.h"

namespace quorvel::xtest {

struct KeyCombination {
    std::vector<KeyInjector::Modifier> modifiers;
    xcb_keysym_t keysym = 0;
};

// Shows whether another program still holds keys, by taking them for a moment.
class Grabs {
public:
    explicit Grabs(XClient& client) : client(client) {}

    bool isKeyboardFree();
    bool isPointerFree();

    // With NumLock and CapsLock off.
    bool isFree(const KeyCombination& combination);

    // Wait until what a program grabbed is free again; throw HarnessError when it stays grabbed.
    void waitUntilKeyboardIsFree();
    void waitUntilFree(const KeyCombination& combination);

private:
    XClient& client;
};

} // namespace quorvel::xtest
