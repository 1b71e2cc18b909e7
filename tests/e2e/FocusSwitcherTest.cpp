#include <algorithm>
#include <csignal>
#include <memory>
#include <vector>

#include "e2e/ProgramTest.h"
#include "support/ClientProcess.h"

namespace quorvel::e2e {
namespace {

using xtest::WindowManager;

class FocusSwitcherTest : public ProgramTest {
protected:
    // Shows the switcher and waits until this many windows have their letter.
    void showSwitcher(std::size_t labelCount)
    {
        quorvel->pressSwitcherHotKey();
        quorvel->waitForOverlayWindows(2 * labelCount); // a border and a label each
    }

    void waitUntilActive(xcb_window_t window)
    {
        display.client.waitFor("the chosen window to become active",
                               [&] { return display.client.activeWindow() == window; });
        quorvel->waitUntilIdle();
    }

    void minimize(xtest::TestWindow& window)
    {
        window.iconify();
        display.client.waitFor("a window to be minimized", [&] { return isMinimized(window.id()); });
    }

    bool isMinimized(xcb_window_t window) { return display.client.hasState(window, "_NET_WM_STATE_HIDDEN"); }

    std::unique_ptr<xtest::TestWindow> openMaximized(const std::string& title)
    {
        auto window = openWindow();
        window->setTitle(title);
        window->setState("_NET_WM_STATE_MAXIMIZED_VERT", true);
        window->setState("_NET_WM_STATE_MAXIMIZED_HORZ", true);
        display.client.waitFor("a window to be maximized",
                               [&] { return display.client.outerRect(window->id()) == screen; });
        return window;
    }

    static constexpr std::uint32_t firstDesktop = 0;
    static constexpr std::uint32_t otherDesktop = 1;

    std::uint32_t currentDesktop()
    {
        return display.client.property(display.client.root(), "_NET_CURRENT_DESKTOP").front();
    }

    void show(std::uint32_t desktop)
    {
        display.client.sendToWindowManager(display.client.root(), "_NET_CURRENT_DESKTOP", {desktop, 0, 0, 0, 0});
        display.client.waitFor("a desktop to be shown", [&] { return currentDesktop() == desktop; });
    }

    void moveToOtherDesktop(const xtest::TestWindow& window)
    {
        display.client.sendToWindowManager(window.id(), "_NET_WM_DESKTOP", {otherDesktop, 2, 0, 0, 0});
        display.client.waitFor("the window to move to another desktop", [&] {
            const auto desktop = display.client.property(window.id(), "_NET_WM_DESKTOP");
            return !desktop.empty() && desktop.front() == otherDesktop;
        });
    }

    bool isInFront(xcb_window_t window)
    {
        const auto topLevels = display.client.children(display.client.root());
        const auto heightOf = [&](xcb_window_t each) {
            return std::ranges::find(topLevels, display.client.topLevelOf(each)) - topLevels.begin();
        };
        const auto managed = display.client.managedWindows();
        return std::ranges::all_of(managed, [&](xcb_window_t each) { return heightOf(each) <= heightOf(window); });
    }
};

class FocusSwitcher : public FocusSwitcherTest {};

TEST_F(FocusSwitcher, ALetterGoesToTheVeryWindowItIsOn)
{
    start();
    const auto back = openWindow({200, 150, 500, 400});
    const auto middle = openWindow({800, 150, 500, 400});
    const auto front = openWindow({400, 500, 500, 400});
    showSwitcher(3);
    const auto shown = quorvel->overlayRects();
    for (const auto* window : {back.get(), middle.get(), front.get()}) {
        EXPECT_THAT(shown, testing::Contains(display.client.outerRect(window->id())));
    }
    display.keyboard.tap(XKB_KEY_c); // the letters go from front to back
    waitUntilActive(back->id());
    EXPECT_TRUE(isInFront(back->id()));
    endCleanly();
}

TEST_F(FocusSwitcher, OfWindowsOnOneAnotherTheRightOneIsChosen)
{
    start();
    const auto back = openWindow();
    const auto front = openWindow();
    showSwitcher(2);
    display.keyboard.tap(XKB_KEY_b);
    waitUntilActive(back->id());
    showSwitcher(2);
    display.keyboard.tap(XKB_KEY_b);
    waitUntilActive(front->id());
    EXPECT_TRUE(isInFront(front->id()));
    endCleanly();
}

TEST_F(FocusSwitcher, AMinimizedWindowIsRestored)
{
    start();
    const auto minimized = openWindow();
    minimized->setTitle("Draft");
    const auto visible = openWindow({900, 300, 400, 300});
    minimize(*minimized);
    showSwitcher(1);
    display.keyboard.tap(XKB_KEY_b);
    waitUntilActive(minimized->id());
    EXPECT_FALSE(isMinimized(minimized->id()));
    endCleanly();
}

TEST_F(FocusSwitcher, TwoKeysShowAndHideTheLists)
{
    start();
    const auto minimized = openWindow();
    const auto visible = openWindow({900, 300, 400, 300});
    minimize(*minimized);
    showSwitcher(1);
    display.keyboard.tap(XKB_KEY_m);
    quorvel->waitForOverlayWindows(3);
    display.keyboard.tap(XKB_KEY_Tab);
    quorvel->waitForOverlayWindows(4);
    for (const auto& rect : quorvel->overlayRects()) {
        EXPECT_TRUE(screen.inPoints().contains(rect.inPoints())) << rect;
    }
    display.keyboard.tap(XKB_KEY_m);
    quorvel->waitForOverlayWindows(3);
    display.keyboard.tap(XKB_KEY_Tab);
    quorvel->waitForOverlayWindows(2);
    display.keyboard.tap(XKB_KEY_Escape);
    quorvel->waitUntilIdle();
    endCleanly();
}

TEST_F(FocusSwitcher, TheListDisplayShowsTheListAlone)
{
    writeSettings("<key>fsDefaultDisplayMode</key><string>list</string>");
    start();
    const auto back = openWindow();
    const auto front = openWindow({900, 300, 400, 300});
    quorvel->pressSwitcherHotKey();
    quorvel->waitForOverlayWindows(1);
    display.keyboard.tap(XKB_KEY_b);
    waitUntilActive(back->id());
    endCleanly();
}

TEST_F(FocusSwitcher, AClickTakesTheLettersAway)
{
    start();
    const auto window = openWindow();
    for (const std::uint8_t button : {1, 2, 3}) {
        showSwitcher(1);
        display.keyboard.click(400, 300, button); // not on the desktop, where a menu would open
        quorvel->waitUntilIdle();
    }
    EXPECT_EQ(display.client.activeWindow(), window->id());
    endCleanly();
}

TEST_F(FocusSwitcher, AClickOnALabelGoesToTheWindowUnderIt)
{
    start();
    const auto back = openWindow({200, 150, 500, 400});
    const auto front = openWindow({900, 300, 400, 300});
    showSwitcher(2);
    display.keyboard.click(400, 300);
    waitUntilActive(back->id());
    endCleanly();
}

TEST_F(FocusSwitcher, TheHotKeyTakesTheLettersAwayAgain)
{
    start();
    const auto window = openWindow();
    showSwitcher(1);
    quorvel->pressSwitcherHotKey();
    quorvel->waitUntilIdle();
    endCleanly();
}

TEST_F(FocusSwitcher, WithoutWindowsALineSaysSo)
{
    start();
    quorvel->pressSwitcherHotKey();
    quorvel->program().waitForLine("No windows found for focus switcher");
    quorvel->waitUntilIdle();
    endCleanly();
}

TEST_F(FocusSwitcher, AWindowOfAnotherDesktopIsNotLabelledButAMinimizedOneIsShownThere)
{
    start();
    const auto minimized = openWindow();
    const auto visible = openWindow({900, 300, 400, 300});
    minimize(*minimized);
    moveToOtherDesktop(*minimized);
    showSwitcher(1);
    display.keyboard.tap(XKB_KEY_b);
    waitUntilActive(minimized->id());
    EXPECT_EQ(currentDesktop(), otherDesktop);
    endCleanly();
}

// All in one place and of one program; those that cannot be seen are in front of the one that can.
TEST_F(FocusSwitcher, OfMaximizedWindowsTheOneOnScreenIsChosen)
{
    start();
    const auto onScreen = openMaximized("On screen");
    const auto minimized = openMaximized("Minimized");
    const auto elsewhere = openMaximized("Elsewhere");
    moveToOtherDesktop(*elsewhere);
    minimize(*minimized);
    show(otherDesktop);
    display.client.activate(elsewhere->id());
    show(firstDesktop);
    display.client.waitFor("the window on screen", [&] { return display.client.isViewable(onScreen->id()); });
    const auto other = openWindow({400, 400, 300, 200});
    showSwitcher(2);
    display.keyboard.tap(XKB_KEY_b); // A is the small one
    quorvel->program().waitForLine("🔍 Focus Switcher: Label B → Window - On screen");
    waitUntilActive(onScreen->id());
    EXPECT_EQ(currentDesktop(), firstDesktop);
    EXPECT_TRUE(isMinimized(minimized->id()));
    endCleanly();
}

// One that hangs, one that vanishes under its letter, one that no window manager knows, two on one another.
TEST_F(FocusSwitcher, ThirtyWindowsSomeOfThemTroublesome)
{
    start();
    xtest::ClientProcess hung(display.server, display.client, xtest::ClientProcess::Kind::plain, "Hung");
    kill(hung.process(), SIGSTOP);
    std::vector<std::unique_ptr<xtest::TestWindow>> windows(26);
    for (int i = 0; i < 26; ++i) {
        windows[static_cast<std::size_t>(i)] = openWindow({60 + 60 * (i % 13), 40 + 300 * (i / 13), 240, 180});
    }
    const auto lowerTwin = openWindow({1300, 700, 300, 200});
    const auto upperTwin = openWindow({1300, 700, 300, 200});
    auto vanishing = openWindow({1300, 100, 300, 200});
    xtest::TestWindow unmanaged(display.server,
                                {.title = "Unmanaged", .rect = {0, 0, 300, 300}, .overrideRedirect = true});
    unmanaged.map();

    showSwitcher(25);
    const auto id = vanishing->id();
    vanishing->vanish();
    display.client.waitFor("the window to close", [&] { return !display.client.exists(id); });
    display.keyboard.tap(XKB_KEY_c); // A: the one that vanished, B and C: the twins, the upper one first
    waitUntilActive(lowerTwin->id());

    showSwitcher(25);
    display.keyboard.tap(XKB_KEY_c); // the first of the others
    waitUntilActive(windows.back()->id());

    display.client.activate(hung.window());
    display.client.activate(windows.front()->id());
    showSwitcher(25);
    display.keyboard.tap(XKB_KEY_b);
    waitUntilActive(hung.window());
    kill(hung.process(), SIGCONT);
    endCleanly();
}

// Under each window manager: letters on the windows, a choice, and minimized windows where it minimizes.
class FocusSwitcherUnder : public FocusSwitcherTest, public testing::WithParamInterface<WindowManager> {
protected:
    void SetUp() override
    {
        if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
            GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
        }
        display.windowManager().replaceWith(GetParam());
        start();
    }
};

TEST_P(FocusSwitcherUnder, LettersChooseAndRestoreWindows)
{
    const auto back = openWindow({100, 150, 400, 300});
    const auto front = openWindow({600, 250, 400, 300});
    showSwitcher(2);
    EXPECT_THAT(quorvel->overlayRects(), testing::Contains(display.client.outerRect(back->id())));
    display.keyboard.tap(XKB_KEY_b);
    waitUntilActive(back->id());

    const bool minimizes = GetParam() != WindowManager::i3;
    if (minimizes) {
        minimize(*front);
        showSwitcher(1);
        display.keyboard.tap(XKB_KEY_m);
        quorvel->waitForOverlayWindows(3);
        display.keyboard.tap(XKB_KEY_b);
        waitUntilActive(front->id());
        EXPECT_FALSE(isMinimized(front->id()));
    }
    endCleanly();
}

INSTANTIATE_TEST_SUITE_P(Each, FocusSwitcherUnder, testing::ValuesIn(xtest::allWindowManagers()),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::e2e
