#include "contract/ContractTest.h"
#include "platform/Screens.h"

namespace quorvel::contract {
namespace {

const ContractScreen primary{{0.0, 0.0, 800.0, 600.0}};
const ContractScreen secondary{{800.0, 0.0, 640.0, 480.0}};

class ScreensContract : public ContractTest {
protected:
    void connect(const std::vector<ContractScreen>& arrangement)
    {
        desktop->connectScreens(arrangement);
        ASSERT_TRUE(desktop->waitUntil([&] {
            const auto current = screens.screens();
            return current.size() == arrangement.size() &&
                   current.back().frame.size() == arrangement.back().bounds.size();
        }));
    }

    Screens& screens = port(&ContractPorts::screens);
};

TEST_F(ScreensContract, ThePrimaryScreenComesFirstWithItsLowerLeftCornerAtTheOrigin)
{
    connect({primary, secondary});

    EXPECT_EQ(screens.screens().front().frame, (ScreenRect{0.0, 0.0, 800.0, 600.0}));
}

// y counts upwards from the primary screen's lower edge:
//
//   600 +-----------+------+
//       |           |      |
//   120 |  primary  +------+
//     0 +-----------+
//
TEST_F(ScreensContract, OtherScreensLieWhereTheyAreSeenFromThePrimaryOne)
{
    connect({primary, secondary});

    EXPECT_EQ(screens.screens()[1].frame, (ScreenRect{800.0, 120.0, 640.0, 480.0}));
}

TEST_F(ScreensContract, AScreenBelowThePrimaryOneHasNegativeCoordinates)
{
    connect({primary, {{0.0, 600.0, 640.0, 480.0}}});

    EXPECT_EQ(screens.screens()[1].frame, (ScreenRect{0.0, -480.0, 640.0, 480.0}));
}

TEST_F(ScreensContract, ABarAtTheTopIsLeftOutOfTheVisibleFrameOnly)
{
    desktop->connectScreens({{primary.bounds, 24.0}});

    EXPECT_TRUE(desktop->waitUntil([&] {
        const auto current = screens.screens();
        return current.size() == 1 && current[0].visibleFrame == ScreenRect{0.0, 0.0, 800.0, 576.0};
    }));
    EXPECT_EQ(screens.screens()[0].frame, (ScreenRect{0.0, 0.0, 800.0, 600.0}));
}

TEST_F(ScreensContract, WithoutBarsTheWholeScreenIsVisible)
{
    connect({primary});

    EXPECT_EQ(screens.screens()[0].visibleFrame, screens.screens()[0].frame);
}

TEST_F(ScreensContract, ScreensKeepTheirIdentityWhenOthersComeAndGo)
{
    connect({primary});
    const auto before = screens.screens().front();

    connect({primary, secondary});
    const auto both = screens.screens();
    EXPECT_TRUE(both[0].isSameScreenAs(before));
    EXPECT_FALSE(both[1].isSameScreenAs(before));

    connect({primary});
    EXPECT_TRUE(screens.screens().front().isSameScreenAs(before));
}

TEST_F(ScreensContract, TheMainScreenIsTheOneWithTheKeyboard)
{
    connect({primary, secondary});
    const auto left = desktop->openWindow("Editor", "Left", {100.0, 100.0, 400.0, 300.0});
    desktop->openWindow("Browser", "Right", {900.0, 100.0, 400.0, 300.0});
    const auto isMain = [&](std::size_t index) {
        const auto main = screens.mainScreen();
        return main && main->isSameScreenAs(screens.screens()[index]);
    };
    EXPECT_TRUE(desktop->waitUntil([&] { return isMain(1); }));

    desktop->focusWindow(left);

    EXPECT_TRUE(desktop->waitUntil([&] { return isMain(0); }));
}

} // namespace
} // namespace quorvel::contract
