#include <algorithm>

#include "contract/ContractTest.h"
#include "platform/WindowList.h"

namespace quorvel::contract {
namespace {

class WindowListContract : public ContractTest {
protected:
    // The ordinary windows of other programs, front to back.
    std::vector<WindowListEntry> ordinaryWindows()
    {
        auto entries = windowList.onScreenWindows();
        std::erase_if(entries, [](const WindowListEntry& each) { return each.layer != 0; });
        return entries;
    }

    // Waits until the list shows these windows, front to back.
    bool showsFrontToBack(const std::vector<ContractWindow>& windows)
    {
        return desktop->waitUntil([&] {
            return std::ranges::equal(
                ordinaryWindows(), windows, [&](const WindowListEntry& entry, const ContractWindow& window) {
                    return entry.ownerProcess == window.process && entry.bounds == desktop->frameOf(window);
                });
        });
    }

    WindowList& windowList = port(&ContractPorts::windowList);
};

TEST_F(WindowListContract, AnEmptyDesktopHasNoOrdinaryWindows)
{
    EXPECT_TRUE(ordinaryWindows().empty());
}

TEST_F(WindowListContract, WindowsAreListedFrontToBackWithOwnerAndFrame)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    const auto browser = desktop->openWindow("Browser", "News", {300.0, 200.0, 600.0, 300.0});

    EXPECT_TRUE(showsFrontToBack({browser, editor}));
    EXPECT_EQ(desktop->frameOf(editor), (AxRect{100.0, 120.0, 500.0, 400.0}));
}

TEST_F(WindowListContract, AWindowThatGetsTheKeyboardComesToTheFront)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    const auto browser = desktop->openWindow("Browser", "News", {300.0, 200.0, 600.0, 300.0});

    desktop->focusWindow(editor);

    EXPECT_TRUE(showsFrontToBack({editor, browser}));
}

TEST_F(WindowListContract, AMovedWindowIsListedWhereItIs)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});

    desktop->moveWindow(editor, {40.0, 60.0, 450.0, 350.0});

    EXPECT_TRUE(showsFrontToBack({editor}));
    EXPECT_EQ(ordinaryWindows().at(0).bounds, (AxRect{40.0, 60.0, 450.0, 350.0}));
}

TEST_F(WindowListContract, MinimizedAndClosedWindowsAreNotListed)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    const auto browser = desktop->openWindow("Browser", "News", {300.0, 200.0, 600.0, 300.0});
    const auto viewer = desktop->openWindow("Viewer", "Photo", {200.0, 150.0, 300.0, 300.0});

    desktop->minimizeWindow(browser);
    EXPECT_TRUE(showsFrontToBack({viewer, editor}));

    desktop->closeWindow(viewer);
    EXPECT_TRUE(showsFrontToBack({editor}));
}

} // namespace
} // namespace quorvel::contract
