#include "platform/x11/probe/GrabTrial.h"

#include <algorithm>
#include <vector>

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

bool isAnyHeldByOthers(const Connection& connection, const KeyGrabs::Combinations& combinations)
{
    auto* const xcb = connection.xcb();
    const xcb_window_t root = connection.root();
    std::vector<xcb_void_cookie_t> attempts;
    xcb_grab_server(xcb);
    for (const auto& [keycode, modifiers] : combinations) {
        attempts.push_back(
            xcb_grab_key_checked(xcb, 0, root, modifiers, keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        xcb_ungrab_key(xcb, keycode, root, modifiers);
    }
    xcb_ungrab_server(xcb);
    return std::ranges::count_if(attempts, [&](xcb_void_cookie_t attempt) {
               return Reply<xcb_generic_error_t>(xcb_request_check(xcb, attempt)) != nullptr;
           }) > 0;
}

} // namespace quorvel::x11
