#include <algorithm>
#include <memory>
#include <vector>

#include "contract/ContractTest.h"
#include "platform/OverlayWindows.h"
#include "platform/Screens.h"
#include "platform/WindowList.h"
#include "platform/Workspace.h"

namespace quorvel::contract {
namespace {

using Rects = std::vector<AxRect>;

class OverlayWindowsContract : public ContractTest {
protected:
    // A filled window that covers `rect`.
    std::unique_ptr<OverlayWindow> createWindow(const AxRect& rect, int level = windowLevels::popUpMenu)
    {
        auto window = overlayWindows.createWindow({.contentRect = flipped(rect), .level = level});
        window->setContent(filling(rect.size()));
        return window;
    }

    DrawList filling(Size size)
    {
        RoundedRectCommand shape;
        shape.rect = {0.0, 0.0, size.width, size.height};
        shape.backing = Backing::solid;
        shape.fill = Color::black();
        return {{shape}};
    }

    ScreenRect flipped(const AxRect& rect)
    {
        const double height = port(&ContractPorts::screens).screens().front().frame.height;
        return {rect.x, height - rect.y - rect.height, rect.width, rect.height};
    }

    bool showsFrontToBack(const Rects& rects)
    {
        return desktop->waitUntil([&] { return desktop->ownWindowsOnScreen() == rects; });
    }

    const AxRect somewhere{100.0, 120.0, 500.0, 400.0};
    const AxRect elsewhere{300.0, 200.0, 200.0, 100.0};
    OverlayWindows& overlayWindows = port(&ContractPorts::overlayWindows);
};

TEST_F(OverlayWindowsContract, ANewWindowIsNotShown)
{
    const auto window = createWindow(somewhere);
    desktop->settle();

    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->frame(), flipped(somewhere));
    EXPECT_EQ(desktop->ownWindowsOnScreen(), Rects{});
}

TEST_F(OverlayWindowsContract, AnOrderedWindowIsShownWhereItWasDescribed)
{
    const auto window = createWindow(somewhere);

    window->orderFrontRegardless();

    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(showsFrontToBack({somewhere}));
}

TEST_F(OverlayWindowsContract, AWindowMovesAndIsResizedWhileItIsShown)
{
    const auto window = createWindow(somewhere);
    window->orderFrontRegardless();

    window->setFrame(flipped(elsewhere));
    window->setContent(filling(elsewhere.size()));

    EXPECT_EQ(window->frame(), flipped(elsewhere));
    EXPECT_TRUE(showsFrontToBack({elsewhere}));
}

TEST_F(OverlayWindowsContract, AWindowThatWasMovedWhileItWasHiddenIsShownAtItsNewPlace)
{
    const auto window = createWindow(somewhere);
    window->setFrame(flipped(elsewhere));
    window->setContent(filling(elsewhere.size()));

    window->orderFrontRegardless();

    EXPECT_TRUE(showsFrontToBack({elsewhere}));
}

TEST_F(OverlayWindowsContract, AWindowThatIsOrderedOutIsGoneUntilItIsOrderedFrontAgain)
{
    const auto window = createWindow(somewhere);
    window->orderFrontRegardless();
    ASSERT_TRUE(showsFrontToBack({somewhere}));

    window->orderOut();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(showsFrontToBack({}));

    window->orderFrontRegardless();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(showsFrontToBack({somewhere}));
}

TEST_F(OverlayWindowsContract, AClosedWindowIsGone)
{
    const auto window = createWindow(somewhere);
    window->orderFrontRegardless();
    ASSERT_TRUE(showsFrontToBack({somewhere}));

    window->close();

    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(showsFrontToBack({}));
}

TEST_F(OverlayWindowsContract, ADestroyedWindowIsGone)
{
    auto window = createWindow(somewhere);
    window->orderFrontRegardless();
    ASSERT_TRUE(showsFrontToBack({somewhere}));

    window.reset();

    EXPECT_TRUE(showsFrontToBack({}));
}

TEST_F(OverlayWindowsContract, TheWindowOrderedLastIsInFrontOfTheOthersOfItsLevel)
{
    const auto first = createWindow(somewhere);
    const auto second = createWindow(elsewhere);
    first->orderFrontRegardless();
    second->orderFrontRegardless();
    EXPECT_TRUE(showsFrontToBack({elsewhere, somewhere}));

    first->orderFrontRegardless();

    EXPECT_TRUE(showsFrontToBack({somewhere, elsewhere}));
}

TEST_F(OverlayWindowsContract, AWindowStaysInFrontOfLowerLevels)
{
    const auto high = createWindow(somewhere, windowLevels::popUpMenu + 1);
    const auto low = createWindow(elsewhere, windowLevels::popUpMenu);
    high->orderFrontRegardless();

    low->orderFrontRegardless();

    EXPECT_TRUE(showsFrontToBack({somewhere, elsewhere}));
}

TEST_F(OverlayWindowsContract, AWindowTakesNoKeyboardAndDoesNotActivateThisProgram)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {50.0, 60.0, 700.0, 600.0});
    const auto window = createWindow(somewhere);
    window->orderFrontRegardless();
    ASSERT_TRUE(showsFrontToBack({somewhere}));

    desktop->pressKey(11);

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->keysReceivedBy(editor) == std::vector{11}; }));
    EXPECT_EQ(port(&ContractPorts::workspace).frontmostApplication()->process, editor.process);
}

TEST_F(OverlayWindowsContract, AClickGoesThroughAWindowThatIgnoresTheMouse)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {50.0, 60.0, 700.0, 600.0});
    desktop->openWindow("Browser", "News", {800.0, 120.0, 300.0, 300.0});
    const auto window = createWindow(somewhere);
    window->orderFrontRegardless();
    ASSERT_TRUE(showsFrontToBack({somewhere}));

    desktop->clickMouse({200.0, 200.0});

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->isFocused(editor); }));
}

TEST_F(OverlayWindowsContract, AWindowIsNoOrdinaryWindowOfTheWindowList)
{
    const auto window = createWindow(somewhere);
    window->orderFrontRegardless();
    ASSERT_TRUE(showsFrontToBack({somewhere}));

    const auto entries = port(&ContractPorts::windowList).onScreenWindows();

    EXPECT_TRUE(std::ranges::none_of(entries, [](const WindowListEntry& each) { return each.layer == 0; }));
}

TEST_F(OverlayWindowsContract, EachWindowIsANotificationObjectOfItsOwn)
{
    const auto first = createWindow(somewhere);
    const auto second = createWindow(somewhere);

    EXPECT_NE(first->notificationObject(), noNotificationObject);
    EXPECT_NE(first->notificationObject(), second->notificationObject());
    EXPECT_EQ(first->notificationObject(), first->notificationObject());
}

} // namespace
} // namespace quorvel::contract
