#include "platform/x11/keys/Keyboard.h"

#include <utility>

#include <xkbcommon/xkbcommon-x11.h>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/keys/XcbXkb.h"

namespace quorvel::x11 {

namespace {

// The head that every event of the keyboard extension has.
struct XkbEvent {
    std::uint8_t responseType;
    std::uint8_t kind;
    std::uint16_t sequence;
    xcb_timestamp_t time;
    std::uint8_t device;
};

} // namespace

std::expected<std::unique_ptr<Keyboard>, std::string> Keyboard::open(Connection& connection, MainQueue& mainQueue)
{
    std::unique_ptr<Keyboard> keyboard(new Keyboard(connection, mainQueue));
    if (auto started = keyboard->start(); !started) {
        return std::unexpected(started.error());
    }
    return keyboard;
}

Keyboard::Keyboard(Connection& connection, MainQueue& mainQueue)
    : connection(connection), mainQueue(mainQueue), context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES))
{}

Keyboard::~Keyboard() = default;

std::expected<void, std::string> Keyboard::start()
{
    std::uint8_t firstEvent = 0;
    const bool hasExtension =
        xkb_x11_setup_xkb_extension(connection.xcb(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                    XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &firstEvent, nullptr) != 0;
    if (!hasExtension) {
        return std::unexpected("The X server lacks the keyboard extension XKB.");
    }
    device = xkb_x11_get_core_keyboard_device_id(connection.xcb());
    current = device >= 0 ? readMapping() : nullptr;
    if (!current) {
        return std::unexpected("The X server's key map cannot be read.");
    }
    selectEvents();
    subscriptions.push_back(
        connection.addEventHandler(firstEvent, [this](const xcb_generic_event_t& event) { handleXkbEvent(event); }));
    // Before anybody reads the press by the map of before.
    subscriptions.push_back(connection.addEventHandler(XCB_KEY_PRESS, [this](const auto&) { catchUp(); }));
    return {};
}

void Keyboard::selectEvents()
{
    constexpr std::uint16_t events =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    constexpr std::uint16_t mapParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS |
                                       XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_KEY_ACTIONS |
                                       XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(connection.xcb(), static_cast<xcb_xkb_device_spec_t>(device), events, 0, 0, mapParts,
                              mapParts, &details);
    // A held key then sends presses only, so that a release means that the key went up.
    PendingReply<xcb_xkb_per_client_flags_reply> flags(
        connection.xcb(), xcb_xkb_per_client_flags(connection.xcb(), static_cast<xcb_xkb_device_spec_t>(device),
                                                   XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT,
                                                   XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT, 0, 0, 0));
    PendingReply<xcb_xkb_get_state_reply> state(
        connection.xcb(), xcb_xkb_get_state(connection.xcb(), static_cast<xcb_xkb_device_spec_t>(device)));
    if (const auto reply = state.take()) {
        layout = reply->group;
    }
}

void Keyboard::handleXkbEvent(const xcb_generic_event_t& event)
{
    const auto& head = reinterpret_cast<const XkbEvent&>(event);
    if (head.kind == XCB_XKB_STATE_NOTIFY) {
        layout = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event).group;
    } else {
        scheduleReload();
    }
}

// A change comes as a burst of events.
void Keyboard::scheduleReload()
{
    if (!std::exchange(isReloadScheduled, true)) {
        mainQueue.async(weakGuard.guard([this] { catchUp(); }));
    }
}

void Keyboard::catchUp()
{
    if (std::exchange(isReloadScheduled, false)) {
        reload();
    }
}

void Keyboard::reload()
{
    device = xkb_x11_get_core_keyboard_device_id(connection.xcb());
    auto mapping = device >= 0 ? readMapping() : nullptr;
    if (!mapping) {
        return; // the connection is gone, or another change is under way and will be announced
    }
    current = std::move(mapping);
    mappingChanged.emit();
}

std::unique_ptr<KeyMapping> Keyboard::readMapping() const
{
    XkbKeymap keymap(
        xkb_x11_keymap_new_from_device(context.get(), connection.xcb(), device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    return keymap ? std::make_unique<KeyMapping>(std::move(keymap)) : nullptr;
}

} // namespace quorvel::x11
