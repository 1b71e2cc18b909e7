#include <gtest/gtest.h>

#include "support/TestWindow.h"
#include "x11/windows/AdapterDisplay.h"

namespace quorvel::x11 {
namespace {

class FollowedWindow : public testing::Test {
protected:
    FollowedWindow()
    {
        desktop.display.startWindowManager(xtest::WindowManager::openbox);
        window.map();
        desktop.waitFor("a managed window", [&] { return desktop.client().activeWindow() == window.id(); });
    }

    // Has the adapter follow the window, and know it.
    std::unique_ptr<AxObserver> follow()
    {
        auto observer = desktop.adapters.accessibility.createObserver(process, [](std::string_view) {});
        EXPECT_TRUE((*observer)->addNotification(element, axNames::moved));
        settle();
        return std::move(*observer);
    }

    void settle()
    {
        for (int round = 0; round < 3; ++round) {
            desktop.client().sync();
            desktop.connection->sync();
            desktop.connection->dispatchEvents();
            desktop.loop.drain();
        }
    }

    // What the server is asked, in a turn of its own, to learn where the window is.
    unsigned requestsForPosition()
    {
        settle();
        auto* const link = desktop.connection->xcb();
        const auto before = xcb_no_operation(link).sequence;
        position = desktop.adapters.accessibility.copyAttribute(element, axNames::position);
        return xcb_no_operation(link).sequence - before - 1;
    }

    AxPoint lastPosition() const { return std::get<AxPoint>(position.value()); }

    AdapterDisplay desktop;
    xtest::TestWindow window{desktop.display.server, {}};
    ProcessId process = desktop.client().processOf(window.id());
    AxElementRef element = AdapterDisplay::elementOf(process, window.id());
    std::expected<AxValue, AxError> position = std::unexpected(AxError());
};

TEST_F(FollowedWindow, IsNotReadAgainWhileNothingChanges)
{
    EXPECT_GT(requestsForPosition(), 0U);
    EXPECT_GT(requestsForPosition(), 0U) << "nobody follows it yet";
    const auto observer = follow();
    EXPECT_EQ(requestsForPosition(), 0U);
}

TEST_F(FollowedWindow, IsReadAgainAfterItMoved)
{
    const auto observer = follow();
    constexpr std::uint32_t positionFromPager = 1U | 3U << 8U | 2U << 12U;
    desktop.client().sendToWindowManager(window.id(), "_NET_MOVERESIZE_WINDOW", {positionFromPager, 640, 360, 0, 0});
    desktop.waitFor("the window to move", [&] {
        requestsForPosition();
        return lastPosition() == AxPoint{640.0, 360.0};
    });
}

TEST_F(FollowedWindow, IsMissedOnceItVanished)
{
    const auto observer = follow();
    window.vanish();
    desktop.waitFor("the window to vanish", [&] { return !desktop.client().exists(window.id()); });
    requestsForPosition();
    EXPECT_EQ(position.error(), axErrors::invalidElement);
}

TEST_F(FollowedWindow, IsReadEachTimeAgainAfterwards)
{
    follow().reset();
    EXPECT_GT(requestsForPosition(), 0U);
    EXPECT_GT(requestsForPosition(), 0U);
}

} // namespace
} // namespace quorvel::x11
