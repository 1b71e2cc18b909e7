#include "support/ClientProcess.h"
#include "x11/overlays/Drawings.h"
#include "x11/overlays/OverlayTest.h"

namespace quorvel::x11 {
namespace {

class OverlayStackingTest : public OverlayTest {
protected:
    static constexpr xtest::PixelRect somewhere{100, 120, 400, 300};
    const DrawList content = FrameDrawing().of({400.0, 300.0});

    std::unique_ptr<xtest::TestWindow> openWindow()
    {
        auto window = std::make_unique<xtest::TestWindow>(
            display.server, xtest::TestWindow::Options{.rect = somewhere, .overrideRedirect = true});
        window->map();
        return window;
    }

    static void raise(xtest::TestWindow& window)
    {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(window.client().connection(), window.id(), XCB_CONFIG_WINDOW_STACK_MODE, &above);
        window.client().sync();
    }

    bool areInFront(std::size_t count)
    {
        const auto all = visibleWindows();
        const auto own = shownWindows();
        return own.size() == count && all.size() >= count &&
               std::equal(own.begin(), own.end(), all.end() - static_cast<std::ptrdiff_t>(count));
    }
};

TEST_F(OverlayStackingTest, OverlaysStayInFrontOfAnActivatedWindow)
{
    display.startWindowManager(xtest::WindowManager::openbox);
    const xtest::ClientProcess first(display.server, display.client, xtest::ClientProcess::Kind::plain, "First");
    const xtest::ClientProcess second(display.server, display.client, xtest::ClientProcess::Kind::plain, "Second");
    const auto frame = showWindow(somewhere, content);
    const auto legend = showWindow(somewhere, content, windowLevels::popUpMenu + 2);
    for (const auto* const client : {&first, &second}) {
        display.client.sendToWindowManager(client->window(), "_NET_ACTIVE_WINDOW", {2, 0, 0, 0, 0});
        waitFor("the activation", [&] { return display.client.activeWindow() == client->window(); });
        waitFor("the overlays in front", [&] { return areInFront(2); });
    }
}

TEST_F(OverlayStackingTest, OverlaysComeBackInFrontOfARaisedWindowInTheirOrder)
{
    const auto other = openWindow();
    const auto frame = showWindow(somewhere, content);
    const auto legend = showWindow({200, 200, 100, 100}, content, windowLevels::popUpMenu + 2);
    const auto before = shownWindows();
    raise(*other);
    waitFor("the overlays in front", [&] { return areInFront(2); });
    EXPECT_EQ(shownWindows(), before);
}

TEST_F(OverlayStackingTest, OverlaysComeInFrontOfAWindowThatOpens)
{
    const auto frame = showWindow(somewhere, content);
    const auto other = openWindow();
    waitFor("the overlay in front", [&] { return areInFront(1); });
}

TEST_F(OverlayStackingTest, OverlaysComeInFrontOfAWindowThatOpensInTheSameMoment)
{
    const auto frame = createWindow(somewhere);
    frame->setContent(content);
    frame->orderFrontRegardless();
    std::unique_ptr<xtest::TestWindow> other;
    loop.async([&] {
        connection->flush();
        other = openWindow();
    });
    waitFor("both windows", [&] { return other && visibleWindows().size() == 2; });
    waitFor("the overlay in front", [&] { return areInFront(1); });
}

TEST_F(OverlayStackingTest, AWindowThatInsistsWinsInTheEnd)
{
    const auto other = openWindow();
    const auto frame = showWindow(somewhere, content);
    int lost = 0;
    for (int round = 0; round < 30; ++round) {
        raise(*other);
        settle();
        lost += areInFront(1) ? 0 : 1;
    }
    EXPECT_FALSE(areInFront(1));
    EXPECT_GT(lost, 15);
    EXPECT_LT(lost, 29);
}

TEST_F(OverlayStackingTest, ShowingAgainStartsAnew)
{
    const auto other = openWindow();
    const auto frame = showWindow(somewhere, content);
    for (int round = 0; round < 30; ++round) {
        raise(*other);
        settle();
    }
    frame->orderFrontRegardless();
    settle();
    EXPECT_TRUE(areInFront(1));
    raise(*other);
    waitFor("the overlay in front", [&] { return areInFront(1); });
}

TEST_F(OverlayStackingTest, HiddenOverlaysDoNotCareWhatOthersDo)
{
    const auto other = openWindow();
    const auto frame = showWindow(somewhere, content);
    frame->orderOut();
    settle();
    int configured = 0;
    const auto counting =
        connection->addEventHandler(XCB_CONFIGURE_NOTIFY, [&](const xcb_generic_event_t&) { ++configured; });
    raise(*other);
    settle();
    EXPECT_EQ(configured, 0);
}

} // namespace
} // namespace quorvel::x11
