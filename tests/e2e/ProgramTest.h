#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include <gmock/gmock.h>

#include "e2e/RunningQuorvel.h"
#include "support/FileContent.h"
#include "support/StrutPanel.h"
#include "support/TemporaryDirectory.h"
#include "support/TestDisplay.h"
#include "support/TestWindow.h"

namespace quorvel::e2e {

// The program on an Openbox desktop of 1920 by 1080 (the display is larger, so that a second monitor fits beside it).
class ProgramTest : public testing::Test {
protected:
    static constexpr xtest::PixelRect screen{0, 0, 1920, 1080};
    static constexpr xtest::PixelRect secondScreen{1920, 0, 1280, 1024};

    ProgramTest();

    // On another display, which the test furnishes by itself.
    explicit ProgramTest(const xtest::XServer::Options& server) : display(server) {}

    // Starts the program and waits until its hot keys are there. The tests expect it to survive.
    RunningQuorvel& start(const xtest::ProgramUnderTest::Options& options = {});

    // Ends the program as a session's end does and checks that it left nothing behind and complained of nothing.
    void endCleanly();

    // A window with the focus.
    std::unique_ptr<xtest::TestWindow> openWindow(const xtest::PixelRect& rect = {200, 150, 700, 500});

    // Until the window manager counts it among its windows, which is when the program hears of it.
    void waitForPanel(const xtest::StrutPanel& panel);

    void switchSecondScreenOn();

    // Shows the overlay and waits for its frames.
    void showOverlay(const UnitFrames& frames, const xtest::PixelRect& area = screen);

    // Types a key and waits until the program has handled it, by the line that it prints for every key it swallows.
    void typeIntoOverlay(xcb_keysym_t key);

    // A settings file with this inside its dictionary.
    void writeSettings(std::string_view entries);

    std::filesystem::path settingsFile() const { return configuration.path() / "quorvel/settings.plist"; }
    std::string storedSettings() const { return xtest::contentOf(settingsFile()); }

    // What the first start found or stored; empty before it.
    const std::string& settingsAtStart() const { return firstSettings; }

    xtest::TestDisplay display;
    xtest::TemporaryDirectory configuration;
    std::unique_ptr<RunningQuorvel> quorvel;

private:
    std::string firstSettings;
};

} // namespace quorvel::e2e
