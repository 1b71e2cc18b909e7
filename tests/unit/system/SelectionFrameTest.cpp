#include <vector>

#include <gtest/gtest.h>

#include "settings/SettingsKeys.h"
#include "system/WindowElementModel.h"
#include "tests/unit/system/WindowElementFixture.h"

namespace quorvel {
namespace {

class SelectionFrameTest : public WindowElementFixture {
protected:
    const OverlayWindowRecord& frameWindow() const { return *desktop.overlayWindows.all().at(0); }

    RoundedRectCommand drawn() const { return std::get<RoundedRectCommand>(frameWindow().content.commands.at(0)); }

    Model model = frontmost();
};

TEST_F(SelectionFrameTest, IsShownAroundTheWindowWithoutTakingTheFocus)
{
    EXPECT_TRUE(desktop.overlayWindows.all().empty());
    model->showOverlayFrame();
    EXPECT_EQ(frameWindow().frame, (ScreenRect{100, 250, 800, 600}));
    EXPECT_TRUE(frameWindow().isVisible);
    EXPECT_EQ(calls("Workspace.activate"), Lines{});
    EXPECT_EQ(drawn().rect, (ViewRect{1.5, 1.5, 797, 597}));
}

TEST_F(SelectionFrameTest, IsMadeOnceAndShownAgain)
{
    model->showOverlayFrame();
    model->hideOverlayFrame();
    EXPECT_FALSE(frameWindow().isVisible);
    model->showOverlayFrame();
    EXPECT_TRUE(frameWindow().isVisible);
    EXPECT_EQ(desktop.overlayWindows.all().size(), 1U);
}

TEST_F(SelectionFrameTest, IsNotMadeWithoutGeometry)
{
    desktop.closeWindow(notes);
    const auto windowless = frontmost();
    windowless->showOverlayFrame();
    windowless->updateOverlayFrame();
    windowless->hideOverlayFrame();
    EXPECT_TRUE(desktop.overlayWindows.all().empty());
}

TEST_F(SelectionFrameTest, FollowsTheWindow)
{
    model->showOverlayFrame();
    desktop.moveWindow(notes, wanted);
    desktop.drain();
    EXPECT_EQ(frameWindow().frame, (ScreenRect{10, 680, 300, 200}));
    EXPECT_EQ(drawn().rect, (ViewRect{1.5, 1.5, 297, 197}));
}

TEST_F(SelectionFrameTest, StaysHiddenWhileTheWindowMoves)
{
    model->showOverlayFrame();
    model->hideOverlayFrame();
    model->setWindowRect(wanted);
    desktop.drain();
    EXPECT_FALSE(frameWindow().isVisible);
    EXPECT_EQ(frameWindow().frame, (ScreenRect{10, 680, 300, 200}));
}

TEST_F(SelectionFrameTest, UpdatingDoesNotMakeOne)
{
    model->updateOverlayFrame();
    EXPECT_TRUE(desktop.overlayWindows.all().empty());
}

TEST_F(SelectionFrameTest, HasADefaultAppearance)
{
    model->showOverlayFrame();
    EXPECT_EQ(drawn().stroke, (Stroke{Color::bytes(10, 132, 255, 204), 3.0}));
    EXPECT_EQ(drawn().cornerRadius, 10.0);
    EXPECT_EQ(drawn().shadow, (Shadow{Color::bytes(10, 132, 255).withAlpha(0.6), 12.0}));
}

TEST_F(SelectionFrameTest, IsBlueWhereItsColorCannotBeRead)
{
    settings.setString(settingsKeys::mrSelectionColorHex, "#12");
    model->showOverlayFrame();
    EXPECT_EQ(drawn().stroke->color, desktop.systemColors.blue().withAlpha(0.9));
}

TEST_F(SelectionFrameTest, FallsBackFromValuesThatMakeNoSense)
{
    settings.setReal(settingsKeys::mrSelectionBorderWidth, -1.0);
    settings.setInteger(settingsKeys::mrCornerRadius, 0);
    settings.setString(settingsKeys::mrSelectionGlow, "x");
    model->showOverlayFrame();
    EXPECT_EQ(drawn().stroke->width, 3.0);
    EXPECT_EQ(drawn().cornerRadius, 10.0);
    EXPECT_EQ(drawn().shadow->blurRadius, 12.0);
}

TEST_F(SelectionFrameTest, ReadsItsAppearanceEveryTime)
{
    model->showOverlayFrame();
    settings.setString(settingsKeys::mrSelectionColorHex, "#FF0000");
    settings.setReal(settingsKeys::mrSelectionBorderWidth, 5.0);
    settings.setInteger(settingsKeys::mrCornerRadius, 1);
    settings.setBoolean(settingsKeys::mrSelectionGlow, false);
    model->updateOverlayFrame();
    EXPECT_EQ(drawn().stroke, (Stroke{Color::bytes(255, 0, 0), 5.0}));
    EXPECT_EQ(drawn().cornerRadius, 1.0);
    EXPECT_EQ(drawn().shadow, (Shadow{Color::clear(), 0.0}));
}

TEST_F(SelectionFrameTest, GoesWithTheModel)
{
    model->showOverlayFrame();
    model.reset();
    EXPECT_TRUE(frameWindow().isClosed);
}

TEST_F(SelectionFrameTest, IsHiddenByTheTearDown)
{
    model->showOverlayFrame();
    model->tearDown();
    EXPECT_FALSE(frameWindow().isVisible);
    EXPECT_EQ(model->axWindowElement(), nullptr);
}

} // namespace
} // namespace quorvel
