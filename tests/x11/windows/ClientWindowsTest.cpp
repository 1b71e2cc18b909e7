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

} // namespace
} // namespace quorvel::x11
