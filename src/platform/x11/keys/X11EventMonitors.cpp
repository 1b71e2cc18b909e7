#include "platform/x11/keys/X11EventMonitors.h"

#include <utility>

#include <unistd.h>
#include <xcb/res.h>
#include <xcb/xinput.h>

#include "platform/x11/Connection.h"
#include "platform/x11/keys/Keyboard.h"

namespace quorvel::x11 {

namespace {

constexpr std::uint16_t rawEventsDuringGrabsMajor = 2;
constexpr std::uint16_t rawEventsDuringGrabsMinor = 2;

// A turn of the wheel arrives as the press of one of these buttons.
bool isWheel(std::uint32_t button)
{
    return button >= 4 && button <= 7;
}

} // namespace

X11EventMonitors::X11EventMonitors(Connection& connection, const Keyboard& keyboard)
    : connection(connection), keyboard(keyboard)
{
    if (const auto* const input = connection.extension(&xcb_input_id)) {
        inputOpcode = input->major_opcode;
        PendingReply<xcb_input_xi_query_version_reply> version(
            connection.xcb(),
            xcb_input_xi_query_version(connection.xcb(), rawEventsDuringGrabsMajor, rawEventsDuringGrabsMinor));
        version.take(); // the answer does not matter; naming the version is what switches it on
    }
    subscriptions.push_back(connection.addHandler<xcb_ge_generic_event_t>(
        XCB_GE_GENERIC, [this](const xcb_ge_generic_event_t& event) { handleGenericEvent(event); }));
    subscriptions.push_back(connection.addHandler<xcb_key_press_event_t>(
        XCB_KEY_PRESS, [this](const xcb_key_press_event_t& event) { handleKeyPress(event); }));
}

X11EventMonitors::~X11EventMonitors() = default;

Subscription X11EventMonitors::addGlobalMouseDownMonitor(std::function<void()> handler)
{
    auto monitor = std::make_shared<Subscription>(mouseMonitors.observe(std::move(handler)));
    selectRawPresses(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS);
    return Subscription([this, monitor] {
        monitor->reset();
        if (mouseMonitors.observerCount() == 0) {
            selectRawPresses(0);
        }
    });
}

Subscription X11EventMonitors::addLocalKeyDownMonitor(std::function<EventHandling(const KeyEvent&)> handler)
{
    return keyMonitors.observe([handler = std::move(handler)](const KeyEvent& event, EventHandling& handling) {
        if (handling == EventHandling::pass) {
            handling = handler(event);
        }
    });
}

EventHandling X11EventMonitors::reportLocalKeyDown(xcb_keycode_t keycode, KeyState state) const
{
    const KeyMapping& mapping = keyboard.mapping();
    const auto keyCode = mapping.keyCode(keycode);
    auto handling = EventHandling::pass;
    if (keyCode && !mapping.isModifier(keycode)) {
        keyMonitors.emit({*keyCode, mapping.characters(keycode, state), mapping.flags(state)}, handling);
    }
    return handling;
}

void X11EventMonitors::selectRawPresses(std::uint32_t mask)
{
    if (inputOpcode == 0) {
        return;
    }
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, mask};
    xcb_input_xi_select_events(connection.xcb(), connection.root(), 1, &selection.head);
    connection.flush();
}

void X11EventMonitors::handleGenericEvent(const xcb_ge_generic_event_t& event)
{
    if (event.extension != inputOpcode || event.event_type != XCB_INPUT_RAW_BUTTON_PRESS) {
        return;
    }
    const auto& press = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
    if (!isWheel(press.detail) && !isPointerOverOwnWindow()) {
        mouseMonitors.emit();
    }
}

void X11EventMonitors::handleKeyPress(const xcb_key_press_event_t& event)
{
    if (event.event != connection.root()) {
        reportLocalKeyDown(event.detail, event.state);
    }
}

// Raw events do not say where the pointer is.
bool X11EventMonitors::isPointerOverOwnWindow() const
{
    xcb_window_t window = connection.root();
    for (;;) {
        PendingReply<xcb_query_pointer_reply> pending(connection.xcb(), xcb_query_pointer(connection.xcb(), window));
        const auto pointer = pending.take();
        if (!pointer || pointer->child == XCB_NONE) {
            return window != connection.root() && isOwnWindow(window);
        }
        window = pointer->child;
    }
}

bool X11EventMonitors::isOwnWindow(xcb_window_t window) const
{
    if (connection.extension(&xcb_res_id) == nullptr) {
        return false;
    }
    const xcb_res_client_id_spec_t wanted{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    PendingReply<xcb_res_query_client_ids_reply> pending(connection.xcb(),
                                                         xcb_res_query_client_ids(connection.xcb(), 1, &wanted));
    const auto reply = pending.take();
    if (!reply) {
        return false;
    }
    auto ids = xcb_res_query_client_ids_ids_iterator(reply.get());
    return ids.rem > 0 && xcb_res_client_id_value_value_length(ids.data) > 0 &&
           *xcb_res_client_id_value_value(ids.data) == static_cast<std::uint32_t>(::getpid());
}

} // namespace quorvel::x11
