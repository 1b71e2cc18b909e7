#include <array>
#include <cstdlib>
#include <string>

#include <unistd.h>
#include <xcb/xcb_icccm.h>

#include "support/XReply.h"

// A window that does nothing but exist: plain_client TITLE.
int main(int argc, char** argv)
{
    const std::string title = argc > 1 ? argv[1] : "Plain";
    xcb_connection_t* link = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(link) != 0) {
        return EXIT_FAILURE;
    }
    const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(link)).data;
    const xcb_window_t window = xcb_generate_id(link);
    xcb_create_window(link, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 480, 320, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_BACK_PIXEL,
                      std::array<std::uint32_t, 1>{0x44525E}.data());
    xcb_icccm_set_wm_name(link, window, XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(title.size()), title.data());
    xcb_icccm_set_wm_class(link, window, 12, "plain\0Plain");
    xcb_icccm_wm_hints_t hints{};
    xcb_icccm_wm_hints_set_input(&hints, 1);
    xcb_icccm_wm_hints_set_normal(&hints);
    xcb_icccm_set_wm_hints(link, window, &hints);
    xcb_map_window(link, window);
    xcb_flush(link);
    while (const quorvel::xtest::XReply<xcb_generic_event_t> event{xcb_wait_for_event(link)}) {
    }
    xcb_disconnect(link);
    return EXIT_SUCCESS;
}
