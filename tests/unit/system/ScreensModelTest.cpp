#include "system/ScreensModel.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/system/ScreenFixtures.h"

namespace quorvel {
namespace {

using namespace fixtures;

class ScreensModelTest : public testing::Test {
protected:
    // Empty for no current screen.
    std::optional<std::uint64_t> currentId() const
    {
        const auto& screen = model.currentScreen();
        return screen ? std::optional(screen->id) : std::nullopt;
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    std::shared_ptr<CurrentScreen> current = std::make_shared<CurrentScreen>();
    ScreensModel model{platform, current};
};

TEST_F(ScreensModelTest, NoScreenIsCurrentAtFirst)
{
    EXPECT_EQ(model.currentScreen(), std::nullopt);
}

TEST_F(ScreensModelTest, TheScreenWithTheLargerPartIsChosen)
{
    desktop.screens.connect({primary, rightSameSize});
    EXPECT_TRUE(model.selectScreenForWindowRect({1200, 100, 600, 300}));
    EXPECT_EQ(model.currentScreen(), rightSameSize);
}

TEST_F(ScreensModelTest, ATieKeepsTheEarlierScreen)
{
    desktop.screens.connect({primary, rightSameSize});
    EXPECT_TRUE(model.selectScreenForWindowRect({1240, 100, 400, 300}));
    EXPECT_EQ(model.currentScreen(), primary);

    desktop.screens.connect({rightSameSize, primary});
    EXPECT_TRUE(model.selectScreenForWindowRect({1240, 100, 400, 300}));
    EXPECT_EQ(model.currentScreen(), rightSameSize);
}

TEST_F(ScreensModelTest, ARectangleOffAllScreensChangesNothing)
{
    desktop.screens.connect({primary});
    current->screen = primary;
    EXPECT_FALSE(model.selectScreenForWindowRect({5000, 100, 400, 300}));
    EXPECT_EQ(model.currentScreen(), primary);
}

TEST_F(ScreensModelTest, ARectangleThatOnlyTouchesAScreenIsOffIt)
{
    desktop.screens.connect({primary});
    EXPECT_FALSE(model.selectScreenForWindowRect({1440, 100, 400, 300}));
    EXPECT_FALSE(model.selectScreenForWindowRect({100, 900, 400, 300}));
    EXPECT_EQ(model.currentScreen(), std::nullopt);
}

TEST_F(ScreensModelTest, TheTopOfAllScreensIsTheTopOfWindows)
{
    // The left screen stands 180 points higher than the primary one.
    desktop.screens.connect({primary, left});
    EXPECT_FALSE(model.selectScreenForWindowRect({0, 0, 700, 150}));
    EXPECT_EQ(desktop.log.lines()[1], "normalizedWindowRect: (0.0, 930.0, 700.0, 150.0)");

    desktop.log.clear();
    EXPECT_TRUE(model.selectScreenForWindowRect({0, 0, 700, 400}));
    EXPECT_EQ(model.currentScreen(), primary);
    EXPECT_EQ(desktop.log.lines()[3], "intersection: (0.0, 680.0, 700.0, 220.0)");
}

TEST_F(ScreensModelTest, AScreenBelowIsChosenByItsPart)
{
    desktop.screens.connect({primary, below});
    EXPECT_TRUE(model.selectScreenForWindowRect({0, 700, 1000, 500}));
    EXPECT_EQ(model.currentScreen(), below);
    EXPECT_EQ(desktop.log.lines()[3], "intersection: (0.0, 0.0, 1000.0, 200.0)");
    EXPECT_EQ(desktop.log.lines()[6], "intersection: (0.0, -300.0, 1000.0, 300.0)");
}

TEST_F(ScreensModelTest, AFewVisiblePointsAreEnough)
{
    desktop.screens.connect({primary});
    EXPECT_TRUE(model.selectScreenForWindowRect({100, 880, 400, 300}));
    EXPECT_EQ(model.currentScreen(), primary);
    EXPECT_EQ(desktop.log.lines()[1], "normalizedWindowRect: (100.0, -280.0, 400.0, 300.0)");
}

TEST_F(ScreensModelTest, AWindowUnderTheMenuBarIsOnTheScreen)
{
    desktop.screens.connect({primary});
    EXPECT_TRUE(model.selectScreenForWindowRect({100, 0, 300, 20}));
}

TEST_F(ScreensModelTest, WithoutScreensOnlyTheRectangleIsLogged)
{
    desktop.screens.connect({});
    EXPECT_FALSE(model.selectScreenForWindowRect({1, 2, 3, 4}));
    EXPECT_EQ(desktop.log.lines(), (std::vector<std::string>{"windowRect: (1.0, 2.0, 3.0, 4.0)"}));
}

TEST_F(ScreensModelTest, LogsEveryComparison)
{
    desktop.screens.connect({primary, rightSameSize});
    EXPECT_TRUE(model.selectScreenForWindowRect({100, 100, 400, 300}));
    EXPECT_EQ(desktop.log.lines(), (std::vector<std::string>{
                                       "windowRect: (100.0, 100.0, 400.0, 300.0)",
                                       "normalizedWindowRect: (100.0, 500.0, 400.0, 300.0)",
                                       "screenFrame (global): (0.0, 0.0, 1440.0, 900.0)",
                                       "intersection: (100.0, 500.0, 400.0, 300.0)",
                                       "normalizedWindowRect: (100.0, 500.0, 400.0, 300.0)",
                                       "screenFrame (global): (1440.0, 0.0, 1440.0, 900.0)",
                                       "intersection: (inf, inf, 0.0, 0.0)",
                                       "intersection!",
                                   }));

    desktop.log.clear();
    EXPECT_FALSE(model.selectScreenForWindowRect({5000, 100, 400, 300}));
    EXPECT_EQ(desktop.log.lines().size(), 7U);
}

TEST_F(ScreensModelTest, NextAndPreviousWrapRound)
{
    desktop.screens.connect({primary, rightSameSize, left});
    current->screen = left;
    EXPECT_TRUE(model.nextScreen());
    EXPECT_EQ(currentId(), primary.id);
    EXPECT_TRUE(model.previousScreen());
    EXPECT_EQ(currentId(), left.id);
    EXPECT_TRUE(model.previousScreen());
    EXPECT_EQ(currentId(), rightSameSize.id);
}

TEST_F(ScreensModelTest, NextAndPreviousNeedACurrentScreen)
{
    EXPECT_FALSE(model.nextScreen());
    EXPECT_FALSE(model.previousScreen());
    EXPECT_EQ(currentId(), std::nullopt);
}

TEST_F(ScreensModelTest, ASingleScreenStaysCurrent)
{
    desktop.screens.connect({primary});
    current->screen = primary;
    EXPECT_TRUE(model.nextScreen());
    EXPECT_TRUE(model.previousScreen());
    EXPECT_EQ(model.currentScreen(), primary);
}

TEST_F(ScreensModelTest, AllModelsShareTheCurrentScreen)
{
    desktop.screens.connect({primary, rightSameSize});
    current->screen = primary;
    const auto next = model.nextScreen();
    const ScreensModel other(platform, current);
    ASSERT_TRUE(next);
    EXPECT_EQ(next->currentScreen(), rightSameSize);
    EXPECT_EQ(other.currentScreen(), rightSameSize);
}

TEST_F(ScreensModelTest, AScreenThatChangedItsSizeIsStillTheCurrentOne)
{
    desktop.screens.connect({primary, rightSameSize});
    current->screen = primary;
    desktop.screens.resize(primary.id, {0, 0, 800, 600}, {0, 0, 800, 575});
    EXPECT_TRUE(model.nextScreen());
    EXPECT_EQ(currentId(), rightSameSize.id);
    EXPECT_TRUE(model.nextScreen());
    EXPECT_EQ(model.currentScreen()->frame, (ScreenRect{0, 0, 800, 600}));
}

TEST_F(ScreensModelTest, SteppingFromADetachedScreenIsFatal)
{
    desktop.screens.connect({primary, rightSameSize});
    current->screen = rightSameSize;
    desktop.screens.remove(rightSameSize.id);
    EXPECT_EQ(fatalErrorOf([this] { static_cast<void>(model.nextScreen()); }),
              "The current screen is no longer attached");
    EXPECT_EQ(fatalErrorOf([this] { static_cast<void>(model.previousScreen()); }),
              "The current screen is no longer attached");
    EXPECT_EQ(model.currentScreen(), rightSameSize);

    desktop.screens.connect({});
    EXPECT_TRUE(fatalErrorOf([this] { static_cast<void>(model.nextScreen()); }));
}

TEST_F(ScreensModelTest, ADetachedScreenHasNoNeighbour)
{
    desktop.screens.connect({primary, rightSameSize});
    current->screen = rightSameSize;
    EXPECT_EQ(model.neighbour(ScreenStep::next)->currentScreen(), primary);
    current->screen = rightSameSize;
    desktop.screens.remove(rightSameSize.id);
    EXPECT_FALSE(model.neighbour(ScreenStep::next));
    EXPECT_FALSE(model.neighbour(ScreenStep::previous));
    EXPECT_EQ(model.currentScreen(), rightSameSize);
}

TEST_F(ScreensModelTest, SelectingEndsTheStayOnADetachedScreen)
{
    desktop.screens.connect({primary});
    current->screen = rightSameSize;
    EXPECT_TRUE(model.selectScreenForWindowRect({100, 100, 400, 300}));
    EXPECT_EQ(model.currentScreen(), primary);
}

TEST_F(ScreensModelTest, FramesFlipByTheHeightOfThePrimaryScreen)
{
    desktop.screens.connect({primary, above});
    const auto flipped = ScreensModel::appKitRectFromAccessibility(platform, {10, 20, 300, 200});
    EXPECT_EQ(flipped, (ScreenRect{10, 680, 300, 200}));
    EXPECT_EQ(ScreensModel::accessibilityRectFromAppKit(platform, flipped), (AxRect{10, 20, 300, 200}));
}

TEST_F(ScreensModelTest, TheTwoFlipsDifferUnderAHigherScreen)
{
    desktop.screens.connect({primary, above});
    static_cast<void>(model.selectScreenForWindowRect({10, 20, 300, 200}));
    EXPECT_EQ(desktop.log.lines()[1], "normalizedWindowRect: (10.0, 1760.0, 300.0, 200.0)");
    EXPECT_EQ(model.currentScreen(), above);
    EXPECT_EQ(ScreensModel::appKitRectFromAccessibility(platform, {10, 20, 300, 200}).y, 680.0);
}

TEST_F(ScreensModelTest, WithoutScreensNothingFlips)
{
    desktop.screens.connect({});
    EXPECT_EQ(ScreensModel::appKitRectFromAccessibility(platform, {10, 20, 300, 200}), (ScreenRect{10, 20, 300, 200}));
    EXPECT_EQ(ScreensModel::accessibilityRectFromAppKit(platform, {10, 20, 300, 200}), (AxRect{10, 20, 300, 200}));
}

} // namespace
} // namespace quorvel
