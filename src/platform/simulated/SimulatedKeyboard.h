#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "base/Keys.h"

namespace quorvel {

class SimulatedEventMonitors;
class SimulatedEventTaps;
class SimulatedHotKeys;
class SimulatedKeyboardLayout;
class SimulatedMainQueue;
class SimulatedOverlayWindows;
class SimulatedPreferencesUi;
class SimulatedWindowServer;

// The keyboard under its user's hands. A key goes to the hot key that claims it, else through the event taps, else to
// the window with the keyboard. All of it happens later, from the main queue.
class SimulatedKeyboard {
public:
    // The ports that keys pass.
    struct Route {
        SimulatedMainQueue& mainQueue;
        SimulatedKeyboardLayout& layout;
        SimulatedHotKeys& hotKeys;
        SimulatedEventTaps& eventTaps;
        SimulatedEventMonitors& eventMonitors;
        SimulatedOverlayWindows& overlayWindows;
        SimulatedPreferencesUi& preferencesUi;
        SimulatedWindowServer& windowServer;
    };

    explicit SimulatedKeyboard(const Route& route) : route(route) {}

    // Presses and holds a key. Without `characters` the layout tells what it types.
    void hold(KeyCode keyCode, std::uint64_t flags, std::optional<std::string> characters);
    // A held key repeats.
    void repeat(KeyCode keyCode);
    void release(KeyCode keyCode);

private:
    enum class Owner { hotKey, eventTap, focus };

    struct HeldKey {
        KeyEvent event;
        Owner owner = Owner::focus;
    };

    Owner press(const KeyEvent& event);
    void press(const KeyEvent& event, Owner firstOwner);
    void deliverToFocus(const KeyEvent& event);

    Route route;
    std::map<KeyCode, HeldKey> held;
};

} // namespace quorvel
