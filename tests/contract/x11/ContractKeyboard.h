#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include <xcb/xcb.h>

#include "base/Keys.h"
#include "platform/x11/keys/Keyboard.h"
#include "support/KeyInjector.h"
#include "support/XClient.h"

namespace quorvel::contract {

// The keyboard of a display as a person types on it and as other programs hear it.
class ContractKeyboard {
public:
    // The keyboard tells which of the server's key codes is which key.
    ContractKeyboard(const xtest::XServer& server, xtest::KeyInjector& injector, const x11::Keyboard& keyboard);
    ContractKeyboard(const ContractKeyboard&) = delete;
    ContractKeyboard& operator=(const ContractKeyboard&) = delete;
    ~ContractKeyboard();

    // Keys with eventFlags; release() lets go of the modifiers that hold() pressed. A held key repeats once a second:
    // often enough to be waited for, and too seldom to come unawaited.
    void hold(KeyCode keyCode, std::uint64_t flags);
    void release(KeyCode keyCode);

    // Notes from now on which keys arrive in a window of any program.
    void listenTo(xcb_window_t window);
    std::vector<KeyCode> keysReceivedBy(xcb_window_t window);

    // Another program takes a combination: a key code and a mask of hotKeyModifiers.
    void takeHotKeyElsewhere(std::uint32_t keyCode, std::uint32_t modifiers);

private:
    void repeatSlowly();
    void sync();
    std::uint8_t codeOf(KeyCode keyCode) const;

    xtest::KeyInjector& injector;
    const x11::Keyboard& keyboard;
    xcb_connection_t* other; // of the other programs
    std::vector<xtest::KeyInjector::Modifier> heldModifiers;
    std::map<xcb_window_t, std::vector<KeyCode>> received;
};

} // namespace quorvel::contract
