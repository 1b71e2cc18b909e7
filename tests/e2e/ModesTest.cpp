#include "e2e/ModesTest.h"

#include <algorithm>

#include "support/Patience.h"

namespace quorvel::e2e {

using xtest::PixelRect;
using Modifier = xtest::KeyInjector::Modifier;

std::string nameOf(Mode mode)
{
    switch (mode) {
    case Mode::overlay:
        return "overlay";
    case Mode::switcher:
        return "switcher";
    case Mode::moveResize:
        return "moveResize";
    }
    throw xtest::HarnessError("unknown mode");
}

void ModesTest::TearDown()
{
    EXPECT_EQ(storedSettings(), settingsAtStart());
}

void ModesTest::enter(Mode mode, xcb_window_t window)
{
    switch (mode) {
    case Mode::overlay:
        showOverlay(fullScreen);
        break;
    case Mode::switcher:
        quorvel->pressSwitcherHotKey();
        display.client.waitFor("letters", [&] { return quorvel->overlayRects().size() >= 2; });
        break;
    case Mode::moveResize:
        display.keyboard.tap({Modifier::command, Modifier::option}, XKB_KEY_r);
        display.client.waitFor("a frame around the window", [&] { return isShown(rectOf(window)); });
        break;
    }
}

void ModesTest::leave()
{
    display.keyboard.tap(XKB_KEY_Escape);
    quorvel->waitUntilIdle();
}

void ModesTest::work(Mode mode, xcb_window_t window)
{
    enter(mode, window);
    auto rect = rectOf(window);
    switch (mode) {
    case Mode::overlay:
        display.keyboard.tap(XKB_KEY_a);
        quorvel->waitUntilPlaced(window, screen);
        break;
    case Mode::switcher:
        display.keyboard.tap(XKB_KEY_a);
        break;
    case Mode::moveResize:
        rect.x += 20;
        display.keyboard.tap(XKB_KEY_Right);
        quorvel->waitUntilPlaced(window, rect);
        display.keyboard.tap(XKB_KEY_Escape);
        break;
    }
    quorvel->waitUntilIdle();
    EXPECT_EQ(display.client.activeWindow(), window);
}

void ModesTest::workAnew(Mode mode)
{
    const auto window = openWindow({260, 220, 500, 350});
    work(mode, window->id());
}

std::vector<std::string> ModesTest::newLines()
{
    const auto& all = quorvel->program().outputLines();
    std::vector<std::string> lines(all.begin() + static_cast<std::ptrdiff_t>(told), all.end());
    told = all.size();
    return lines;
}

std::ptrdiff_t ModesTest::linesOf(const std::string& line)
{
    return std::ranges::count(quorvel->program().outputLines(), line);
}

PixelRect ModesTest::rectOf(xcb_window_t window)
{
    return display.client.outerRect(window).value_or(PixelRect());
}

bool ModesTest::isShown(const PixelRect& rect)
{
    return std::ranges::any_of(quorvel->overlayRects(), [&](const PixelRect& each) { return isNear(each, rect); });
}

} // namespace quorvel::e2e
