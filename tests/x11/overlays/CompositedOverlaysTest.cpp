#include "x11/overlays/Drawings.h"
#include "x11/overlays/OverlayTest.h"

namespace quorvel::x11 {
namespace {

class CompositedOverlaysTest : public OverlayTest {
protected:
    static constexpr xtest::PixelRect somewhere{100, 120, 400, 300};
    static constexpr Size size{400.0, 300.0};
    static constexpr std::uint32_t blue = 0x0000FF;

    void SetUp() override
    {
        if (!xtest::Compositor::isInstalled()) {
            GTEST_SKIP() << "needs picom";
        }
        cover.map();
        display.client.waitFor("the cover", [&] { return pixel(5, 5) == blue; });
    }

    void startCompositor() { compositor = std::make_unique<xtest::Compositor>(display.server, display.client); }

    bool isCut()
    {
        return shape(shownWindows().at(0), XCB_SHAPE_SK_BOUNDING) != std::vector<PixelRect>{{0, 0, 400, 300}};
    }

    // Half of the cover's blue and half of the frame's green.
    bool isBlended(int x, int y)
    {
        const auto color = pixel(x, y);
        const auto isHalf = [](std::uint32_t component) { return component > 0x78 && component < 0x88; };
        return color >> 16U == 0 && isHalf((color >> 8U) & 0xFFU) && isHalf(color & 0xFFU);
    }

    const DrawList greenFrame =
        FrameDrawing{.border = Color::bytes(255, 0, 0), .fill = Color::bytes(0, 255, 0, 128)}.of(size);
    xtest::TestWindow cover{display.server, {.rect = {0, 0, 1920, 1080}, .overrideRedirect = true, .color = blue}};
    std::unique_ptr<xtest::Compositor> compositor;
};

TEST_F(CompositedOverlaysTest, BlendWithWhatIsBehindThem)
{
    startCompositor();
    settle();
    const auto window = showWindow(somewhere, greenFrame);
    waitFor("a blended fill", [&] { return isBlended(200, 200); });
    EXPECT_EQ(pixel(300, 120), 0xFF0000U);
    EXPECT_EQ(pixel(100, 120), blue); // outside of the rounded corner
    EXPECT_FALSE(isCut());
    EXPECT_EQ(depth(shownWindows().at(0)), 32);
}

TEST_F(CompositedOverlaysTest, HaveNoShadowOfTheCompositors)
{
    startCompositor();
    settle();
    const auto window = showWindow(somewhere, greenFrame);
    waitFor("a blended fill", [&] { return isBlended(200, 200); });
    for (int distance = 1; distance < 20; ++distance) {
        EXPECT_EQ(pixel(300, 420 + distance), blue) << distance;
    }
}

TEST_F(CompositedOverlaysTest, StartToBlendWhenACompositorStarts)
{
    const auto window = showWindow(somewhere, greenFrame);
    EXPECT_TRUE(isCut());
    EXPECT_EQ(pixel(200, 200), blue);
    startCompositor();
    waitFor("a blended fill", [&] { return isBlended(200, 200); });
    EXPECT_FALSE(isCut());
    EXPECT_TRUE(isBlended(490, 400));
    EXPECT_TRUE(isBlended(300, 270)); // the label's box is transparent again
}

TEST_F(CompositedOverlaysTest, AreCutWhenTheCompositorEnds)
{
    startCompositor();
    settle();
    const auto window = showWindow(somewhere, greenFrame);
    waitFor("a blended fill", [&] { return isBlended(200, 200); });
    compositor->stop();
    waitFor("the desktop inside the frame", [&] { return pixel(200, 200) == blue; });
    EXPECT_TRUE(isCut());
    EXPECT_EQ(pixel(300, 120), 0xFF0000U);
    EXPECT_EQ(pixel(275, 255), 0x1C1C1EU);
}

TEST_F(CompositedOverlaysTest, BlendAlsoWhereOthersWereClosedThatCouldNot)
{
    auto closed = showWindow(somewhere, greenFrame);
    closed.reset();
    settle();
    startCompositor();
    settle();
    const auto window = showWindow(somewhere, greenFrame);
    waitFor("a blended fill", [&] { return isBlended(200, 200); });
    EXPECT_EQ(depth(shownWindows().at(0)), 32);
    EXPECT_FALSE(isCut());
}

TEST_F(CompositedOverlaysTest, BlendInWindowsThatWereClosedBefore)
{
    startCompositor();
    settle();
    auto closed = showWindow(somewhere, greenFrame);
    waitFor("a blended fill", [&] { return isBlended(200, 200); });
    const auto id = shownWindows().at(0);
    closed.reset();
    waitFor("the cover", [&] { return pixel(200, 200) == blue; });
    const auto window = showWindow({600, 120, 400, 300}, greenFrame);
    waitFor("a blended fill elsewhere", [&] { return isBlended(700, 200); });
    EXPECT_EQ(shownWindows(), std::vector<xcb_window_t>{id});
    EXPECT_EQ(pixel(200, 200), blue);
}

TEST_F(CompositedOverlaysTest, WithTheFocusKeepItWhenACompositorStarts)
{
    const auto panel = windows.createPanel({.contentRect = flipped(somewhere)}, [](const KeyEvent&) {});
    panel->orderFrontRegardless();
    panel->makeKey();
    settle();
    const auto before = shownWindows();
    startCompositor();
    settle();
    EXPECT_TRUE(panel->isKey());
    EXPECT_EQ(shownWindows(), before);
    waitFor("the cover through the panel", [&] { return pixel(300, 270) == blue; });
}

TEST_F(CompositedOverlaysTest, ThatAreHiddenFollowTheCompositorToo)
{
    const auto window = showWindow(somewhere, greenFrame);
    window->orderOut();
    settle();
    startCompositor();
    settle();
    window->orderFrontRegardless();
    waitFor("a blended fill", [&] { return isBlended(200, 200); });
    EXPECT_FALSE(isCut());
}

} // namespace
} // namespace quorvel::x11
