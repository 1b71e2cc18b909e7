#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "e2e/RunningQuorvel.h"
#include "e2e/tour/Desk.h"
#include "e2e/tour/Report.h"
#include "support/TemporaryDirectory.h"

namespace quorvel::tour {

// Shows the main job with real keys on a furnished desktop, takes pictures and keeps a report.
class Tour {
public:
    Tour(const std::filesystem::path& program, const std::filesystem::path& pictures);

    // The whole tour; a step that goes wrong stands in the report and ends it.
    void perform();
    const Report& report() const { return results; }

private:
    void showAndPlace();
    void stepThroughLayouts();
    void jumpByDigit();
    void switchFocus();
    void moveAndResize();
    void useSecondMonitor();
    void cancel();
    void finish();

    // One row of the report. `step` returns what really happened and throws when it is not what was expected.
    void step(const std::string& key, const std::string& effect, const std::string& expected,
              const std::function<std::string()>& step);

    void expectFrames(const std::string& key, const std::string& effect, const e2e::UnitFrames& frames,
                      const xtest::PixelRect& area, const std::function<void()>& keys);
    void expectPlacement(const std::string& key, const std::string& effect, xcb_window_t window,
                         const xtest::PixelRect& expected, const std::function<void()>& keys);

    // The same for the planner, while it stays marked.
    void expectMove(const std::string& key, const std::string& effect, const xtest::PixelRect& expected,
                    const std::function<void()>& keys);
    void expectActive(const std::string& key, const std::string& effect, xtest::ClientProcess& program,
                      const std::function<void()>& keys);
    void expectWindows(const std::string& key, const std::string& effect, std::size_t count,
                       const std::function<void()>& keys);

    // Once the picture no longer changes: programs paint when they like.
    void takePicture(const std::string& name, const xtest::PixelRect& part);

    std::filesystem::path pictures;
    Desk desk;
    xtest::TemporaryDirectory configuration;
    e2e::RunningQuorvel quorvel;
    Report results;
};

} // namespace quorvel::tour
