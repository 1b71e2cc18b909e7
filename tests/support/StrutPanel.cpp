#include "support/StrutPanel.h"

#include <algorithm>

namespace quorvel::xtest {
namespace {

PixelRect panelRect(const PixelRect& monitor, Side side, int thickness)
{
    switch (side) {
    case Side::left:
        return {monitor.x, monitor.y, thickness, monitor.height};
    case Side::right:
        return {monitor.x + monitor.width - thickness, monitor.y, thickness, monitor.height};
    case Side::top:
        return {monitor.x, monitor.y, monitor.width, thickness};
    case Side::bottom:
        return {monitor.x, monitor.y + monitor.height - thickness, monitor.width, thickness};
    }
    return {};
}

PixelRect besidePanel(const PixelRect& monitor, Side side, int thickness)
{
    switch (side) {
    case Side::left:
        return {monitor.x + thickness, monitor.y, monitor.width - thickness, monitor.height};
    case Side::right:
        return {monitor.x, monitor.y, monitor.width - thickness, monitor.height};
    case Side::top:
        return {monitor.x, monitor.y + thickness, monitor.width, monitor.height - thickness};
    case Side::bottom:
        return {monitor.x, monitor.y, monitor.width, monitor.height - thickness};
    }
    return {};
}

// How far the side lies outwards on the root.
int reach(const PixelRect& monitor, Side side)
{
    switch (side) {
    case Side::left:
        return -monitor.x;
    case Side::right:
        return monitor.x + monitor.width;
    case Side::top:
        return -monitor.y;
    case Side::bottom:
        return monitor.y + monitor.height;
    }
    return 0;
}

TestWindow::Options optionsFor(const PixelRect& place)
{
    TestWindow::Options options;
    options.title = "Panel";
    options.instance = "panel";
    options.className = "Panel";
    options.rect = place;
    options.type = "_NET_WM_WINDOW_TYPE_DOCK";
    options.color = 0x2B3036;
    return options;
}

} // namespace

std::ostream& operator<<(std::ostream& stream, Side side)
{
    switch (side) {
    case Side::left:
        return stream << "left";
    case Side::right:
        return stream << "right";
    case Side::top:
        return stream << "top";
    case Side::bottom:
        return stream << "bottom";
    }
    return stream;
}

std::size_t outermost(const std::vector<Monitor>& monitors, Side side)
{
    const auto found =
        std::ranges::max_element(monitors, {}, [side](const Monitor& monitor) { return reach(monitor.rect, side); });
    return static_cast<std::size_t>(found - monitors.begin());
}

StrutPanel::StrutPanel(const XServer& server, const PixelRect& monitor, Side side, int thickness,
                       Reservation reservation)
    : place(panelRect(monitor, side, thickness)),
      rest(besidePanel(monitor, side, thickness)),
      window(server, optionsFor(place))
{
    // left, right, top, bottom; then start and end along the edge for each in the same order
    std::vector<std::uint32_t> strut(12, 0);
    const auto set = [&strut](std::size_t edge, int reserved, int start, int length) {
        strut[edge] = static_cast<std::uint32_t>(reserved);
        strut[4 + 2 * edge] = static_cast<std::uint32_t>(start);
        strut[5 + 2 * edge] = static_cast<std::uint32_t>(start + length - 1);
    };
    auto& client = window.client();
    const int rootWidth = client.screen().width_in_pixels;
    const int rootHeight = client.screen().height_in_pixels;
    switch (side) {
    case Side::left:
        set(0, place.x + place.width, place.y, place.height);
        break;
    case Side::right:
        set(1, rootWidth - place.x, place.y, place.height);
        break;
    case Side::top:
        set(2, place.y + place.height, place.x, place.width);
        break;
    case Side::bottom:
        set(3, rootHeight - place.y, place.x, place.width);
        break;
    }
    client.setProperty(window.id(), "_NET_WM_STRUT", XCB_ATOM_CARDINAL, {strut.begin(), strut.begin() + 4});
    if (reservation == Reservation::partial) {
        client.setProperty(window.id(), "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, strut);
    }
    window.map();
}

} // namespace quorvel::xtest
