// What other clients write into properties: hints, struts, extents, names, and the settings of a settings daemon.

#include <cmath>
#include <cstring>
#include <vector>

#include "platform/x11/desktop/XSettings.h"
#include "platform/x11/screens/MonitorLayout.h"
#include "platform/x11/windows/PlacementRequest.h"
#include "platform/x11/windows/WindowProperties.h"
#include "tests/fuzz/FuzzTarget.h"

namespace quorvel {

namespace {

using namespace x11;

std::vector<std::uint32_t> numbersOf(std::span<const std::uint8_t> input)
{
    std::vector<std::uint32_t> numbers(input.size() / sizeof(std::uint32_t));
    if (!numbers.empty()) {
        std::memcpy(numbers.data(), input.data(), numbers.size() * sizeof(std::uint32_t));
    }
    return numbers;
}

void checkStruts(std::span<const std::uint32_t> numbers)
{
    constexpr Size root{3200.0, 1080.0};
    constexpr RootRect monitor{1920.0, 0.0, 1280.0, 1024.0};
    std::vector<Strut> struts;
    for (; !numbers.empty(); numbers = numbers.subspan(std::min<std::size_t>(numbers.size(), 12))) {
        if (const auto strut = strutOf(numbers.first(std::min<std::size_t>(numbers.size(), 12)), root)) {
            struts.push_back(*strut);
        }
    }
    const auto area = workArea(monitor, struts, root);
    require(area.width > 0.0 && area.height > 0.0, "some of a monitor is left");
    require(area.minX() >= monitor.minX() && area.maxX() <= monitor.maxX() && area.minY() >= monitor.minY() &&
                area.maxY() <= monitor.maxY(),
            "what is left of a monitor lies on it");
}

void checkExtents(std::span<const std::uint32_t> numbers)
{
    WindowSnapshot window;
    window.client = {100.0, 100.0, 300.0, 200.0};
    window.frame = extentsOf(numbers).value_or(Extents{});
    window.shadow = shadowOf(numbers.size() > 4 ? numbers.subspan(4) : numbers, window.client.size());
    window.hasSizeIncrements = hasSizeIncrements(numbers);
    const auto outer = window.outer();
    require(outer.width > 0.0 && outer.height > 0.0, "a window has a size");
    const PlacementTarget target{RootPoint{10.0, 20.0}, Size{400.0, 300.0}};
    const auto offset = offsetTo(target, window);
    const auto request = placementRequest(target, window, offset + offset);
    require(request.width >= 1 && request.height >= 1, "a request has a size");
}

void checkNames(std::span<const std::uint8_t> input)
{
    const auto names = classNamesOf(textOf(input));
    require(names.instance.find('\0') == std::string::npos, "an instance is one text");
    require(names.className.find('\0') == std::string::npos, "a class is one text");
    const auto font = textSetting(input, "Gtk/FontName");
    require(!font || font->size() <= input.size(), "a setting is a part of the data");
}

} // namespace

void fuzz(std::span<const std::uint8_t> input)
{
    const auto numbers = numbersOf(input);
    checkStruts(numbers);
    checkExtents(numbers);
    checkNames(input);
}

} // namespace quorvel
