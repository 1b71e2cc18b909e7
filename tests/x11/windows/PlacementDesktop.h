#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "support/ClientProcess.h"
#include "support/StrutPanel.h"
#include "support/UnitFrame.h"
#include "x11/windows/AdapterDisplay.h"

namespace quorvel::x11 {

enum class WindowState { normal, maximized, fullscreen };

std::ostream& operator<<(std::ostream& stream, WindowState state);

// A window manager and a program under it; what is tested of them happens on one server, for all three take long to
// start.
class PlacementDesktop : public testing::TestWithParam<std::tuple<xtest::WindowManager, xtest::ClientProcess::Kind>> {
public:
    static std::string name(const testing::TestParamInfo<ParamType>& info);

protected:
    void SetUp() override;

    // Starts the server, the window manager and the program.
    void open();

    // Whether the server has outputs that can be plugged in and out. Otherwise only one monitor is tested, for parts of
    // an output count for little with most window managers.
    static bool hasOutputs();

    // i3 has a place for panels only at the top and at the bottom.
    bool knowsPanelsAt(xtest::Side side) const;

    // Gives the window a state, if the window manager knows it.
    void bring(WindowState state);

    // Puts the window into a frame of the screen whose visible part is `area`, as the portable program does it.
    void place(const xtest::UnitFrame& frame, const xtest::PixelRect& area);

    // Expects a normal window there.
    void expectOn(const xtest::PixelRect& target);

    xtest::WindowManager manager() const { return std::get<0>(GetParam()); }
    xtest::ClientProcess::Kind kind() const { return std::get<1>(GetParam()); }
    xtest::XClient& client() { return desktop->client(); }

    std::unique_ptr<AdapterDisplay> desktop;
    std::unique_ptr<xtest::ClientProcess> program;

private:
    std::optional<Screen> screenShowing(const xtest::PixelRect& area);
};

} // namespace quorvel::x11
