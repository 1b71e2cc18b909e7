#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include <xcb/xcb.h>

namespace quorvel::bench {

// The least an X client needs for a global hot key: a connection, the first screen, atoms, key codes, passive grabs.
// Prints the reason and ends the program where something is missing.
class XcbSession {
public:
    XcbSession();
    XcbSession(const XcbSession&) = delete;
    XcbSession& operator=(const XcbSession&) = delete;
    ~XcbSession();

    xcb_connection_t* connection() const { return xcb; }
    const xcb_screen_t& screen() const { return *firstScreen; }
    xcb_window_t root() const { return firstScreen->root; }

    xcb_atom_t atom(std::string_view name) const;
    xcb_keycode_t keycode(std::uint32_t keysym) const;

    // Grabs the key with these modifiers, whatever Caps Lock and Num Lock are.
    void grabKey(xcb_keycode_t key, std::uint16_t modifiers) const;

    // Sends the window manager a request about a window.
    void sendToWindowManager(const xcb_client_message_event_t& request) const;

    // Calls `answer` for each press of a key that is grabbed; returns when the server is gone.
    void answerPresses(const std::function<void(const xcb_key_press_event_t&)>& answer) const;

private:
    xcb_connection_t* xcb = nullptr;
    xcb_screen_t* firstScreen = nullptr;
};

} // namespace quorvel::bench
