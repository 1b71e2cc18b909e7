#include "latency/ManyWindows.h"

#include <array>
#include <string>

#include <fmt/format.h>

#include "support/Patience.h"

namespace quorvel::bench {

ManyWindows::ManyWindows(const xtest::XServer& server, EventProbe& probe, std::size_t count)
    : link(xcb_connect(server.display().c_str(), nullptr))
{
    if (xcb_connection_has_error(link.get()) != 0) {
        throw xtest::HarnessError("cannot connect to " + server.display());
    }
    const auto& screen = *xcb_setup_roots_iterator(xcb_get_setup(link.get())).data;
    const auto wanted = probe.visibleCount() + count;
    for (std::size_t index = 0; index < count; ++index) {
        open(index, screen);
    }
    const auto areOpen = [&] {
        probe.rest();
        return probe.visibleCount() >= wanted;
    };
    if (!probe.waitFor(areOpen)) {
        throw xtest::HarnessError("not all windows opened");
    }
}

void ManyWindows::open(std::size_t index, const xcb_screen_t& screen)
{
    constexpr std::size_t columns = 6;
    constexpr std::size_t rows = 5;
    const auto column = static_cast<std::int16_t>(index % columns);
    const auto row = static_cast<std::int16_t>(index / columns % rows);
    const auto window = xcb_generate_id(link.get());
    const std::string title = fmt::format("Window {} of a program with many windows", index + 1);
    xcb_create_window(link.get(), XCB_COPY_FROM_PARENT, window, screen.root, static_cast<std::int16_t>(column * 310),
                      static_cast<std::int16_t>(row * 200), 300, 180, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      screen.root_visual, 0, nullptr);
    xcb_change_property(link.get(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(title.size()), title.data());
    constexpr std::uint32_t usersPosition = 1;
    std::array<std::uint32_t, 18> hints{usersPosition};
    xcb_change_property(link.get(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, 32,
                        static_cast<std::uint32_t>(hints.size()), hints.data());
    xcb_map_window(link.get(), window);
    xcb_flush(link.get());
}

} // namespace quorvel::bench
