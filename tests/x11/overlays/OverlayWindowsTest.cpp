#include "x11/overlays/Drawings.h"
#include "x11/overlays/OverlayTest.h"

namespace quorvel::x11 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OverlayWindowsTest : public OverlayTest {
protected:
    static constexpr xtest::PixelRect somewhere{100, 120, 400, 300};
    static constexpr Size size{400.0, 300.0};
    static constexpr std::uint32_t yellow = 0xFFFF00;
    static constexpr std::uint32_t red = 0xFF0000;

    // How many requests the program under test has sent.
    std::uint32_t requestCount() { return xcb_no_operation(connection->xcb()).sequence; }

    // A window that covers the whole display in one colour.
    std::unique_ptr<xtest::TestWindow> coverDisplay(std::uint32_t color)
    {
        auto window = std::make_unique<xtest::TestWindow>(
            display.server,
            xtest::TestWindow::Options{.rect = {0, 0, 1920, 1080}, .overrideRedirect = true, .color = color});
        window->map();
        display.client.waitFor("the cover", [&] { return pixel(5, 5) == color; });
        return window;
    }
};

TEST_F(OverlayWindowsTest, AreNoBusinessOfTheWindowManager)
{
    const auto window = showWindow(somewhere, FrameDrawing().of(size));
    const auto shown = shownWindows();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_TRUE(display.client.overridesRedirect(shown[0]));
    EXPECT_EQ(display.client.property(shown[0], "_COMPTON_SHADOW"), std::vector<std::uint32_t>{0});
    EXPECT_EQ(display.client.textProperty(shown[0], "_NET_WM_NAME"), "Quorvel");
    EXPECT_EQ(display.client.textProperty(shown[0], "WM_CLASS"), std::string("quorvel\0Quorvel\0", 16));
    EXPECT_EQ(display.client.property(shown[0], "_NET_WM_WINDOW_TYPE"),
              std::vector{display.client.atom("_NET_WM_WINDOW_TYPE_NOTIFICATION")});
}

// The server would keep a pixmap for each window of another depth.
TEST_F(OverlayWindowsTest, WithoutACompositorHaveTheDepthOfTheRoot)
{
    const auto window = showWindow(somewhere, FrameDrawing().of(size));
    EXPECT_EQ(depth(shownWindows().at(0)), connection->screen().root_depth);
}

TEST_F(OverlayWindowsTest, LieWhereTheirFramesSay)
{
    const auto window = showWindow(somewhere, FrameDrawing().of(size));
    EXPECT_EQ(display.client.clientRect(shownWindows().at(0)), somewhere);
}

TEST_F(OverlayWindowsTest, CoverTheWholePixelsNearestToTheirFrames)
{
    const auto window = windows.createWindow({.contentRect = {10.4, 1080.0 - 220.6, 100.3, 200.2}});
    window->orderFrontRegardless();
    settle();
    EXPECT_EQ(display.client.clientRect(shownWindows().at(0)), (xtest::PixelRect{10, 20, 101, 201}));
}

TEST_F(OverlayWindowsTest, WithoutAreaOrOutOfAllBoundsDoNoHarm)
{
    const auto nowhere = windows.createWindow({.contentRect = {0.0, 0.0, 0.0, 0.0}});
    const auto farAway = windows.createWindow({.contentRect = {1e9, -1e9, 1e12, 3.0}});
    nowhere->orderFrontRegardless();
    farAway->orderFrontRegardless();
    settle();
    EXPECT_TRUE(nowhere->isVisible());
    EXPECT_EQ(shownWindows().size(), 2U);
}

TEST_F(OverlayWindowsTest, LetThePointerThrough)
{
    xtest::TestWindow below(display.server, {.rect = somewhere, .overrideRedirect = true});
    below.map();
    const auto window = showWindow(somewhere, filledWith(Color::black(), size));
    display.keyboard.movePointer(300, 270);
    auto* const client = display.client.connection();
    const Reply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(client, xcb_query_pointer(client, display.client.root()), nullptr));
    EXPECT_EQ(pointer->child, below.id());
    EXPECT_THAT(shape(shownWindows().at(0), XCB_SHAPE_SK_INPUT), IsEmpty());
}

TEST_F(OverlayWindowsTest, ThatDoNotIgnoreTheMouseStopThePointer)
{
    const auto window = windows.createWindow({.contentRect = flipped(somewhere), .ignoresMouseEvents = false});
    window->setContent(filledWith(Color::black(), size));
    window->orderFrontRegardless();
    settle();
    display.keyboard.movePointer(300, 270);
    auto* const client = display.client.connection();
    const Reply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(client, xcb_query_pointer(client, display.client.root()), nullptr));
    EXPECT_EQ(pointer->child, shownWindows().at(0));
}

TEST_F(OverlayWindowsTest, ReachTheServerAtTheEndOfTheTurn)
{
    int mapped = 0;
    display.client.observeEvents(
        [&](const xcb_generic_event_t& event) { mapped += (event.response_type & 0x7F) == XCB_MAP_NOTIFY ? 1 : 0; });
    const auto fleeting = createWindow(somewhere);
    fleeting->orderFrontRegardless();
    fleeting->orderOut();
    const auto lasting = createWindow(somewhere);
    lasting->orderFrontRegardless();
    settle();
    EXPECT_EQ(mapped, 1);
    EXPECT_EQ(shownWindows().size(), 1U);
}

TEST_F(OverlayWindowsTest, AreNotShownAfterClosing)
{
    const auto window = showWindow(somewhere, FrameDrawing().of(size));
    window->close();
    settle();
    EXPECT_THAT(shownWindows(), IsEmpty());
}

TEST_F(OverlayWindowsTest, ThatDoNotIgnoreTheMouseAreGoneFromTheServerAfterClosing)
{
    const auto window = windows.createWindow({.contentRect = flipped(somewhere), .ignoresMouseEvents = false});
    window->orderFrontRegardless();
    settle();
    const auto id = shownWindows().at(0);
    window->close();
    settle();
    EXPECT_FALSE(display.client.exists(id));
}

// A compositor shows a window much sooner that it has seen before.
TEST_F(OverlayWindowsTest, TakeThePlaceOfThoseThatWereClosed)
{
    const auto desktop = coverDisplay(0x336699);
    auto closed = showWindow(somewhere, filledWith(Color::bytes(255, 0, 0), size));
    const auto id = shownWindows().at(0);
    closed.reset();
    settle();
    constexpr xtest::PixelRect elsewhere{700, 500, 200, 100};
    const auto other = showWindow(elsewhere, FrameDrawing().of({200.0, 100.0}));
    EXPECT_THAT(shownWindows(), ElementsAre(id));
    EXPECT_EQ(display.client.clientRect(id), elsewhere);
    EXPECT_EQ(pixel(300, 270), 0x336699U);
    EXPECT_EQ(pixel(700, 500), 0x336699U); // cut anew, at the rounded corner
    EXPECT_EQ(pixel(800, 500), yellow);
    EXPECT_THAT(shape(id, XCB_SHAPE_SK_INPUT), IsEmpty());
}

TEST_F(OverlayWindowsTest, ThatTakeThePlaceOfClosedOnesLieInFront)
{
    auto closed = showWindow(somewhere, filledWith(Color::bytes(255, 255, 0), size));
    const auto below = showWindow(somewhere, filledWith(Color::bytes(0, 0, 255), size));
    closed.reset();
    settle();
    const auto above = showWindow(somewhere, filledWith(Color::bytes(255, 0, 0), size));
    EXPECT_EQ(pixel(300, 270), red);
}

TEST_F(OverlayWindowsTest, CanBeShownAgainAfterClosing)
{
    const auto window = showWindow(somewhere, filledWith(Color::bytes(255, 0, 0), size));
    window->close();
    settle();
    window->orderFrontRegardless();
    settle();
    EXPECT_EQ(pixel(300, 270), red);
}

TEST_F(OverlayWindowsTest, WithoutACompositorAreCutToWhatIsDrawn)
{
    const auto desktop = coverDisplay(0x336699);
    const auto window = showWindow(somewhere, FrameDrawing{.fill = Color::bytes(0, 0, 255, 128)}.of(size));
    EXPECT_EQ(pixel(300, 120), yellow);    // the ring above,
    EXPECT_EQ(pixel(100, 200), yellow);    // left,
    EXPECT_EQ(pixel(499, 200), yellow);    // right
    EXPECT_EQ(pixel(300, 419), yellow);    // and below
    EXPECT_EQ(pixel(300, 122), 0x336699U); // the desktop inside,
    EXPECT_EQ(pixel(200, 200), 0x336699U);
    EXPECT_EQ(pixel(100, 120), 0x336699U); // and outside of the rounded corner
    EXPECT_EQ(pixel(275, 255), 0x1C1C1EU); // the label's box is dark
    const auto box = shape(shownWindows().at(0), XCB_SHAPE_SK_BOUNDING);
    EXPECT_FALSE(box.empty());
}

TEST_F(OverlayWindowsTest, WithoutACompositorTextIsNeverCutToItsLetters)
{
    const auto desktop = coverDisplay(0x336699);
    const auto window = showWindow(somewhere, FrameDrawing().of(size));
    for (int y = 257; y < 283; ++y) {
        for (int x = 275; x < 325; ++x) {
            ASSERT_NE(pixel(x, y), 0x336699U) << x << ", " << y;
        }
    }
}

TEST_F(OverlayWindowsTest, WithoutAnythingToDrawShowNothing)
{
    const auto desktop = coverDisplay(0x336699);
    const auto window = showWindow(somewhere, {});
    EXPECT_EQ(shownWindows().size(), 1U);
    EXPECT_EQ(pixel(300, 270), 0x336699U);
}

TEST_F(OverlayWindowsTest, ShowNewContentAtOnce)
{
    const auto window = showWindow(somewhere, filledWith(Color::bytes(255, 0, 0), size));
    ASSERT_EQ(pixel(300, 270), red);
    window->setContent(filledWith(Color::bytes(255, 255, 0), size));
    settle();
    EXPECT_EQ(pixel(300, 270), yellow);
}

TEST_F(OverlayWindowsTest, AreDrawnAnewWhenTheyAreResized)
{
    const auto desktop = coverDisplay(0x336699);
    const auto window = showWindow(somewhere, FrameDrawing().of(size));
    window->setFrame(flipped({200, 200, 600, 500}));
    window->setContent(FrameDrawing().of({600.0, 500.0}));
    settle();
    EXPECT_EQ(pixel(500, 200), yellow);
    EXPECT_EQ(pixel(799, 450), yellow);
    EXPECT_EQ(pixel(499, 300), 0x336699U);
    EXPECT_EQ(pixel(300, 120), 0x336699U);
}

TEST_F(OverlayWindowsTest, KeepTheirContentWhenTheyAreMoved)
{
    const auto desktop = coverDisplay(0x336699);
    const auto window = showWindow(somewhere, FrameDrawing().of(size));
    window->setFrame(flipped({900, 500, 400, 300}));
    settle();
    EXPECT_EQ(pixel(1100, 500), yellow);
    EXPECT_EQ(pixel(300, 120), 0x336699U);
}

TEST_F(OverlayWindowsTest, RepairWhatWasDamaged)
{
    const auto window = showWindow(somewhere, filledWith(Color::bytes(255, 0, 0), size));
    auto* const client = display.client.connection();
    constexpr std::uint8_t withExposure = 1;
    xcb_clear_area(client, withExposure, shownWindows().at(0), 0, 0, 0, 0);
    display.client.sync();
    settle();
    EXPECT_EQ(pixel(300, 270), red);
}

// Mapping exposes the whole window; drawing again would be seen as a flicker.
TEST_F(OverlayWindowsTest, AreNotDrawnTwiceWhenTheyAreShown)
{
    const auto window = createWindow(somewhere);
    window->setContent(filledWith(Color::bytes(255, 0, 0), size));
    window->orderFrontRegardless();
    turn();
    turn(); // in which others begin to be watched
    const auto requestsBefore = requestCount();
    turn();
    turn();
    constexpr unsigned ownRequests = 3; // one a turn, and the one that counts
    EXPECT_EQ(requestCount() - requestsBefore, ownRequests);
    EXPECT_EQ(pixel(300, 270), red);
}

TEST_F(OverlayWindowsTest, OfHigherLevelsStayInFront)
{
    const auto legend = showWindow(somewhere, filledWith(Color::bytes(255, 0, 0), size), windowLevels::popUpMenu + 2);
    const auto first = showWindow(somewhere, filledWith(Color::black(), size));
    const auto second = showWindow(somewhere, filledWith(Color::black(), size));
    EXPECT_EQ(pixel(300, 270), red);
    first->orderFrontRegardless();
    settle();
    EXPECT_EQ(pixel(300, 270), red);
    const auto status = showWindow(somewhere, filledWith(Color::black(), size), windowLevels::status);
    EXPECT_EQ(pixel(300, 270), red);
    EXPECT_EQ(display.client.clientRect(shownWindows().front()), somewhere);
}

} // namespace
} // namespace quorvel::x11
