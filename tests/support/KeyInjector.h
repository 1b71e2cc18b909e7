#pragma once

#include <cstdint>
#include <vector>

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "support/XClient.h"

namespace quorvel::xtest {

// Types on the display's keyboard through the XTEST extension, as a person would: modifiers down, key down, key up,
// modifiers up.
class KeyInjector {
public:
    enum class Modifier { command, option, control, shift };

    explicit KeyInjector(XClient& client);

    // Releases what it still holds.
    ~KeyInjector();
    KeyInjector(const KeyInjector&) = delete;
    KeyInjector& operator=(const KeyInjector&) = delete;

    // By keysym, such as XKB_KEY_o: the key that types it unshifted in the current layout.
    void tap(xcb_keysym_t keysym) { tap({}, keysym); }
    void tap(const std::vector<Modifier>& modifiers, xcb_keysym_t keysym);
    void press(xcb_keysym_t keysym) { pressCode(codeOf(keysym)); }
    void release(xcb_keysym_t keysym) { releaseCode(codeOf(keysym)); }

    // By the server's key code: a physical key.
    void tapCode(const std::vector<Modifier>& modifiers, std::uint8_t code);
    void pressCode(std::uint8_t code);
    void releaseCode(std::uint8_t code);

    void pressModifier(Modifier modifier);
    void releaseModifier(Modifier modifier);

    // A mouse click at a place of the root.
    void click(int x, int y, std::uint8_t button = 1);
    void movePointer(int x, int y);
    void pressButton(std::uint8_t button = 1);
    void releaseButton(std::uint8_t button = 1);

    std::uint8_t codeOf(xcb_keysym_t keysym);

private:
    void send(std::uint8_t type, std::uint8_t detail, std::int16_t x = 0, std::int16_t y = 0);

    XClient& client;
    std::vector<std::uint8_t> held;
};

} // namespace quorvel::xtest
