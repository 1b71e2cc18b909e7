#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "e2e/RunningQuorvel.h"
#include "e2e/TrayMenu.h"
#include "support/ClientProcess.h"
#include "support/TemporaryDirectory.h"
#include "support/TestDisplay.h"

namespace quorvel::soak {

// A display of its own with openbox, a tray, a few windows, one of them minimized, and the program at work.
class SoakDesktop {
public:
    static constexpr std::size_t visibleWindowCount = 5;

    explicit SoakDesktop(const std::filesystem::path& program);

    e2e::RunningQuorvel& quorvel() { return *running; }
    e2e::TrayMenu& menu() { return *trayMenu; }

    // By the hot key. Once both are done the program has done what it had put off before.
    void showOverlay();
    void hideOverlay();

    xtest::TestDisplay display;

private:
    void openWindows();

    xtest::TemporaryDirectory configuration;
    std::optional<e2e::TrayMenu> trayMenu;
    std::vector<std::unique_ptr<xtest::ClientProcess>> windows;
    std::unique_ptr<e2e::RunningQuorvel> running;
};

} // namespace quorvel::soak
