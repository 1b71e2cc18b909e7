#include "soak/SoakDesktop.h"

#include <array>

#include <fmt/format.h>

namespace quorvel::soak {

using xtest::ClientProcess;

SoakDesktop::SoakDesktop(const std::filesystem::path& program)
{
    display.startWindowManager(xtest::WindowManager::openbox);
    trayMenu.emplace(display, xtest::PixelRect{0, 0, display.server.width(), display.server.height()});
    openWindows();
    running = std::make_unique<e2e::RunningQuorvel>(
        display, program, configuration,
        // With somewhere to look for updates every entry of the menu down to the preferences can be chosen.
        xtest::ProgramUnderTest::Options{.environment = {{"QUORVEL_UPDATE_FEED", "http://127.0.0.1:9/"}}});
    trayMenu->waitForIcon(*running);
}

void SoakDesktop::showOverlay()
{
    running->pressHotKey();
    display.client.waitFor("the overlay", [this] { return !running->overlayRects().empty(); });
}

void SoakDesktop::hideOverlay()
{
    display.keyboard.tap(XKB_KEY_Escape);
    running->waitUntilIdle();
}

void SoakDesktop::openWindows()
{
    for (std::size_t number = 0; number <= visibleWindowCount; ++number) {
        windows.push_back(std::make_unique<ClientProcess>(display.server, display.client, ClientProcess::Kind::plain,
                                                          fmt::format("Window {}", number)));
    }
    const auto minimized = windows.front()->window();
    constexpr std::uint32_t iconic = 3;
    display.client.sendToWindowManager(minimized, "WM_CHANGE_STATE", {iconic, 0, 0, 0, 0});
    display.client.waitFor("a window to be minimized",
                           [&] { return display.client.hasState(minimized, "_NET_WM_STATE_HIDDEN"); });
    display.client.activate(windows.back()->window());
}

} // namespace quorvel::soak
