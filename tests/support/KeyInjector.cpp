#include "support/KeyInjector.h"

#include <algorithm>
#include <memory>
#include <ranges>

#include <fmt/format.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

xcb_keysym_t keysymOf(KeyInjector::Modifier modifier)
{
    switch (modifier) {
    case KeyInjector::Modifier::command:
        return XKB_KEY_Super_L;
    case KeyInjector::Modifier::option:
        return XKB_KEY_Alt_L;
    case KeyInjector::Modifier::control:
        return XKB_KEY_Control_L;
    case KeyInjector::Modifier::shift:
        return XKB_KEY_Shift_L;
    }
    throw HarnessError("unknown modifier");
}

struct FreeKeySymbols {
    void operator()(xcb_key_symbols_t* symbols) const { xcb_key_symbols_free(symbols); }
};

} // namespace

KeyInjector::KeyInjector(XClient& client) : client(client) {}

KeyInjector::~KeyInjector()
{
    for (const std::uint8_t code : held | std::views::reverse) {
        xcb_test_fake_input(client.connection(), XCB_KEY_RELEASE, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    }
    xcb_flush(client.connection());
}

void KeyInjector::tap(const std::vector<Modifier>& modifiers, xcb_keysym_t keysym)
{
    tapCode(modifiers, codeOf(keysym));
}

void KeyInjector::tapCode(const std::vector<Modifier>& modifiers, std::uint8_t code)
{
    for (const Modifier modifier : modifiers) {
        pressModifier(modifier);
    }
    pressCode(code);
    releaseCode(code);
    for (const Modifier modifier : modifiers | std::views::reverse) {
        releaseModifier(modifier);
    }
}

void KeyInjector::pressCode(std::uint8_t code)
{
    held.push_back(code);
    send(XCB_KEY_PRESS, code);
}

void KeyInjector::releaseCode(std::uint8_t code)
{
    std::erase(held, code);
    send(XCB_KEY_RELEASE, code);
}

void KeyInjector::pressModifier(Modifier modifier)
{
    press(keysymOf(modifier));
}

void KeyInjector::releaseModifier(Modifier modifier)
{
    release(keysymOf(modifier));
}

void KeyInjector::click(int x, int y, std::uint8_t button)
{
    movePointer(x, y);
    pressButton(button);
    releaseButton(button);
}

void KeyInjector::pressButton(std::uint8_t button)
{
    send(XCB_BUTTON_PRESS, button);
}

void KeyInjector::releaseButton(std::uint8_t button)
{
    send(XCB_BUTTON_RELEASE, button);
}

void KeyInjector::movePointer(int x, int y)
{
    send(XCB_MOTION_NOTIFY, 0, static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
}

std::uint8_t KeyInjector::codeOf(xcb_keysym_t keysym)
{
    const std::unique_ptr<xcb_key_symbols_t, FreeKeySymbols> symbols(xcb_key_symbols_alloc(client.connection()));
    const XReply<xcb_keycode_t> codes(xcb_key_symbols_get_keycode(symbols.get(), keysym));
    if (!codes || codes.get()[0] == XCB_NO_SYMBOL) {
        throw HarnessError(fmt::format("no key types the keysym {:#x}", keysym));
    }
    return codes.get()[0];
}

void KeyInjector::send(std::uint8_t type, std::uint8_t detail, std::int16_t x, std::int16_t y)
{
    const xcb_window_t root = type == XCB_MOTION_NOTIFY ? client.root() : xcb_window_t{XCB_NONE};
    xcb_test_fake_input(client.connection(), type, detail, XCB_CURRENT_TIME, root, x, y, 0);
    client.sync(); // one input at a time, as a keyboard sends them
}

} // namespace quorvel::xtest
