#include <memory>
#include <vector>

#include "contract/ContractTest.h"
#include "platform/EventMonitors.h"
#include "platform/OverlayWindows.h"
#include "platform/Workspace.h"

namespace quorvel::contract {
namespace {

constexpr KeyCode keyB = 11;

class EventMonitorsContract : public ContractTest {
protected:
    const AxRect somewhere{100.0, 120.0, 500.0, 400.0};
    const AxPoint inside{300.0, 300.0};
    EventMonitors& monitors = port(&ContractPorts::eventMonitors);
};

TEST_F(EventMonitorsContract, APressOverAnotherApplicationIsSeenLaterAndReachesItAllTheSame)
{
    const auto editor = desktop->openWindow("Editor", "Notes", somewhere);
    desktop->openWindow("Browser", "News", {700.0, 120.0, 300.0, 300.0});
    int presses = 0;
    const auto monitor = monitors.addGlobalMouseDownMonitor([&] { ++presses; });

    desktop->clickMouse(inside);
    EXPECT_EQ(presses, 0);

    EXPECT_TRUE(desktop->waitUntil([&] { return presses == 1; }));
    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->isFocused(editor); }));
}

TEST_F(EventMonitorsContract, EachMonitorSeesAPressOverTheEmptyDesktop)
{
    int first = 0;
    int second = 0;
    const auto one = monitors.addGlobalMouseDownMonitor([&] { ++first; });
    const auto other = monitors.addGlobalMouseDownMonitor([&] { ++second; });

    desktop->clickMouse(inside);

    EXPECT_TRUE(desktop->waitUntil([&] { return first == 1 && second == 1; }));
}

TEST_F(EventMonitorsContract, AnEndedMonitorSeesNothing)
{
    int presses = 0;
    auto monitor = monitors.addGlobalMouseDownMonitor([&] { ++presses; });
    monitor.reset();

    desktop->clickMouse(inside);
    desktop->settle();

    EXPECT_EQ(presses, 0);
}

TEST_F(EventMonitorsContract, AMonitorCanEndItself)
{
    int presses = 0;
    Subscription monitor;
    monitor = monitors.addGlobalMouseDownMonitor([&] {
        ++presses;
        monitor.reset();
    });
    desktop->clickMouse(inside);
    EXPECT_TRUE(desktop->waitUntil([&] { return presses == 1; }));

    desktop->clickMouse(inside);
    desktop->settle();

    EXPECT_EQ(presses, 1);
}

TEST_F(EventMonitorsContract, KeysOfThisProgramsWindowsAreSeenUntilTheMonitorEnds)
{
    std::vector<KeyCode> typed;
    const auto panel = port(&ContractPorts::overlayWindows)
                           .createPanel({.contentRect = {100.0, 100.0, 200.0, 200.0}},
                                        [&](const KeyEvent& event) { typed.push_back(event.keyCode); });
    panel->orderFrontRegardless();
    port(&ContractPorts::workspace).activateSelf();
    panel->makeKey();
    ASSERT_TRUE(desktop->waitUntil([&] { return panel->isKey(); }));
    std::vector<KeyCode> seen;
    auto monitor = monitors.addLocalKeyDownMonitor([&](const KeyEvent& event) {
        seen.push_back(event.keyCode);
        return EventHandling::pass;
    });

    desktop->pressKey(keyB);
    EXPECT_TRUE(desktop->waitUntil([&] { return seen == std::vector{keyB} && typed == std::vector{keyB}; }));

    monitor.reset();
    desktop->pressKey(keyB);
    EXPECT_TRUE(desktop->waitUntil([&] { return typed.size() == 2; }));
    EXPECT_EQ(seen.size(), 1U);
}

TEST_F(EventMonitorsContract, KeysOfOtherApplicationsAreNotSeen)
{
    const auto editor = desktop->openWindow("Editor", "Notes", somewhere);
    int seen = 0;
    const auto monitor = monitors.addLocalKeyDownMonitor([&](const KeyEvent&) {
        ++seen;
        return EventHandling::pass;
    });

    desktop->pressKey(keyB);

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->keysReceivedBy(editor) == std::vector{keyB}; }));
    desktop->settle();
    EXPECT_EQ(seen, 0);
}

} // namespace
} // namespace quorvel::contract
