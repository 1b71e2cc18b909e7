#include "system/OnScreenWindows.h"

#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

using Windows = std::vector<WindowInfo>;

class OnScreenWindowsTest : public testing::Test {
protected:
    SimulatedWindow& open(const AxRect& frame) { return desktop.openWindow(editor, "Notes", frame); }

    Windows windows() { return onScreenWindows(desktop.platform()); }

    static constexpr AxRect frame{100, 50, 800, 600};

    SimulatedDesktop desktop;
    SimulatedApplication& editor = desktop.launch("Editor");
};

TEST_F(OnScreenWindowsTest, TheyComeFromFrontToBack)
{
    open({0, 0, 100, 100});
    open({10, 10, 200, 200});
    auto& mail = desktop.launch("Mail");
    desktop.openWindow(mail, "Inbox", {20, 20, 300, 300});
    EXPECT_EQ(windows(), (Windows{{mail.process(), {20, 20, 300, 300}},
                                  {editor.process(), {10, 10, 200, 200}},
                                  {editor.process(), {0, 0, 100, 100}}}));
}

TEST_F(OnScreenWindowsTest, AWindowIsWiderAndHigherThanFiftyPoints)
{
    open({0, 0, 50, 400});
    open({0, 0, 400, 50});
    open({0, 0, 51, 51});
    EXPECT_EQ(windows(), (Windows{{editor.process(), {0, 0, 51, 51}}}));
}

TEST_F(OnScreenWindowsTest, OnlyTheOrdinaryLayerCounts)
{
    open(frame).layer = 3;
    open(frame).layer = -1;
    EXPECT_TRUE(windows().empty());
}

TEST_F(OnScreenWindowsTest, AMinimizedWindowIsNotOnScreen)
{
    desktop.minimize(open(frame));
    EXPECT_TRUE(windows().empty());
}

TEST_F(OnScreenWindowsTest, ThisProgramsOwnWindowsAreLeftOut)
{
    open(frame).listAs({SimulatedWindowServer::ownProcess, 0, frame});
    EXPECT_TRUE(windows().empty());
}

TEST_F(OnScreenWindowsTest, AWindowOfUnknownOwnerLayerOrBoundsIsLeftOut)
{
    open(frame).listAs({std::nullopt, 0, frame});
    open(frame).listAs({editor.process(), std::nullopt, frame});
    open(frame).listAs({editor.process(), 0, std::nullopt});
    EXPECT_TRUE(windows().empty());
}

TEST_F(OnScreenWindowsTest, BoundsWithoutAWidthAreTooSmall)
{
    open(frame).listAs({editor.process(), 0, AxRect{.x = 100, .y = 50, .height = 600}});
    EXPECT_TRUE(windows().empty());
}

TEST_F(OnScreenWindowsTest, BoundsWithoutAnOriginBeginAtTheOrigin)
{
    open(frame).listAs({editor.process(), 0, AxRect{.width = 800, .height = 600}});
    EXPECT_EQ(windows(), (Windows{{editor.process(), {0, 0, 800, 600}}}));
}

TEST_F(OnScreenWindowsTest, AProcessThatIsNoApplicationHasWindowsAllTheSame)
{
    open(frame);
    editor.hideFromWorkspace();
    EXPECT_EQ(windows(), (Windows{{editor.process(), frame}}));
}

} // namespace
} // namespace quorvel
