#include "x11/keys/KeysDisplay.h"

#include <algorithm>

#include "support/ChildProcess.h"
#include "support/Patience.h"

namespace quorvel::x11 {

namespace {

template <class Value>
Value valueOf(std::expected<Value, std::string> result)
{
    if (!result) {
        throw xtest::HarnessError(result.error());
    }
    return std::move(*result);
}

} // namespace

KeysDisplay::KeysDisplay()
    : loop(display.client),
      connection(valueOf(Connection::open(display.server.display().c_str()))),
      source(*connection),
      keyboard(valueOf(Keyboard::open(*connection, loop.mainLoop()))),
      adapters(*connection, *keyboard, loop.mainLoop()),
      window(display.server, {.title = "Editor", .overrideRedirect = true}),
      other(display.server)
{
    window.map();
    auto* const link = window.client().connection();
    xcb_set_input_focus(link, XCB_INPUT_FOCUS_POINTER_ROOT, window.id(), XCB_CURRENT_TIME);
    window.client().sync();
}

void KeysDisplay::settle()
{
    for (int round = 0; round < 3; ++round) {
        display.client.sync();
        connection->sync();
        connection->dispatchEvents();
        loop.drain();
    }
}

void KeysDisplay::loseEvents()
{
    display.client.sync();
    connection->sync();
    while (const Reply<xcb_generic_event_t> lost{xcb_poll_for_event(connection->xcb())}) {
    }
}

void KeysDisplay::run(const std::vector<std::string>& words)
{
    xtest::ChildProcess process({words, display.server.clientEnvironment()});
    if (process.waitForEnd() != 0) {
        throw xtest::HarnessError(words.front() + " failed");
    }
    settle();
}

void KeysDisplay::makeKeysRepeat()
{
    run({"xset", "r", "rate", "20", "100"}); // ms before the first, repeats a second
}

std::vector<std::uint8_t> KeysDisplay::pressesInWindow()
{
    std::vector<std::uint8_t> codes;
    for (const auto& key : window.keys()) {
        if (key.pressed) {
            codes.push_back(key.code);
        }
    }
    return codes;
}

bool KeysDisplay::holdElsewhere(std::uint16_t modifiers, xcb_keysym_t keysym)
{
    auto* const link = other.connection();
    const Reply<xcb_generic_error_t> error(
        xcb_request_check(link, xcb_grab_key_checked(link, 0, other.root(), modifiers, codeOf(keysym),
                                                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
    return !error;
}

bool KeysDisplay::holdKeyboardElsewhere()
{
    auto* const link = other.connection();
    const Reply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(
        link, xcb_grab_keyboard(link, 0, other.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void KeysDisplay::giveKeyboardBackElsewhere()
{
    xcb_ungrab_keyboard(other.connection(), XCB_CURRENT_TIME);
    other.sync();
}

KeyCodeSet allKeyCodes()
{
    KeyCodeSet keyCodes;
    for (KeyCode keyCode = 0; keyCode < 256; ++keyCode) {
        keyCodes.insert(keyCode);
    }
    return keyCodes;
}

} // namespace quorvel::x11
