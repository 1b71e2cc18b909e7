#include "e2e/tour/Tour.h"

#include <fmt/format.h>

#include "e2e/StillPicture.h"
#include "support/Patience.h"

namespace quorvel::tour {
namespace {

using xtest::PixelRect;

constexpr auto hotKeyName = "Command-Shift-O";
constexpr auto switcherKeyName = "Command-Shift-F";
constexpr auto moveKeyName = "Command-Option-R";

// The windows stay visible under the focus switcher's frames.
constexpr auto settings = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>wsBackgroundColor</key><string>#00D4FF1F</string>
  <key>wsTextBackgroundColor</key><string>#14191FE6</string>
</dict></plist>
)";

xtest::TemporaryDirectory& withSettings(xtest::TemporaryDirectory& configuration)
{
    configuration.write("quorvel/settings.plist", settings);
    return configuration;
}

} // namespace

Tour::Tour(const std::filesystem::path& program, const std::filesystem::path& pictures)
    : pictures(pictures), quorvel(desk.display, program, withSettings(configuration))
{
    desk.display.client.watchPainting();
    desk.openTray();
}

void Tour::perform()
{
    try {
        takePicture("1-desktop", desk.firstMonitor());
        showAndPlace();
        stepThroughLayouts();
        jumpByDigit();
        switchFocus();
        moveAndResize();
        useSecondMonitor();
        cancel();
        finish();
    } catch (const xtest::HarnessError&) {
        takePicture("failure", desk.firstMonitor());
    }
}

void Tour::showAndPlace()
{
    desk.display.client.activate(desk.letter().window());
    expectFrames(hotKeyName, "show layout 1", e2e::fullScreen, desk.workArea(), [&] { quorvel.pressHotKey(); });
    expectFrames("Down, Down", "show layout 3", e2e::sideBySide, desk.workArea(), [&] {
        desk.display.keyboard.tap(XKB_KEY_Down);
        desk.display.keyboard.tap(XKB_KEY_Down);
    });
    takePicture("2-overlay", desk.firstMonitor());
    expectPlacement("A", "place the letter", desk.letter().window(), e2e::sideBySide[0].within(desk.workArea()),
                    [&] { desk.display.keyboard.tap(XKB_KEY_a); });
}

void Tour::stepThroughLayouts()
{
    desk.display.client.activate(desk.terminal().window());
    expectFrames(hotKeyName, "show layout 3 again", e2e::sideBySide, desk.workArea(), [&] { quorvel.pressHotKey(); });
    expectFrames("Up", "show layout 2", e2e::centered, desk.workArea(), [&] { desk.display.keyboard.tap(XKB_KEY_Up); });
    takePicture("3-other-layout", desk.firstMonitor());
}

void Tour::jumpByDigit()
{
    expectFrames("6", "jump to layout 6", e2e::fourTiles, desk.workArea(),
                 [&] { desk.display.keyboard.tap(XKB_KEY_6); });
    takePicture("4-jump", desk.firstMonitor());
    expectPlacement("D", "place the terminal", desk.terminal().window(), e2e::fourTiles[3].within(desk.workArea()),
                    [&] { desk.display.keyboard.tap(XKB_KEY_d); });
    desk.display.client.activate(desk.planner().window());
    expectFrames(hotKeyName, "show layout 6 again", e2e::fourTiles, desk.workArea(), [&] { quorvel.pressHotKey(); });
    expectPlacement("B", "place the planner", desk.planner().window(), e2e::fourTiles[1].within(desk.workArea()),
                    [&] { desk.display.keyboard.tap(XKB_KEY_b); });
    takePicture("5-placed", desk.firstMonitor());
}

void Tour::switchFocus()
{
    auto& keyboard = desk.display.keyboard;
    expectWindows(switcherKeyName, "put letters on the windows", 2 * 3, [&] { quorvel.pressSwitcherHotKey(); });
    takePicture("6-letters", desk.firstMonitor());
    expectActive("C", "go to the letter", desk.letter(), [&] { keyboard.tap(XKB_KEY_c); });
    desk.minimize(desk.terminal());
    expectWindows(switcherKeyName, "put letters on the windows", 2 * 2, [&] { quorvel.pressSwitcherHotKey(); });
    expectWindows("Tab, M", "show both lists", 2 * 2 + 2, [&] {
        keyboard.tap(XKB_KEY_Tab);
        keyboard.tap(XKB_KEY_m);
    });
    takePicture("7-lists", desk.firstMonitor());
    expectActive("C", "restore the terminal", desk.terminal(), [&] { keyboard.tap(XKB_KEY_c); });
    expectWindows(switcherKeyName, "put letters on the windows", 2 * 3, [&] { quorvel.pressSwitcherHotKey(); });
    expectActive("C", "go to the planner", desk.planner(), [&] { keyboard.tap(XKB_KEY_c); });
}

// The letter's right edge is at 750; the planner comes from the right, in steps of 20.
void Tour::moveAndResize()
{
    auto& keyboard = desk.display.keyboard;
    const auto tap = [&](int times, xcb_keysym_t key, const std::vector<xtest::KeyInjector::Modifier>& modifiers = {}) {
        for (int i = 0; i < times; ++i) {
            keyboard.tap(modifiers, key);
        }
    };
    desk.spreadWindows();
    desk.display.client.activate(desk.planner().window());
    expectWindows(moveKeyName, "mark the planner", 1, [&] {
        keyboard.tap({xtest::KeyInjector::Modifier::command, xtest::KeyInjector::Modifier::option}, XKB_KEY_r);
    });
    expectMove("Left, 5 times", "move it to the letter", {750, 110, 660, 430}, [&] { tap(5, XKB_KEY_Left); });
    takePicture("8-snapped", desk.firstMonitor());
    expectMove("Left, 3 times", "pull it over the letter", {730, 110, 660, 430}, [&] { tap(3, XKB_KEY_Left); });
    expectMove("Shift-Right", "make it wider", {730, 110, 680, 430},
               [&] { tap(1, XKB_KEY_Right, {xtest::KeyInjector::Modifier::shift}); });
    expectPlacement("Escape", "leave it there", desk.planner().window(), {730, 110, 680, 430},
                    [&] { tap(1, XKB_KEY_Escape); });
}

void Tour::useSecondMonitor()
{
    desk.switchSecondMonitorOn();
    expectFrames(hotKeyName, "show layout 6 again", e2e::fourTiles, desk.workArea(), [&] { quorvel.pressHotKey(); });
    expectFrames("Right", "show it on monitor 2", e2e::fourTiles, desk.secondMonitor(),
                 [&] { desk.display.keyboard.tap(XKB_KEY_Right); });
    takePicture("9-second-monitor", desk.bothMonitors());
    expectFrames("2", "jump to layout 2 there", e2e::centered, desk.secondMonitor(),
                 [&] { desk.display.keyboard.tap(XKB_KEY_2); });
    expectPlacement("A", "place the planner there", desk.planner().window(),
                    e2e::centered[0].within(desk.secondMonitor()), [&] { desk.display.keyboard.tap(XKB_KEY_a); });
    takePicture("10-placed-on-second-monitor", desk.bothMonitors());
}

void Tour::cancel()
{
    desk.display.client.activate(desk.letter().window());
    const auto before = desk.display.client.outerRect(desk.letter().window()).value_or(PixelRect());
    expectFrames(hotKeyName, "show layout 2", e2e::centered, desk.workArea(), [&] { quorvel.pressHotKey(); });
    expectPlacement("Escape", "leave all as it is", desk.letter().window(), before, [&] {
        desk.display.keyboard.tap(XKB_KEY_Escape);
        quorvel.waitForNoOverlay();
    });
}

void Tour::finish()
{
    step("(end)", "give every key back", "exit status 0", [&] {
        const int status = quorvel.end();
        const auto text = fmt::format("exit status {}", status);
        if (status != 0) {
            throw xtest::HarnessError(text);
        }
        return text;
    });
}

void Tour::step(const std::string& key, const std::string& effect, const std::string& expected,
                const std::function<std::string()>& step)
{
    try {
        results.add({.key = key, .effect = effect, .expected = expected, .actual = step(), .passed = true});
    } catch (const xtest::HarnessError& error) {
        results.add({.key = key, .effect = effect, .expected = expected, .actual = error.what(), .passed = false});
        throw;
    }
}

void Tour::expectFrames(const std::string& key, const std::string& effect, const e2e::UnitFrames& frames,
                        const PixelRect& area, const std::function<void()>& keys)
{
    const auto text = fmt::format("{} frame{} on {}", frames.size(), frames.size() == 1 ? "" : "s", describe(area));
    step(key, effect, text, [&] {
        keys();
        quorvel.waitForFrames(frames, area);
        return text;
    });
}

void Tour::expectPlacement(const std::string& key, const std::string& effect, xcb_window_t window,
                           const PixelRect& expected, const std::function<void()>& keys)
{
    step(key, effect, describe(expected), [&] {
        keys();
        const auto actual = quorvel.waitUntilPlaced(window, expected);
        quorvel.waitUntilIdle();
        return describe(actual);
    });
}

void Tour::expectMove(const std::string& key, const std::string& effect, const PixelRect& expected,
                      const std::function<void()>& keys)
{
    step(key, effect, describe(expected), [&] {
        keys();
        return describe(quorvel.waitUntilPlaced(desk.planner().window(), expected));
    });
}

void Tour::expectActive(const std::string& key, const std::string& effect, xtest::ClientProcess& program,
                        const std::function<void()>& keys)
{
    auto& client = desk.display.client;
    const std::string text = "the focus is there";
    step(key, effect, text, [&] {
        keys();
        client.waitFor("a window to become active", [&] { return client.activeWindow() == program.window(); });
        quorvel.waitUntilIdle();
        return text;
    });
}

void Tour::expectWindows(const std::string& key, const std::string& effect, std::size_t count,
                         const std::function<void()>& keys)
{
    const auto text = fmt::format("{} window{} of Quorvel", count, count == 1 ? "" : "s");
    step(key, effect, text, [&] {
        keys();
        quorvel.waitForOverlayWindows(count);
        return text;
    });
}

void Tour::takePicture(const std::string& name, const PixelRect& part)
{
    e2e::stillPicture(desk.display.client, part).writePng(pictures / (name + ".png"));
}

} // namespace quorvel::tour
