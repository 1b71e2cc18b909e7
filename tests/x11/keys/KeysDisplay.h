#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/x11/Connection.h"
#include "platform/x11/ConnectionSource.h"
#include "platform/x11/keys/KeyAdapters.h"
#include "support/TestDisplay.h"
#include "support/TestWindow.h"
#include "x11/windows/AdapterLoop.h"

namespace quorvel::x11 {

// A display with the adapters for keys, and a window of somebody else that has the keyboard.
class KeysDisplay {
public:
    KeysDisplay();

    // Waits for the loop.
    void waitFor(const std::string& what, const std::function<bool()>& predicate) { loop.waitFor(what, predicate); }

    // Turns until everything that the server has sent so far is handled, and what that caused as well.
    void settle();

    // Drops what the server has sent so far and nobody has handled, as when a keyboard is pulled out.
    void loseEvents();

    // Runs a command on the display and waits for its end.
    void run(const std::vector<std::string>& words);

    // Held keys repeat from now on, quickly.
    void makeKeysRepeat();

    // A person who locks.
    void toggleNumLock() { display.keyboard.tap(XKB_KEY_Num_Lock); }
    void toggleCapsLock() { display.keyboard.tap(XKB_KEY_Caps_Lock); }

    // The keysyms' key codes that the window has received as presses.
    std::vector<std::uint8_t> pressesInWindow();

    // Another program takes a combination, or the whole keyboard.
    bool holdElsewhere(std::uint16_t modifiers, xcb_keysym_t keysym);
    bool holdKeyboardElsewhere();
    void giveKeyboardBackElsewhere();

    std::uint8_t codeOf(xcb_keysym_t keysym) { return display.keyboard.codeOf(keysym); }

    xtest::TestDisplay display;
    AdapterLoop loop;
    std::unique_ptr<Connection> connection;
    ConnectionSource source;
    std::unique_ptr<Keyboard> keyboard;
    KeyAdapters adapters;
    xtest::TestWindow window;
    xtest::XClient other; // another program
};

KeyCodeSet allKeyCodes();

} // namespace quorvel::x11
