#pragma once

#include "platform/x11/keys/KeyEvents.h"
#include "platform/x11/keys/KeyGrabs.h"
#include "platform/x11/keys/Keyboard.h"
#include "platform/x11/keys/KeyboardGrab.h"
#include "platform/x11/keys/X11EventMonitors.h"
#include "platform/x11/keys/X11EventTaps.h"
#include "platform/x11/keys/X11HotKeys.h"
#include "platform/x11/keys/X11KeyboardLayout.h"

namespace quorvel::x11 {

// The adapters for keys and presses, and what they share.
struct KeyAdapters {
    KeyAdapters(Connection& connection, Keyboard& keyboard, MainQueue& mainQueue)
        : events(connection, keyboard),
          grabs(connection),
          keyboardGrab(connection, keyboard, events, mainQueue),
          hotKeys(keyboard, grabs, events),
          eventTaps(keyboard, grabs, keyboardGrab, events),
          eventMonitors(connection, keyboard),
          keyboardLayout(keyboard)
    {}

    KeyEvents events;
    KeyGrabs grabs;
    KeyboardGrab keyboardGrab;

    X11HotKeys hotKeys;
    X11EventTaps eventTaps;
    X11EventMonitors eventMonitors;
    X11KeyboardLayout keyboardLayout;
};

} // namespace quorvel::x11
