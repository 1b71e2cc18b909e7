#include "platform/x11/windows/ClientWindows.h"

#include <string>

#include <gtest/gtest.h>

#include "x11/windows/AdapterDisplay.h"

namespace quorvel::x11 {
namespace {

class ClientWindowsTest : public testing::Test {
protected:
    // A window of another program, always with the same number.
    void openWindow(const std::string& className)
    {
        xcb_create_window(client.connection(), 0, window, client.root(), 0, 0, 100, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        const std::string names = className + '\0' + className + '\0';
        xcb_change_property(client.connection(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                            static_cast<std::uint32_t>(names.size()), names.data());
        client.sync();
    }

    void closeWindow()
    {
        xcb_destroy_window(client.connection(), window);
        client.sync();
    }

    std::string classNameInTheNextTurn()
    {
        desktop.connection->sync();
        desktop.connection->dispatchEvents();
        desktop.connection->beginTurn();
        const auto* const snapshot = desktop.adapters.windows.find(window);
        return snapshot != nullptr ? snapshot->identity.className : "";
    }

    // As of the next turn, together with what the server was asked for it.
    const WindowSnapshot* snapshotInTheNextTurn()
    {
        desktop.connection->beginTurn();
        auto* const link = desktop.connection->xcb();
        const auto before = xcb_no_operation(link).sequence;
        const auto* const snapshot = desktop.adapters.windows.find(window);
        requests = xcb_no_operation(link).sequence - before - 1;
        return snapshot;
    }

    void setTitle(const std::string& title)
    {
        xcb_change_property(client.connection(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                            static_cast<std::uint32_t>(title.size()), title.data());
        client.sync();
    }

    // Puts the window into a frame, or a frame into another one, as window managers do.
    xcb_window_t enclose(xcb_window_t inner)
    {
        const auto frame = xcb_generate_id(client.connection());
        xcb_create_window(client.connection(), 0, frame, client.root(), 40, 50, 300, 300, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_reparent_window(client.connection(), inner, frame, 3, 20);
        xcb_map_window(client.connection(), inner);
        xcb_map_window(client.connection(), frame);
        client.sync();
        return frame;
    }

    void move(xcb_window_t frame, std::uint32_t x)
    {
        xcb_configure_window(client.connection(), frame, XCB_CONFIG_WINDOW_X, &x);
        client.sync();
    }

    unsigned requests = 0;
    AdapterDisplay desktop;
    xtest::XClient client{desktop.display.server};
    xcb_window_t window = xcb_generate_id(client.connection());
};

TEST_F(ClientWindowsTest, AWindowThatGetsTheNumberOfAClosedOneIsNotTakenForIt)
{
    openWindow("First");
    EXPECT_EQ(classNameInTheNextTurn(), "First");
    closeWindow();
    openWindow("Second");
    EXPECT_EQ(classNameInTheNextTurn(), "Second");
    EXPECT_EQ(classNameInTheNextTurn(), "Second");
}

TEST_F(ClientWindowsTest, AWindowThatIsReadBeforeItIsThereIsFoundLater)
{
    EXPECT_EQ(classNameInTheNextTurn(), "");
    openWindow("Late");
    EXPECT_EQ(classNameInTheNextTurn(), "Late");
}

TEST_F(ClientWindowsTest, AWindowThatDidNotChangeCostsNothingButTheQuestionForChanges)
{
    openWindow("First");
    snapshotInTheNextTurn();
    EXPECT_GT(requests, 1U);
    snapshotInTheNextTurn();
    EXPECT_EQ(requests, 1U);
}

TEST_F(ClientWindowsTest, EachNewTitleIsSeenBeforeItsEventHasBeenHandled)
{
    openWindow("First");
    for (const std::string title : {"One", "Two", "Three"}) {
        setTitle(title);
        EXPECT_EQ(snapshotInTheNextTurn()->title, title);
    }
}

TEST_F(ClientWindowsTest, AWindowThatChangesAllTheTimeWakesTheProgramOnce)
{
    openWindow("First");
    snapshotInTheNextTurn();
    int events = 0;
    const auto counting =
        desktop.connection->addEventHandler(XCB_PROPERTY_NOTIFY, [&](const auto& /*event*/) { ++events; });
    for (int count = 0; count < 5; ++count) {
        setTitle(std::to_string(count));
        desktop.connection->sync();
        desktop.connection->dispatchEvents();
        desktop.connection->sync();
    }
    EXPECT_EQ(events, 1);
    EXPECT_EQ(snapshotInTheNextTurn()->title, "4");
}

// Without a message to the client, as after a restart of a window manager that tells nothing of its frames.
TEST_F(ClientWindowsTest, FramesThatMoveInSilenceTakeTheirWindowAlong)
{
    openWindow("First");
    const auto inner = enclose(window);
    const auto outer = enclose(inner);
    EXPECT_EQ(snapshotInTheNextTurn()->client.x, 46.0);
    move(outer, 500);
    EXPECT_EQ(snapshotInTheNextTurn()->client.x, 506.0);
    move(inner, 30);
    EXPECT_EQ(snapshotInTheNextTurn()->client.x, 533.0);
}

TEST_F(ClientWindowsTest, AFrameThatIsHiddenHidesItsWindow)
{
    openWindow("First");
    const auto frame = enclose(window);
    EXPECT_EQ(snapshotInTheNextTurn()->mapState, XCB_MAP_STATE_VIEWABLE);
    xcb_unmap_window(client.connection(), frame);
    client.sync();
    EXPECT_EQ(snapshotInTheNextTurn()->mapState, XCB_MAP_STATE_UNVIEWABLE);
}

TEST_F(ClientWindowsTest, AWindowIsFollowedIntoAnotherFrameAndOutOfIt)
{
    openWindow("First");
    enclose(window);
    EXPECT_EQ(snapshotInTheNextTurn()->client.x, 43.0);
    const auto next = enclose(window);
    move(next, 700);
    EXPECT_EQ(snapshotInTheNextTurn()->client.x, 703.0);
    move(next, 710);
    EXPECT_EQ(snapshotInTheNextTurn()->client.x, 713.0);
    xcb_reparent_window(client.connection(), window, client.root(), 7, 8);
    client.sync();
    EXPECT_EQ(snapshotInTheNextTurn()->client.x, 7.0);
}

// Its frame is measured against the window, and its events have come but not been handled.
TEST_F(ClientWindowsTest, AWindowIsNotMeasuredAgainstAFrameThatItHasLeft)
{
    openWindow("First");
    const auto former = enclose(window);
    const auto following = desktop.adapters.windows.follow(window);
    snapshotInTheNextTurn();
    setTitle("Changed");
    desktop.connection->sync();
    desktop.connection->dispatchEvents();
    enclose(window);
    move(former, 900);
    const auto* const snapshot = snapshotInTheNextTurn();
    EXPECT_EQ(snapshot->frame, (Extents{3, 197, 20, 180}));
    EXPECT_EQ(snapshot->outer(), (RootRect{40, 50, 300, 300}));
}

} // namespace
} // namespace quorvel::x11
