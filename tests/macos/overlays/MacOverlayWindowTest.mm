#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "macos/fakes/DisplayServer.h"
#include "macos/fakes/Drawing.h"
#include "macos/fakes/FakeDesktop.h"
#import "macos/fakes/KeyEventObject.h"
#include "platform/macos/overlays/MacOverlayWindows.h"

namespace quorvel::macos {
namespace {

class MacOverlayWindowTest : public testing::Test {
protected:
    MacOverlayWindowTest() { fakes::startDisplayServer(); }

    static NSWindow* nsWindow(const OverlayWindow& window)
    {
        return reinterpret_cast<NSWindow*>(window.notificationObject());
    }

    const WindowDescription description{.contentRect = {1.0, 26.0, 718.0, 873.0},
                                        .level = windowLevels::popUpMenu + 1,
                                        .collectionBehavior = collectionBehaviors::canJoinAllSpaces |
                                                              collectionBehaviors::ignoresCycle |
                                                              collectionBehaviors::fullScreenAuxiliary,
                                        .hasShadow = true};
    SimulatedDesktop desktop;
    fakes::FakeDesktop fake{desktop};
    MacOverlayWindows windows;
};

TEST_F(MacOverlayWindowTest, AWindowIsMadeAsDescribed)
{
    const auto window = windows.createWindow(description);
    window->orderFrontRegardless();

    ASSERT_EQ(desktop.overlayWindows.visible().size(), 1U);
    EXPECT_EQ(desktop.overlayWindows.visible().front()->description, description);
    EXPECT_EQ(desktop.overlayWindows.visible().front()->kind, OverlayKind::window);
}

TEST_F(MacOverlayWindowTest, EveryPropertyOfADescriptionCounts)
{
    const WindowDescription other{.contentRect = {0.0, 0.0, 100.0, 100.0},
                                  .level = windowLevels::floating,
                                  .ignoresMouseEvents = false,
                                  .isOpaque = true};
    const auto panel = windows.createPanel(other, [](const KeyEvent&) {});
    panel->orderFrontRegardless();

    ASSERT_EQ(desktop.overlayWindows.visible().size(), 1U);
    EXPECT_EQ(desktop.overlayWindows.visible().front()->description, other);
    EXPECT_EQ(desktop.overlayWindows.visible().front()->kind, OverlayKind::panel);
}

TEST_F(MacOverlayWindowTest, AWindowHasNoBackgroundNoAnimationAndStaysWhenThisProgramIsNotActive)
{
    const auto panel = windows.createPanel(description, [](const KeyEvent&) {});

    EXPECT_EQ([[nsWindow(*panel) backgroundColor] alphaComponent], 0.0);
    EXPECT_EQ([nsWindow(*panel) animationBehavior], NSWindowAnimationBehaviorNone);
    EXPECT_FALSE([nsWindow(*panel) hidesOnDeactivate]);
}

TEST_F(MacOverlayWindowTest, TheContentFillsTheWindowAlsoAfterItsSizeHasChanged)
{
    const auto window = windows.createWindow(description);
    RoundedRectCommand shape;
    shape.fill = Color::white();
    window->setContent({{shape}});
    window->orderFrontRegardless();
    fakes::takeDrawn();

    window->setFrame({10.0, 20.0, 300.0, 200.0});

    EXPECT_TRUE(NSEqualRects([[nsWindow(*window) contentView] frame], NSMakeRect(0.0, 0.0, 300.0, 200.0)));
    EXPECT_EQ(fakes::takeDrawn().size(), 1U);
}

TEST_F(MacOverlayWindowTest, ClippingIsThatOfTheContent)
{
    const auto window = windows.createWindow(description);
    EXPECT_TRUE([[nsWindow(*window) contentView] clipsToBounds]);

    window->setClipsToBounds(false);

    EXPECT_FALSE([[nsWindow(*window) contentView] clipsToBounds]);
}

TEST_F(MacOverlayWindowTest, TheNameUnderWhichAFrameIsKeptIsPassedOn)
{
    const auto window = windows.createWindow(description);
    window->setFrameAutosaveName("A");
    window->orderFrontRegardless();

    EXPECT_EQ(desktop.overlayWindows.visible().front()->frameAutosaveName, "A");
}

TEST_F(MacOverlayWindowTest, APanelTakesKeysWithCommandBeforeAnyMenu)
{
    std::vector<KeyCode> heard;
    const auto panel = windows.createPanel(description, [&](const KeyEvent& key) { heard.push_back(key.keyCode); });

    EXPECT_TRUE([nsWindow(*panel) performKeyEquivalent:fakes::keyDown({12, "q", eventFlags::command})]);

    EXPECT_EQ(heard, std::vector{12});
}

TEST_F(MacOverlayWindowTest, ADestroyedWindowLeavesNothingBehind)
{
    @autoreleasepool {
        auto window = windows.createWindow(description);
        window->orderFrontRegardless();
        window.reset();
    }

    ASSERT_EQ(desktop.overlayWindows.all().size(), 1U);
    EXPECT_TRUE(desktop.overlayWindows.all().front()->isClosed);
}

} // namespace
} // namespace quorvel::macos
