#include "contract/x11/X11SessionVerbs.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::contract {

namespace {

constexpr std::uint32_t sourceIsPager = 2;
constexpr std::uint32_t sizeFlags = 3U << 10U | sourceIsPager << 12U;

} // namespace

X11SessionVerbs::X11SessionVerbs(xtest::TestDisplay& display, MainQueue& mainQueue,
                                 std::filesystem::path autostartDirectory, OpenUpdater openUpdater)
    : display(display),
      mainQueue(mainQueue),
      autostartDirectory(std::move(autostartDirectory)),
      openUpdater(std::move(openUpdater))
{}

bool X11SessionVerbs::isShown(std::string_view title)
{
    return client.isViewable(windowTitled(title));
}

Size X11SessionVerbs::contentSize(std::string_view title)
{
    const auto rect = client.clientRect(windowTitled(title)).value();
    return {static_cast<double>(rect.width), static_cast<double>(rect.height)};
}

void X11SessionVerbs::resize(std::string_view title, const Size& contentSize)
{
    client.sendToWindowManager(windowTitled(title), "_NET_MOVERESIZE_WINDOW",
                               {sizeFlags, 0, 0, static_cast<std::uint32_t>(contentSize.width),
                                static_cast<std::uint32_t>(contentSize.height)});
}

void X11SessionVerbs::focusShellWindow(std::string_view title)
{
    client.activate(windowTitled(title));
}

void X11SessionVerbs::closeShellWindow(std::string_view title)
{
    client.sendToWindowManager(windowTitled(title), "_NET_CLOSE_WINDOW", {XCB_CURRENT_TIME, sourceIsPager, 0, 0, 0});
}

// Looks again and again, for the toolkit keeps the main loop to itself while the alert is up.
void X11SessionVerbs::answerNextAlert(AlertAnswer answer)
{
    const xcb_keysym_t key = answer == AlertAnswer::defaultButton ? XKB_KEY_Return : XKB_KEY_Escape;
    const auto activeBefore = client.activeWindow();
    person = mainQueue.repeat(std::chrono::milliseconds(5), [this, key, activeBefore, deadline = xtest::Deadline()] {
        const auto active = client.activeWindow();
        if (active != XCB_WINDOW_NONE && active != activeBefore && client.processOf(active) == getpid()) {
            display.keyboard.tap(key);
            person.reset();
        } else if (deadline.hasPassed()) {
            display.server.kill(); // ends the toolkit, and with it a test that would wait forever
        }
    });
}

void X11SessionVerbs::removeLoginItem()
{
    std::filesystem::remove(autostartDirectory / "quorvel.desktop");
}

Updater& X11SessionVerbs::reopenedUpdater()
{
    laterUpdater = openUpdater();
    return *laterUpdater;
}

xcb_window_t X11SessionVerbs::windowTitled(std::string_view title)
{
    const auto windows = client.managedWindows();
    const auto found = std::ranges::find_if(
        windows, [&](xcb_window_t window) { return client.textProperty(window, "_NET_WM_NAME") == title; });
    return found == windows.end() ? xcb_window_t{XCB_WINDOW_NONE} : *found;
}

} // namespace quorvel::contract
