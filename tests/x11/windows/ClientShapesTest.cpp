#include <memory>

#include <gtest/gtest.h>
#include <unistd.h>

#include "support/TestWindow.h"
#include "x11/windows/AdapterDisplay.h"

namespace quorvel::x11 {
namespace {

using xtest::PixelRect;
using xtest::TestWindow;
using Manager = xtest::WindowManager;

constexpr AxRect target{300, 200, 800, 600};
constexpr PixelRect targetPixels{300, 200, 800, 600};

// Windows that are not simply as large as they look, or as they are told to be.
class ClientShapes : public testing::TestWithParam<Manager> {
protected:
    void SetUp() override
    {
        if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
            GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
        }
        desktop = std::make_unique<AdapterDisplay>();
        desktop->display.startWindowManager(GetParam());
    }

    PixelRect placed(const TestWindow& window)
    {
        desktop->place(AdapterDisplay::elementOf(::getpid(), window.id()), target);
        return desktop->client().outerRect(window.id()).value_or(PixelRect{});
    }

    std::unique_ptr<AdapterDisplay> desktop;
};

TEST_P(ClientShapes, WithAnInvisibleShadowTheVisiblePartLandsOnTheTarget)
{
    TestWindow window(desktop->display.server, {.decorated = false});
    window.client().setProperty(window.id(), "_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL, {26, 26, 23, 29});
    window.map();
    EXPECT_EQ(placed(window), targetPixels);
    EXPECT_GE(desktop->client().clientRect(window.id()).value_or(PixelRect{}).width, 800 + 26 + 26 - 4);
}

TEST_P(ClientShapes, AShadowThatComesWithTheFirstMoveIsMadeUpFor)
{
    TestWindow window(desktop->display.server, {.decorated = false});
    window.map();
    desktop->write(AdapterDisplay::elementOf(::getpid(), window.id()), target);
    desktop->loop.drain();
    window.client().setProperty(window.id(), "_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL, {26, 26, 23, 29});
    window.client().sync();
    desktop->waitFor("the window to be placed", [&] { return !desktop->adapters.placements.isBusy(); });
    EXPECT_EQ(desktop->client().outerRect(window.id()), targetPixels);
}

TEST_P(ClientShapes, SizedInStepsStandsAtTheCornerAndIsAtMostOneStepSmaller)
{
    TestWindow window(desktop->display.server, {.widthIncrement = 7, .heightIncrement = 13});
    window.map();
    const auto outer = placed(window);
    EXPECT_EQ(outer.x, targetPixels.x);
    EXPECT_EQ(outer.y, targetPixels.y);
    EXPECT_LE(outer.width, targetPixels.width);
    EXPECT_GT(outer.width, targetPixels.width - 7);
    EXPECT_LE(outer.height, targetPixels.height);
    EXPECT_GT(outer.height, targetPixels.height - 13);
}

INSTANTIATE_TEST_SUITE_P(On, ClientShapes, testing::Values(Manager::metacity, Manager::xfwm4, Manager::kwin),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::x11
