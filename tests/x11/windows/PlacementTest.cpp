#include <gtest/gtest.h>

#include "x11/windows/AdapterDisplay.h"

namespace quorvel::x11 {
namespace {

using xtest::ClientProcess;
using xtest::PixelRect;
using Manager = xtest::WindowManager;

enum class State { normal, maximized, fullscreen };

constexpr AxRect target{300, 200, 800, 600};
constexpr PixelRect targetPixels{300, 200, 800, 600};

// The largest step of size that any program here has.
constexpr int coarsestIncrement = 16;

// Everything runs on one server with one window manager, for these take long to start.
class Placing : public testing::TestWithParam<Manager> {
protected:
    void SetUp() override
    {
        if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
            GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
        }
        desktop = std::make_unique<AdapterDisplay>();
        desktop->display.startWindowManager(GetParam());
    }

    xtest::XClient& client() { return desktop->client(); }

    void bring(xcb_window_t window, State state)
    {
        if (state == State::maximized && GetParam() != Manager::i3) { // which has no such state
            client().sendToWindowManager(window, "_NET_WM_STATE",
                                         {1, client().atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                                          client().atom("_NET_WM_STATE_MAXIMIZED_HORZ"), 2, 0});
            desktop->waitFor("a maximized window", [&] {
                const auto outer = client().outerRect(window);
                return client().hasState(window, "_NET_WM_STATE_MAXIMIZED_VERT") && outer && outer->width > 1800;
            });
        } else if (state == State::fullscreen) {
            client().sendToWindowManager(window, "_NET_WM_STATE",
                                         {1, client().atom("_NET_WM_STATE_FULLSCREEN"), XCB_NONE, 2, 0});
            desktop->waitFor("a full-screen window", [&] {
                return client().hasState(window, "_NET_WM_STATE_FULLSCREEN") &&
                       client().outerRect(window) == PixelRect{0, 0, 1920, 1080};
            });
        }
    }

    // A program that sizes its window in steps gets what fits into the target.
    void expectOnTarget(ClientProcess::Kind kind, xcb_window_t window)
    {
        const auto outer = client().outerRect(window).value_or(PixelRect{});
        EXPECT_EQ(outer.x, targetPixels.x);
        EXPECT_EQ(outer.y, targetPixels.y);
        const int slack = kind == ClientProcess::Kind::xterm ? coarsestIncrement : 1;
        EXPECT_LE(outer.width, targetPixels.width);
        EXPECT_GT(outer.width, targetPixels.width - slack);
        EXPECT_LE(outer.height, targetPixels.height);
        EXPECT_GT(outer.height, targetPixels.height - slack);
        EXPECT_FALSE(client().hasState(window, "_NET_WM_STATE_FULLSCREEN"));
        EXPECT_FALSE(client().hasState(window, "_NET_WM_STATE_MAXIMIZED_VERT"));
    }

    std::unique_ptr<AdapterDisplay> desktop;
};

TEST_P(Placing, EveryProgramLandsOnItsTargetFromEveryState)
{
    for (const auto kind : ClientProcess::allKinds()) {
        if (!ClientProcess::isInstalled(kind)) {
            continue;
        }
        ClientProcess program(desktop->display.server, client(), kind);
        for (const auto state : {State::normal, State::maximized, State::fullscreen}) {
            SCOPED_TRACE(ClientProcess::nameOf(kind) + " from state " + std::to_string(static_cast<int>(state)));
            bring(program.window(), state);
            desktop->place(AdapterDisplay::elementOf(program), target);
            expectOnTarget(kind, program.window());
        }
        program.kill();
    }
}

INSTANTIATE_TEST_SUITE_P(Every, Placing, testing::ValuesIn(xtest::allWindowManagers()),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::x11
