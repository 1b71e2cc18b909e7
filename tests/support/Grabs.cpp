#include "support/Grabs.h"

namespace quorvel::xtest {
namespace {

std::uint16_t maskOf(const std::vector<KeyInjector::Modifier>& modifiers)
{
    unsigned mask = 0;
    for (const auto modifier : modifiers) {
        switch (modifier) {
        case KeyInjector::Modifier::command:
            mask |= XCB_MOD_MASK_4;
            break;
        case KeyInjector::Modifier::option:
            mask |= XCB_MOD_MASK_1;
            break;
        case KeyInjector::Modifier::control:
            mask |= XCB_MOD_MASK_CONTROL;
            break;
        case KeyInjector::Modifier::shift:
            mask |= XCB_MOD_MASK_SHIFT;
            break;
        }
    }
    return static_cast<std::uint16_t>(mask);
}

} // namespace

bool Grabs::isKeyboardFree()
{
    auto* link = client.connection();
    const XReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(
        link, xcb_grab_keyboard(link, 0, client.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) {
        return false;
    }
    xcb_ungrab_keyboard(link, XCB_CURRENT_TIME);
    client.sync();
    return true;
}

bool Grabs::isPointerFree()
{
    auto* link = client.connection();
    const XReply<xcb_grab_pointer_reply_t> reply(
        xcb_grab_pointer_reply(link,
                               xcb_grab_pointer(link, 0, client.root(), 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                                                XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
                               nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) {
        return false;
    }
    xcb_ungrab_pointer(link, XCB_CURRENT_TIME);
    client.sync();
    return true;
}

bool Grabs::isFree(const KeyCombination& combination)
{
    auto* link = client.connection();
    const std::uint8_t code = KeyInjector(client).codeOf(combination.keysym);
    const std::uint16_t mask = maskOf(combination.modifiers);
    const XReply<xcb_generic_error_t> refused(xcb_request_check(
        link, xcb_grab_key_checked(link, 0, client.root(), mask, code, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
    if (refused) {
        return false;
    }
    xcb_ungrab_key(link, code, client.root(), mask);
    client.sync();
    return true;
}

void Grabs::waitUntilKeyboardIsFree()
{
    // The end of a grab tells the window with the focus, which wakes the wait.
    client.waitFor("the keyboard to be free", [this] { return isKeyboardFree(); });
}

void Grabs::waitUntilFree(const KeyCombination& combination)
{
    // A passive grab ends without a word, but its owner's windows go in the same moment.
    client.waitFor("a key combination to be free", [&] { return isFree(combination); });
}

} // namespace quorvel::xtest
