#include "minimal/XcbSession.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <xcb/xcb_keysyms.h>

namespace quorvel::bench {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <class T>
using Reply = std::unique_ptr<T, Free>;

[[noreturn]] void giveUp(const char* reason)
{
    std::fprintf(stderr, "%s\n", reason);
    std::exit(2);
}

} // namespace

XcbSession::XcbSession() : xcb(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(xcb) != 0) {
        giveUp("cannot connect to the X server");
    }
    firstScreen = xcb_setup_roots_iterator(xcb_get_setup(xcb)).data;
}

XcbSession::~XcbSession()
{
    xcb_disconnect(xcb);
}

xcb_atom_t XcbSession::atom(std::string_view name) const
{
    const auto cookie = xcb_intern_atom(xcb, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(xcb, cookie, nullptr));
    if (!reply) {
        giveUp("cannot intern an atom");
    }
    return reply->atom;
}

xcb_keycode_t XcbSession::keycode(std::uint32_t keysym) const
{
    const std::unique_ptr<xcb_key_symbols_t, decltype(&xcb_key_symbols_free)> symbols(xcb_key_symbols_alloc(xcb),
                                                                                      &xcb_key_symbols_free);
    const Reply<xcb_keycode_t> codes(xcb_key_symbols_get_keycode(symbols.get(), keysym));
    if (!codes || *codes == 0) {
        giveUp("no key types the wanted symbol");
    }
    return *codes;
}

void XcbSession::grabKey(xcb_keycode_t key, std::uint16_t modifiers) const
{
    for (const std::uint16_t locks :
         {0, int{XCB_MOD_MASK_LOCK}, int{XCB_MOD_MASK_2}, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2}) {
        xcb_grab_key(xcb, 0, root(), static_cast<std::uint16_t>(modifiers | locks), key, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
    }
}

void XcbSession::sendToWindowManager(const xcb_client_message_event_t& request) const
{
    xcb_send_event(xcb, 0, root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&request));
}

void XcbSession::answerPresses(const std::function<void(const xcb_key_press_event_t&)>& answer) const
{
    xcb_flush(xcb);
    while (const Reply<xcb_generic_event_t> event{xcb_wait_for_event(xcb)}) {
        if ((event->response_type & 0x7F) == XCB_KEY_PRESS) {
            answer(reinterpret_cast<const xcb_key_press_event_t&>(*event));
            xcb_flush(xcb);
        }
    }
}

} // namespace quorvel::bench
