#include <algorithm>
#include <vector>

#include "e2e/ProgramTest.h"

namespace quorvel::e2e {
namespace {

using xtest::PixelRect;
using xtest::TestWindow;
using xtest::WindowManager;
using Modifier = xtest::KeyInjector::Modifier;

// Another program has taken keys, so that a panel with the focus has to stand in for the keyboard. A person types as
// fast as can be.
class KeyCapturePanelUnder : public ProgramTest, public testing::WithParamInterface<WindowManager> {
protected:
    void SetUp() override
    {
        if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
            GTEST_SKIP() << xtest::nameOf(GetParam()) << " is not installed";
        }
        display.windowManager().replaceWith(GetParam());
        writeSettings("<key>mrSnapEnabled</key><false/>");
        start();
        left = openWindow({200, 100, 300, 200});
        right = openWindow({200, 600, 300, 200});
    }

    // As a rival program does, so that the mode does not get all its keys.
    void takeKeyAway(xcb_keysym_t key)
    {
        auto* const link = display.client.connection();
        xcb_grab_key(link, 0, display.client.root(), 0, display.keyboard.codeOf(key), XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
        display.client.sync();
    }

    PixelRect rectOf(const TestWindow& window) { return display.client.outerRect(window.id()).value_or(PixelRect()); }

    void waitUntilFramed(const TestWindow& window)
    {
        display.client.waitFor("a frame around the window", [&] {
            const auto rects = quorvel->overlayRects();
            return std::ranges::any_of(rects, [&](const auto& rect) { return isNear(rect, rectOf(window)); });
        });
    }

    static std::vector<int> presses(TestWindow& window)
    {
        std::vector<int> codes;
        for (const auto& key : window.keys()) {
            if (key.pressed) {
                codes.push_back(key.code);
            }
        }
        return codes;
    }

    static PixelRect moved(PixelRect rect, int steps)
    {
        rect.x += 20 * steps;
        return rect;
    }

    std::unique_ptr<TestWindow> left;
    std::unique_ptr<TestWindow> right;
};

TEST_P(KeyCapturePanelUnder, NoKeyIsLostAndNoneReachesAWindowThatTabActivates)
{
    constexpr int rounds = 12;
    takeKeyAway(XKB_KEY_Escape);
    display.keyboard.tap({Modifier::command, Modifier::option}, XKB_KEY_r);
    waitUntilFramed(*right);
    const auto first = moved(rectOf(*right), 1);
    display.keyboard.tap(XKB_KEY_Right);
    quorvel->waitUntilPlaced(right->id(), first);
    const auto rightEnd = moved(first, rounds / 2);
    const auto leftEnd = moved(rectOf(*left), rounds / 2);
    const auto before = presses(*right);

    for (int round = 0; round < rounds; ++round) {
        display.keyboard.tap(XKB_KEY_Right);
        display.keyboard.tap(XKB_KEY_Tab);
    }
    quorvel->waitUntilPlaced(right->id(), rightEnd);
    quorvel->waitUntilPlaced(left->id(), leftEnd);
    EXPECT_EQ(presses(*left), std::vector<int>());
    EXPECT_EQ(presses(*right), before);
}

// i3 puts a window off by its frame until it is corrected, and Tab does not find it meanwhile.
INSTANTIATE_TEST_SUITE_P(Most, KeyCapturePanelUnder,
                         testing::Values(WindowManager::openbox, WindowManager::metacity, WindowManager::xfwm4,
                                         WindowManager::icewm, WindowManager::fluxbox, WindowManager::kwin),
                         [](const auto& parameter) { return xtest::nameOf(parameter.param); });

} // namespace
} // namespace quorvel::e2e
