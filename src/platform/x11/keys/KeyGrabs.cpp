#include "platform/x11/keys/KeyGrabs.h"

#include <vector>

#include "base/FatalError.h"
#include "platform/x11/Connection.h"

namespace quorvel::x11 {

KeyGrabs::Combinations KeyGrabs::take(const Combinations& combinations, Mode mode)
{
    const std::uint8_t keyboardMode = mode == Mode::stopping ? XCB_GRAB_MODE_SYNC : XCB_GRAB_MODE_ASYNC;
    struct Request {
        KeyCombination combination;
        xcb_void_cookie_t cookie;
    };
    std::vector<Request> requests;
    for (const auto& combination : combinations) {
        if (++claims[combination] == 1) {
            requests.push_back(
                {combination, xcb_grab_key_checked(connection.xcb(), 0, connection.root(), combination.modifiers,
                                                   combination.keycode, XCB_GRAB_MODE_ASYNC, keyboardMode)});
        }
    }
    Combinations refused;
    for (const auto& request : requests) {
        const Reply<xcb_generic_error_t> error(xcb_request_check(connection.xcb(), request.cookie));
        if (error) {
            claims.erase(request.combination);
            refused.insert(request.combination);
        }
    }
    return refused;
}

void KeyGrabs::giveBack(const Combinations& combinations)
{
    bool isChanged = false;
    for (const auto& combination : combinations) {
        const auto claim = claims.find(combination);
        if (claim == claims.end()) {
            fatalError("Keys are given back that were not taken");
        }
        if (--claim->second == 0) {
            claims.erase(claim);
            xcb_ungrab_key(connection.xcb(), combination.keycode, connection.root(), combination.modifiers);
            isChanged = true;
        }
    }
    if (isChanged) {
        connection.sync();
    }
}

} // namespace quorvel::x11
