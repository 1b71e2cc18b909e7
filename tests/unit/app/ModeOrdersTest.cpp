// Whatever modes were entered in whatever order, leaving the current one leaves nothing behind.

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "app/MainController.h"
#include "tests/unit/app/MoveResizeFixture.h"

namespace quorvel {
namespace {

struct Entry {
    const char* name;
    KeyCode keyCode;
    std::uint64_t flags;
};

constexpr std::array hotKeys{
    Entry{"overlay", keys::o, commandShift},
    Entry{"move/resize", keys::r, commandOption},
    Entry{"switcher", 3, commandShift},
};

enum class KeyCapture { tap, panel };

struct Surroundings {
    const char* name;
    KeyCapture capture;
    const char* displayMode;
};

class ModeOrdersTest : public MoveResizeFixture, public testing::WithParamInterface<Surroundings> {
protected:
    static constexpr std::size_t longestOrder = 4;

    ModeOrdersTest()
    {
        store("fsDefaultDisplayMode", GetParam().displayMode);
        if (GetParam().capture == KeyCapture::panel) {
            desktop.permissions.deny(Permission::inputMonitoring);
        }
        furnish({265, 100, 300, 300}, {neighbour, {900, 500, 300, 200}});
        desktop.minimize(desktop.openWindow(editor, "Minimized", {10, 10, 200, 200}));
        launch();
    }

    // Every order of hot keys up to the longest, each from where the one before ended.
    void walk(const std::string& order, std::size_t length, const std::function<void(const std::string&)>& check)
    {
        if (length == longestOrder) {
            return;
        }
        for (const auto& hotKey : hotKeys) {
            check(order + hotKey.name + " ");
            walk(order + hotKey.name + " ", length + 1, check);
        }
    }

    void press(const std::string& order)
    {
        for (const auto& hotKey : hotKeys) {
            if (order.starts_with(hotKey.name)) {
                type(hotKey.keyCode, hotKey.flags);
                press(order.substr(std::string_view(hotKey.name).size() + 1));
            }
        }
    }

    void expectNothingLeft(const std::string& order)
    {
        const auto& modes = controller().modeState();
        EXPECT_EQ(shownWindowCount(), 0U) << order;
        EXPECT_TRUE(blocker().blockedKeyCodes().empty()) << order;
        EXPECT_EQ(state(), StateManager::States::normal) << order;
        EXPECT_EQ(modes.moveResizeElement, nullptr) << order;
        EXPECT_FALSE(modes.isMinimizedPanelVisible || modes.isAllWindowsPanelVisible) << order;
        EXPECT_TRUE(modes.minimizedWindowsPanels.empty() && modes.allWindowsListPanels.empty()) << order;
        EXPECT_EQ(desktop.eventMonitors.mouseMonitorCount(), 0U) << order;
        EXPECT_EQ(desktop.eventMonitors.keyMonitorCount(), 0U) << order;
        EXPECT_EQ(desktop.mainQueue.pendingCount(), 0U) << order;
    }
};

TEST_P(ModeOrdersTest, LeavingLeavesNothingBehind)
{
    std::size_t orders = 0;
    std::size_t leftFromAMode = 0;
    walk("", 0, [&](const std::string& order) {
        press(order);
        leftFromAMode += shownWindowCount() > 0 ? 1 : 0;
        controller().exitCurrentMode();
        desktop.drain();
        expectNothingLeft(order);
        ++orders;
    });
    EXPECT_EQ(orders, 3U + 9U + 27U + 81U);
    EXPECT_GT(leftFromAMode, orders / 2);
}

TEST_P(ModeOrdersTest, LeavingInTheMidstOfASnapLeavesNothingBehind)
{
    walk("", 0, [&](const std::string& order) {
        desktop.moveWindow(window, {265, 100, 300, 300});
        press(order);
        right();
        controller().exitCurrentMode();
        desktop.drain();
        expectNothingLeft(order);
    });
}

INSTANTIATE_TEST_SUITE_P(Each, ModeOrdersTest,
                         testing::Values(Surroundings{"FramesByTap", KeyCapture::tap, "frames"},
                                         Surroundings{"ListByTap", KeyCapture::tap, "list"},
                                         Surroundings{"FramesByPanel", KeyCapture::panel, "frames"},
                                         Surroundings{"ListByPanel", KeyCapture::panel, "list"}),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

} // namespace
} // namespace quorvel
