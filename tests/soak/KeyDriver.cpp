#include "soak/KeyDriver.h"

#include <ranges>

namespace quorvel::soak {

KeyDriver::KeyDriver(SoakDesktop& desktop)
    : desktop(desktop), windows(desktop.display.client, desktop.quorvel().program().id())
{}

bench::Milliseconds KeyDriver::show(const xtest::KeyCombination& hotKey, std::size_t windowCount)
{
    auto& keyboard = desktop.display.keyboard;
    for (const auto modifier : hotKey.modifiers) {
        keyboard.pressModifier(modifier);
    }
    const auto code = keyboard.codeOf(hotKey.keysym);
    const auto begin = std::chrono::steady_clock::now();
    keyboard.tapCode({}, code);
    for (const auto modifier : hotKey.modifiers | std::views::reverse) {
        keyboard.releaseModifier(modifier);
    }
    windows.waitUntil(windowCount);
    return std::chrono::steady_clock::now() - begin;
}

void KeyDriver::type(xcb_keysym_t key, std::size_t windowCount)
{
    desktop.display.keyboard.tap(key);
    windows.waitUntil(windowCount);
}

void KeyDriver::typeAndReplace(xcb_keysym_t key, std::size_t windowCount)
{
    const auto before = windows.arrivals();
    desktop.display.keyboard.tap(key);
    desktop.display.client.waitFor("other windows of the program", [&] {
        return windows.count() == windowCount && windows.arrivals() >= before + windowCount;
    });
}

void KeyDriver::waitUntilIdle()
{
    // In this order: the keyboard comes back before the windows go, and what has been shown until then is known by
    // then.
    desktop.display.grabs.waitUntilKeyboardIsFree();
    windows.waitUntil(0);
}

} // namespace quorvel::soak
