#include "platform/x11/overlays/X11OverlayPanel.h"

#include <utility>

#include "platform/x11/Connection.h"
#include "platform/x11/keys/Keyboard.h"
#include "platform/x11/overlays/OverlayStage.h"
#include "platform/x11/windows/TypingPause.h"

namespace quorvel::x11 {

X11OverlayPanel::X11OverlayPanel(OverlayStage& stage, const Keyboard& keyboard, TypingPause& typingPause,
                                 const WindowDescription& description, std::function<void(const KeyEvent&)> onKeyDown)
    : SurfaceWindow(stage, description),
      connection(stage.connection),
      keyboard(keyboard),
      typingPause(typingPause),
      onKeyDown(std::move(onKeyDown))
{
    surface.keepWindow();
    surface.setEventMask(XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_FOCUS_CHANGE);
    events.push_back(connection.addHandler<xcb_key_press_event_t>(
        XCB_KEY_PRESS, [this](const xcb_key_press_event_t& event) { handleKeyPress(event); }));
    events.push_back(connection.addHandler<xcb_focus_in_event_t>(
        XCB_FOCUS_IN, [this](const xcb_focus_in_event_t& event) { handleFocusChange(event, true); }));
    events.push_back(connection.addHandler<xcb_focus_out_event_t>(
        XCB_FOCUS_OUT, [this](const xcb_focus_out_event_t& event) { handleFocusChange(event, false); }));
}

void X11OverlayPanel::makeKey()
{
    if (!isVisible()) {
        return;
    }
    // What the window manager was asked before takes the focus away yet, perhaps more than once. Who asks again has
    // even activated an application meanwhile.
    constexpr int focusChangesOfAnActivation = 3;
    expectedLosses = focusChangesOfAnActivation;
    if (!keptFocus.isActive()) {
        typingPause.afterEarlierRequests(weakGuard.guard([this] { expectedLosses = 0; }));
    }
    surface.prepare(); // the server gives the focus only to windows that are shown
    surface.show();
    takeFocus();
    keptFocus = typingPause.keepFocus([this] {
        if (isVisible()) {
            takeFocus();
        }
    });
}

// The focus falls to whatever window is under the pointer until somebody gives it to the right one.
void X11OverlayPanel::orderOut()
{
    if (isKey()) {
        typingPause.begin();
    }
    keptFocus.reset();
    SurfaceWindow::orderOut();
}

void X11OverlayPanel::takeFocus()
{
    xcb_set_input_focus(connection.xcb(), XCB_INPUT_FOCUS_POINTER_ROOT, surface.window(), XCB_CURRENT_TIME);
    // Some window managers give the focus away as of the time of the latest event, which must not be before this.
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_APPEND, connection.root(), XCB_ATOM_CUT_BUFFER0,
                        XCB_ATOM_STRING, 8, 0, nullptr);
    hasFocus = true;
}

bool X11OverlayPanel::isKey() const
{
    return hasFocus && isVisible();
}

void X11OverlayPanel::handleKeyPress(const xcb_key_press_event_t& event)
{
    if (event.event != surface.window()) {
        return;
    }
    const auto& mapping = keyboard.mapping();
    const auto keyCode = mapping.keyCode(event.detail);
    if (keyCode && !mapping.isModifier(event.detail)) {
        onKeyDown({*keyCode, mapping.characters(event.detail, event.state), mapping.flags(event.state)});
    }
}

void X11OverlayPanel::handleFocusChange(const xcb_focus_in_event_t& event, bool isFocused)
{
    // A grab takes keys away for a moment, not the focus.
    const bool isByGrab = event.mode == XCB_NOTIFY_MODE_GRAB || event.mode == XCB_NOTIFY_MODE_UNGRAB;
    if (event.event != surface.window() || isByGrab) {
        return;
    }
    if (isFocused) {
        hasFocus = true;
    } else if (!typingPause.isOn()) { // at whose end the focus comes back
        handleLoss();
    }
}

void X11OverlayPanel::handleLoss()
{
    hasFocus = false;
    if (isVisible() && expectedLosses > 0) {
        --expectedLosses;
        takeFocus();
    } else {
        keptFocus.reset();
    }
}

} // namespace quorvel::x11
