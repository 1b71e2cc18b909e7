#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "system/OverlayFrameView.h"
#include "system/OverlayFrameWindowController.h"

namespace quorvel {
namespace {

// The window is always the controller's own.
static_assert(!std::is_constructible_v<OverlayFrameWindowController, std::unique_ptr<OverlayWindow>>);

constexpr FrameAppearance red{Color::bytes(255, 0, 0), true, 4.0, 12.0};

class OverlayFrameTest : public testing::Test {
protected:
    const OverlayWindowRecord& window(std::size_t index = 0) const { return *desktop.overlayWindows.all().at(index); }

    RoundedRectCommand drawn() const
    {
        EXPECT_EQ(window().content.commands.size(), 1U);
        return std::get<RoundedRectCommand>(window().content.commands.at(0));
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
};

RoundedRectCommand outline(const OverlayFrameView& view, const Size& bounds)
{
    const auto list = view.drawList(bounds);
    EXPECT_EQ(list.commands.size(), 1U);
    return std::get<RoundedRectCommand>(list.commands.at(0));
}

TEST_F(OverlayFrameTest, AViewStartsInBlueWithAGlow)
{
    const OverlayFrameView view(desktop.systemColors);
    EXPECT_EQ(view.borderColor, desktop.systemColors.blue().withAlpha(0.9));
    EXPECT_EQ(view.borderWidth, 3.0);
    EXPECT_EQ(view.cornerRadius, 8.0);
    EXPECT_TRUE(view.glow);
}

TEST_F(OverlayFrameTest, TheWholeStrokeLiesInsideTheView)
{
    OverlayFrameView view(desktop.systemColors);
    view.borderWidth = 10.0;
    view.cornerRadius = 7.0;
    const auto command = outline(view, {100.0, 100.0});
    EXPECT_EQ(command.rect, (ViewRect{5, 5, 90, 90}));
    EXPECT_EQ(command.cornerRadius, 7.0);
    EXPECT_EQ(command.stroke, (Stroke{view.borderColor, 10.0}));
}

TEST_F(OverlayFrameTest, AStrokeWiderThanTheViewLeavesNoInside)
{
    OverlayFrameView view(desktop.systemColors);
    view.borderWidth = 30.0;
    EXPECT_EQ(outline(view, {20.0, 20.0}).rect.size(), (Size{0.0, 0.0}));
}

TEST_F(OverlayFrameTest, TheGlowIsABlurOfTheBorderColor)
{
    OverlayFrameView view(desktop.systemColors);
    view.borderColor = Color::bytes(10, 20, 30, 40);
    EXPECT_EQ(outline(view, {50, 50}).shadow, (Shadow{Color::bytes(10, 20, 30).withAlpha(0.6), 12.0}));
}

TEST_F(OverlayFrameTest, WithoutGlowAnEmptyShadowIsSet)
{
    OverlayFrameView view(desktop.systemColors);
    view.glow = false;
    EXPECT_EQ(outline(view, {50, 50}).shadow, (Shadow{Color::clear(), 0.0}));
}

TEST_F(OverlayFrameTest, TheInsideIsNeverFilled)
{
    const auto command = outline(OverlayFrameView(desktop.systemColors), {50, 50});
    EXPECT_EQ(command.fill, std::nullopt);
    EXPECT_EQ(command.backing, Backing::open);
}

TEST_F(OverlayFrameTest, TheWindowFloatsOverEverythingAndLetsClicksThrough)
{
    const OverlayFrameWindowController controller(platform, red);
    const WindowDescription expected{
        .contentRect = {},
        .styleMask = 0,
        .level = 25,
        .collectionBehavior = 257,
        .hasShadow = false,
        .ignoresMouseEvents = true,
        .isOpaque = false,
        .isReleasedWhenClosed = false,
        .isDeferred = false,
    };
    EXPECT_EQ(window().description, expected);
    EXPECT_FALSE(window().isVisible);
}

TEST_F(OverlayFrameTest, ClicksReachTheWindowBelow)
{
    auto& application = desktop.launch("Editor");
    desktop.openWindow(application, "Notes", {100, 100, 400, 300});
    desktop.leaveNobodyInFront();
    OverlayFrameWindowController controller(platform, red);
    controller.setFrame({100, 500, 400, 300});
    controller.show();

    desktop.clickMouse({100, 100});
    EXPECT_EQ(desktop.workspace.frontmostApplication()->process, application.process());
}

TEST_F(OverlayFrameTest, TheContentFollowsTheFrameAndTheAppearance)
{
    OverlayFrameWindowController controller(platform, red);
    controller.setFrame({100, 250, 800, 600});
    EXPECT_EQ(window().frame, (ScreenRect{100, 250, 800, 600}));
    EXPECT_EQ(drawn().rect, (ViewRect{2, 2, 796, 596}));
    EXPECT_EQ(drawn().stroke, (Stroke{red.color, 4.0}));

    controller.setAppearance({Color::white(), false, 6.0, 1.0});
    EXPECT_EQ(drawn().rect, (ViewRect{3, 3, 794, 594}));
    EXPECT_EQ(drawn().cornerRadius, 1.0);
    EXPECT_EQ(drawn().stroke, (Stroke{Color::white(), 6.0}));
    EXPECT_EQ(drawn().shadow, (Shadow{Color::clear(), 0.0}));
    EXPECT_EQ(controller.overlayView().borderWidth, 6.0);
}

TEST_F(OverlayFrameTest, HidingKeepsTheWindow)
{
    OverlayFrameWindowController controller(platform, red);
    controller.show();
    EXPECT_TRUE(window().isVisible);
    controller.hide();
    EXPECT_FALSE(window().isVisible);
    EXPECT_FALSE(window().isClosed);
    controller.show();
    EXPECT_TRUE(window().isVisible);
    EXPECT_EQ(desktop.overlayWindows.all().size(), 1U);
}

TEST_F(OverlayFrameTest, TheWindowGoesWithTheController)
{
    {
        OverlayFrameWindowController controller(platform, red);
        controller.show();
    }
    EXPECT_TRUE(window().isClosed);
}

} // namespace
} // namespace quorvel
