#include "e2e/RunningQuorvel.h"

#include <algorithm>
#include <cstdlib>

#include <fmt/format.h>
#include <xcb/xcb_icccm.h>

#include "support/Patience.h"

namespace quorvel::e2e {
namespace {

using xtest::PixelRect;

constexpr int hotKeyCount = 3;

// The last of the hot keys that every start registers.
constexpr auto lastRegistration = "Registered hotkey id=3 ";

bool within(int value, int expected, int tolerance)
{
    return std::abs(value - expected) <= tolerance;
}

PixelRect clearOfNeighbours(const PixelRect& rect)
{
    return {rect.x + 1, rect.y + 1, rect.width - 2, rect.height - 2};
}

struct Steps {
    int width = 1;
    int height = 1;
};

Steps growthSteps(xtest::XClient& client, xcb_window_t window)
{
    xcb_size_hints_t hints{};
    const auto cookie = xcb_icccm_get_wm_normal_hints(client.connection(), window);
    if (xcb_icccm_get_wm_normal_hints_reply(client.connection(), cookie, &hints, nullptr) == 0 ||
        (hints.flags & XCB_ICCCM_SIZE_HINT_P_RESIZE_INC) == 0) {
        return {};
    }
    return {std::max(hints.width_inc, 1), std::max(hints.height_inc, 1)};
}

} // namespace

RunningQuorvel::RunningQuorvel(xtest::TestDisplay& display, const std::filesystem::path& executable,
                               const xtest::TemporaryDirectory& configuration,
                               const xtest::ProgramUnderTest::Options& options)
    : display(display), running(display.server, executable, configuration, options), apparentProcess(running.id())
{
    running.waitForLineStartingWith(lastRegistration);
}

const xtest::KeyCombination& RunningQuorvel::hotKey()
{
    static const xtest::KeyCombination combination{
        {xtest::KeyInjector::Modifier::command, xtest::KeyInjector::Modifier::shift}, XKB_KEY_o};
    return combination;
}

void RunningQuorvel::pressHotKey()
{
    display.keyboard.tap(hotKey().modifiers, hotKey().keysym);
}

const xtest::KeyCombination& RunningQuorvel::switcherHotKey()
{
    static const xtest::KeyCombination combination{
        {xtest::KeyInjector::Modifier::command, xtest::KeyInjector::Modifier::shift}, XKB_KEY_f};
    return combination;
}

void RunningQuorvel::pressSwitcherHotKey()
{
    display.keyboard.tap(switcherHotKey().modifiers, switcherHotKey().keysym);
}

std::vector<PixelRect> RunningQuorvel::overlayRects()
{
    std::vector<PixelRect> rects;
    for (const xcb_window_t window : display.client.topLevelsOfProcess(apparentProcess)) {
        if (const auto rect = display.client.clientRect(window)) {
            rects.push_back(*rect);
        }
    }
    return rects;
}

bool RunningQuorvel::showsExactly(const UnitFrames& frames, const PixelRect& area)
{
    const auto shown = overlayRects();
    const bool allThere = std::ranges::all_of(frames, [&](const UnitFrame& frame) {
        const auto expected = clearOfNeighbours(frame.within(area));
        return std::ranges::any_of(shown, [&](const PixelRect& rect) { return isNear(rect, expected); });
    });
    return allThere && shown.size() <= frames.size() + 1;
}

void RunningQuorvel::waitForFrames(const UnitFrames& frames, const PixelRect& area)
{
    try {
        display.client.waitFor("the overlay's frames", [&] { return showsExactly(frames, area); });
    } catch (const xtest::HarnessError& error) {
        std::string shown;
        for (const PixelRect& rect : overlayRects()) {
            shown += fmt::format(" ({}, {}, {}, {})", rect.x, rect.y, rect.width, rect.height);
        }
        throw xtest::HarnessError(fmt::format("{}; shown are:{}", error.what(), shown));
    }
}

void RunningQuorvel::waitForNoOverlay()
{
    display.client.waitFor("the overlay to go", [&] { return overlayRects().empty(); });
}

void RunningQuorvel::waitForOverlayWindows(std::size_t count)
{
    display.client.waitFor(fmt::format("{} overlay windows", count), [&] { return overlayRects().size() == count; });
}

PixelRect RunningQuorvel::waitUntilPlaced(xcb_window_t window, const PixelRect& expected)
{
    const Steps steps = growthSteps(display.client, window);
    PixelRect outer;
    const auto isPlaced = [&] {
        outer = display.client.outerRect(window).value_or(PixelRect());
        return within(outer.x, expected.x, 1) && within(outer.y, expected.y, 1) && outer.width <= expected.width + 1 &&
               outer.width >= expected.width - steps.width && outer.height <= expected.height + 1 &&
               outer.height >= expected.height - steps.height;
    };
    try {
        display.client.waitFor("a window to be placed", isPlaced);
    } catch (const xtest::HarnessError& error) {
        throw xtest::HarnessError(fmt::format("{}: expected ({}, {}, {}, {}), is ({}, {}, {}, {})", error.what(),
                                              expected.x, expected.y, expected.width, expected.height, outer.x, outer.y,
                                              outer.width, outer.height));
    }
    return outer;
}

void RunningQuorvel::waitUntilIdle()
{
    waitForNoOverlay();
    display.grabs.waitUntilKeyboardIsFree();
}

void RunningQuorvel::waitUntilHotKeysResume(int openings)
{
    for (int announcement = 0; announcement < 2 * openings; ++announcement) {
        running.waitForLine("the return of the hot keys",
                            [](std::string_view line) { return line.ends_with("; resuming shortcuts"); });
    }
    for (int hotKey = 0; hotKey < hotKeyCount; ++hotKey) {
        running.waitForLineStartingWith("Registered hotkey id=");
    }
}

int RunningQuorvel::end(int signal)
{
    const int status = running.end(signal);
    expectNothingLeft();
    return status;
}

void RunningQuorvel::expectNothingLeft()
{
    waitUntilIdle();
    display.grabs.waitUntilFree(hotKey());
}

} // namespace quorvel::e2e
