#pragma once

#include <functional>
#include <vector>

#include "base/Keys.h"
#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/x11/overlays/SurfaceWindow.h"

namespace quorvel::x11 {

class Connection;
class Keyboard;
class TypingPause;

// An overlay window that takes the X input focus. Whoever orders it out gives the focus to somebody else.
class X11OverlayPanel final : public SurfaceWindow<OverlayPanel> {
public:
    X11OverlayPanel(OverlayStage& stage, const Keyboard& keyboard, TypingPause& typingPause,
                    const WindowDescription& description, std::function<void(const KeyEvent&)> onKeyDown);

    void makeKey() override;
    bool isKey() const override;
    void orderOut() override;

private:
    void takeFocus();
    void handleKeyPress(const xcb_key_press_event_t& event);
    void handleLoss();
    void handleFocusChange(const xcb_focus_in_event_t& event, bool isFocused);

    Connection& connection;
    const Keyboard& keyboard;
    TypingPause& typingPause;
    std::function<void(const KeyEvent&)> onKeyDown;
    bool hasFocus = false;
    Subscription keptFocus; // while it has the focus
    int expectedLosses = 0; // of the focus, to activations that are still on their way
    std::vector<Subscription> events;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
