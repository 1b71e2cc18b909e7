#include "contract/x11/ContractKeyboard.h"

#include <array>
#include <ranges>
#include <utility>

#include "platform/x11/keys/XcbXkb.h"
#include "support/Patience.h"
#include "support/XReply.h"

namespace quorvel::contract {

using Modifier = xtest::KeyInjector::Modifier;

ContractKeyboard::ContractKeyboard(const xtest::XServer& server, xtest::KeyInjector& injector,
                                   const x11::Keyboard& keyboard)
    : injector(injector), keyboard(keyboard), other(xcb_connect(server.display().c_str(), nullptr))
{
    repeatSlowly();
}

ContractKeyboard::~ContractKeyboard()
{
    xcb_disconnect(other);
}

void ContractKeyboard::hold(KeyCode keyCode, std::uint64_t flags)
{
    constexpr std::array modifiers = {
        std::pair{eventFlags::command, Modifier::command},
        std::pair{eventFlags::option, Modifier::option},
        std::pair{eventFlags::control, Modifier::control},
        std::pair{eventFlags::shift, Modifier::shift},
    };
    for (const auto& [flag, modifier] : modifiers) {
        if ((flags & flag) != 0) {
            injector.pressModifier(modifier);
            heldModifiers.push_back(modifier);
        }
    }
    injector.pressCode(codeOf(keyCode));
}

void ContractKeyboard::release(KeyCode keyCode)
{
    injector.releaseCode(codeOf(keyCode));
    for (const auto modifier : std::exchange(heldModifiers, {}) | std::views::reverse) {
        injector.releaseModifier(modifier);
    }
}

void ContractKeyboard::listenTo(xcb_window_t window)
{
    const std::uint32_t mask = XCB_EVENT_MASK_KEY_PRESS;
    xcb_change_window_attributes(other, window, XCB_CW_EVENT_MASK, &mask);
    sync();
}

std::vector<KeyCode> ContractKeyboard::keysReceivedBy(xcb_window_t window)
{
    sync();
    while (const xtest::XReply<xcb_generic_event_t> event{xcb_poll_for_event(other)}) {
        if (event->response_type != XCB_KEY_PRESS) {
            continue;
        }
        const auto& press = reinterpret_cast<const xcb_key_press_event_t&>(*event);
        const auto keyCode = keyboard.mapping().keyCode(press.detail);
        if (keyCode && !keyboard.mapping().isModifier(press.detail)) {
            received[press.event].push_back(*keyCode);
        }
    }
    return received[window];
}

void ContractKeyboard::takeHotKeyElsewhere(std::uint32_t keyCode, std::uint32_t modifiers)
{
    const auto* const setup = xcb_get_setup(other);
    const xcb_window_t root = xcb_setup_roots_iterator(setup).data->root;
    const xtest::XReply<xcb_generic_error_t> error(xcb_request_check(
        other, xcb_grab_key_checked(other, 0, root, keyboard.mapping().state(modifiers),
                                    codeOf(static_cast<KeyCode>(keyCode)), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
    if (error) {
        throw xtest::HarnessError("the combination is taken already");
    }
}

void ContractKeyboard::repeatSlowly()
{
    constexpr std::uint16_t delay = 1000;    // ms
    constexpr std::uint16_t interval = 1000; // ms
    constexpr std::array<std::uint8_t, 32> perKey{};
    xcb_xkb_use_extension_unchecked(other, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    xcb_xkb_set_controls(other, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                         XCB_XKB_BOOL_CTRL_REPEAT_KEYS, delay, interval, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                         perKey.data());
    sync();
}

void ContractKeyboard::sync()
{
    const xtest::XReply<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(other, xcb_get_input_focus(other), nullptr));
}

std::uint8_t ContractKeyboard::codeOf(KeyCode keyCode) const
{
    const auto keycodes = keyboard.mapping().keycodes(keyCode);
    if (keycodes.empty()) {
        throw xtest::HarnessError("the keyboard lacks a key");
    }
    return keycodes.front();
}

} // namespace quorvel::contract
