#include "platform/simulated/SimulatedScreens.h"

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "tests/support/FatalErrors.h"

namespace quorvel {
namespace {

class SimulatedScreensTest : public testing::Test {
protected:
    SimulatedDesktop desktop;
    SimulatedScreens& screens = desktop.screens;
};

TEST_F(SimulatedScreensTest, ThereIsOneWithAMenuBarAtFirst)
{
    ASSERT_EQ(screens.screens().size(), 1U);
    EXPECT_EQ(screens.screens()[0].frame, (ScreenRect{0.0, 0.0, 1440.0, 900.0}));
    EXPECT_EQ(screens.screens()[0].visibleFrame, (ScreenRect{0.0, 0.0, 1440.0, 875.0}));
}

TEST_F(SimulatedScreensTest, TheyComeGoAndChangeTheirSizeUnderTheSameIdentity)
{
    const ScreenRect frame{1440.0, 0.0, 1920.0, 1080.0};
    const auto id = screens.add(frame, frame);
    const auto added = screens.screens()[1];

    screens.resize(id, {1440.0, 0.0, 800.0, 600.0}, {1440.0, 0.0, 800.0, 575.0});
    EXPECT_TRUE(screens.screens()[1].isSameScreenAs(added));
    EXPECT_EQ(screens.screens()[1].visibleFrame, (ScreenRect{1440.0, 0.0, 800.0, 575.0}));

    screens.remove(id);
    EXPECT_EQ(screens.screens().size(), 1U);
    EXPECT_NE(screens.add(frame, frame), id);
}

TEST_F(SimulatedScreensTest, AResizedOneMustExist)
{

    EXPECT_EQ(fatalErrorOf([&] { screens.resize(99, {}, {}); }), "No display has the id 99");
}

TEST_F(SimulatedScreensTest, GivenIdentitiesAreKeptAndMissingOnesAdded)
{
    const ScreenRect frame{0.0, 0.0, 1440.0, 900.0};
    screens.connect({{7, frame, frame}, {0, frame, frame}});

    EXPECT_EQ(screens.screens()[0].id, 7U);
    EXPECT_EQ(screens.screens()[1].id, 8U);
}

TEST_F(SimulatedScreensTest, WithoutAnyThereIsNoMainOne)
{
    screens.connect({});

    EXPECT_EQ(screens.mainScreen(), std::nullopt);
    EXPECT_TRUE(screens.screens().empty());
}

TEST_F(SimulatedScreensTest, WithoutAFocusedWindowThePrimaryOneIsTheMainOne)
{
    screens.add({1440.0, 0.0, 1920.0, 1080.0}, {1440.0, 0.0, 1920.0, 1080.0});
    desktop.leaveNobodyInFront();

    EXPECT_EQ(screens.mainScreen(), screens.screens()[0]);
}

TEST_F(SimulatedScreensTest, TheFlipMirrorsAtThePrimaryOnesHeightBothWays)
{
    EXPECT_EQ(screens.flipped(ScreenRect{10.0, 20.0, 300.0, 200.0}), (AxRect{10.0, 680.0, 300.0, 200.0}));
    EXPECT_EQ(screens.flipped(AxRect{10.0, 680.0, 300.0, 200.0}), (ScreenRect{10.0, 20.0, 300.0, 200.0}));
}

} // namespace
} // namespace quorvel
