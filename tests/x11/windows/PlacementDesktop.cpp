#include "x11/windows/PlacementDesktop.h"

#include <algorithm>

#include <fmt/format.h>

#include "app/WindowPlacement.h"

namespace quorvel::x11 {

using xtest::ClientProcess;
using xtest::PixelRect;
using Manager = xtest::WindowManager;
using ServerKind = xtest::XServer::Kind;

namespace {

// The largest step of size that any program here has.
constexpr int coarsestIncrement = 16;

} // namespace

std::ostream& operator<<(std::ostream& stream, WindowState state)
{
    switch (state) {
    case WindowState::normal:
        return stream << "normal";
    case WindowState::maximized:
        return stream << "maximized";
    case WindowState::fullscreen:
        return stream << "fullscreen";
    }
    return stream;
}

std::string PlacementDesktop::name(const testing::TestParamInfo<ParamType>& info)
{
    return nameOf(std::get<0>(info.param)) + "_" + ClientProcess::nameOf(std::get<1>(info.param));
}

void PlacementDesktop::SetUp()
{
    if (!xtest::WindowManagerProcess::isInstalled(manager())) {
        GTEST_SKIP() << nameOf(manager()) << " is not installed";
    }
    if (!ClientProcess::isInstalled(kind())) {
        GTEST_SKIP() << ClientProcess::nameOf(kind()) << " is not installed";
    }
}

void PlacementDesktop::open()
{
    const auto server = hasOutputs() ? ServerKind::dummyOutputs : ServerKind::virtualOutput;
    desktop = std::make_unique<AdapterDisplay>(xtest::XServer::Options{.kind = server});
    desktop->display.startWindowManager(manager());
    program = std::make_unique<ClientProcess>(desktop->display.server, client(), kind());
}

bool PlacementDesktop::hasOutputs()
{
    return xtest::XServer::isAvailable(ServerKind::dummyOutputs);
}

bool PlacementDesktop::knowsPanelsAt(xtest::Side side) const
{
    return manager() != Manager::i3 || side == xtest::Side::top || side == xtest::Side::bottom;
}

void PlacementDesktop::bring(WindowState state)
{
    const auto window = program->window();
    const auto ask = [&](std::uint32_t first, std::uint32_t second) {
        constexpr std::uint32_t add = 1;
        constexpr std::uint32_t sourceIsPager = 2;
        client().sendToWindowManager(window, "_NET_WM_STATE", {add, first, second, sourceIsPager, 0});
    };
    if (state == WindowState::maximized && manager() != Manager::i3) { // which has no such state
        ask(client().atom("_NET_WM_STATE_MAXIMIZED_VERT"), client().atom("_NET_WM_STATE_MAXIMIZED_HORZ"));
        desktop->waitFor("a maximized window", [&] {
            return client().hasState(window, "_NET_WM_STATE_MAXIMIZED_VERT") &&
                   client().hasState(window, "_NET_WM_STATE_MAXIMIZED_HORZ");
        });
    } else if (state == WindowState::fullscreen) {
        ask(client().atom("_NET_WM_STATE_FULLSCREEN"), XCB_NONE);
        desktop->waitFor("a full-screen window", [&] { return client().hasState(window, "_NET_WM_STATE_FULLSCREEN"); });
    }
}

void PlacementDesktop::place(const xtest::UnitFrame& frame, const PixelRect& area)
{
    std::optional<Screen> screen;
    desktop->waitFor(fmt::format("a screen that shows {}", testing::PrintToString(area)), [&] {
        screen = screenShowing(area);
        return screen.has_value();
    });
    const auto main = desktop->adapters.screens.screens().front();
    const auto placement = placeWindowInFrame({frame.left, frame.bottom, frame.right, frame.top}, screen->frame,
                                              screen->visibleFrame, main.frame);
    desktop->place(AdapterDisplay::elementOf(*program), placement.rect);
}

std::optional<Screen> PlacementDesktop::screenShowing(const PixelRect& area)
{
    auto& screens = desktop->adapters.screens;
    const RootRect wanted{static_cast<double>(area.x), static_cast<double>(area.y), static_cast<double>(area.width),
                          static_cast<double>(area.height)};
    const auto all = screens.screens();
    const auto found = std::ranges::find(
        all, wanted, [&](const Screen& screen) { return screens.coordinates().rootRect(screen.visibleFrame); });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

// A program that sizes its window in steps gets what fits into the target.
void PlacementDesktop::expectOn(const PixelRect& target)
{
    const auto window = program->window();
    const auto outer = client().outerRect(window).value_or(PixelRect{});
    const int slack = kind() == ClientProcess::Kind::xterm ? coarsestIncrement : 1;
    const bool isOnTarget = outer.x == target.x && outer.y == target.y && outer.width <= target.width &&
                            outer.width > target.width - slack && outer.height <= target.height &&
                            outer.height > target.height - slack;
    EXPECT_TRUE(isOnTarget) << "at " << outer << " instead of " << target;
    EXPECT_FALSE(client().hasState(window, "_NET_WM_STATE_FULLSCREEN"));
    EXPECT_FALSE(client().hasState(window, "_NET_WM_STATE_MAXIMIZED_VERT"));
}

} // namespace quorvel::x11
