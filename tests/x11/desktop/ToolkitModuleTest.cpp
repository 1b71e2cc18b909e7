#include "platform/x11/desktop/ToolkitModule.h"

#include "platform/x11/desktop/X11Alerts.h"
#include "platform/x11/painting/TextLayouts.h"
#include "support/Patience.h"
#include "x11/desktop/DesktopTest.h"

namespace quorvel::x11 {
namespace {

// Qt lives once in a process, so all of these share one display.
class ToolkitModuleTest : public DesktopTest {
protected:
    // The toolkit's windows; the window manager gives decorated ones a frame.
    std::vector<xcb_window_t> toolkitWindows()
    {
        auto windows = display.client.children(display.client.root());
        std::erase_if(windows, [&](xcb_window_t window) {
            return !display.client.isViewable(window) || isOwn(window) || display.client.processOf(window) != getpid();
        });
        return windows;
    }

    TextLayouts textLayouts{"sans"};
    ToolkitModule toolkit{
        ToolkitModule::standardFile(),
        display.server.display(),
        {.imageFile = [this](std::string_view name, int pixels) { return bundle.imageFile(name, pixels); },
         .activate = [](std::uint32_t) {},
         .keyDown = [](std::uint8_t, std::uint16_t) { return EventHandling::pass; },
         .textLayouts = textLayouts}};
    X11Alerts alerts{bundle, toolkit};
};

TEST_F(ToolkitModuleTest, ShowsMenusAndAlertsUnderTheProgramsOwnLoop)
{
    display.startWindowManager(xtest::WindowManager::openbox);
    EXPECT_FALSE(toolkit.isLoaded());

    // A menu: the first entry that can be chosen is chosen with the keyboard.
    const Menu menu{{MenuItem{"Check for Updates...", "", MenuCommand::checkForUpdates, false}, std::nullopt,
                     MenuItem{"Preferences...", ",", MenuCommand::showPreferences},
                     MenuItem{"Quit", "q", MenuCommand::terminate}}};
    std::vector<MenuCommand> commands;
    display.keyboard.movePointer(400, 300);
    toolkit.openMenu(menu, [&](MenuCommand command) { commands.push_back(command); });
    EXPECT_TRUE(toolkit.isLoaded());
    loop.waitFor("the menu", [&] { return toolkitWindows().size() == 1; });
    EXPECT_EQ(rectOf(toolkitWindows()[0]).x, 400);
    EXPECT_EQ(rectOf(toolkitWindows()[0]).y, 300);
    loop.waitFor("the menu's grab of the keyboard", [&] { return !display.grabs.isKeyboardFree(); });
    display.keyboard.tap(XKB_KEY_Down);
    display.keyboard.tap(XKB_KEY_Return);
    loop.waitFor("the command", [&] { return !commands.empty(); });
    EXPECT_EQ(commands, std::vector{MenuCommand::showPreferences});
    loop.waitFor("the menu's end", [&] { return toolkitWindows().empty(); });

    // Alerts: Return presses the default button, Escape the last one; the main loop runs on meanwhile.
    const Alert alert{.style = AlertStyle::informational,
                      .messageText = "Restart Quorvel",
                      .informativeText = "Input Monitoring is enabled.",
                      .iconName = "ColorLogoTransparent",
                      .buttons = {"Restart Now", "Not Yet", "Later"}};
    for (const auto& [key, answer] : {std::pair(XKB_KEY_Return, std::size_t{0}), {XKB_KEY_Escape, std::size_t{2}}}) {
        bool isAnswered = false;
        const auto lastActive = display.client.activeWindow(); // the one before may not have gone yet
        const xtest::Deadline deadline;
        const auto person = loop.mainLoop().repeat(std::chrono::milliseconds(5), [&, key = key] {
            const auto active = display.client.activeWindow();
            const bool isAlert =
                active != XCB_NONE && active != lastActive && display.client.processOf(active) == getpid();
            if (!isAnswered && isAlert) {
                isAnswered = true;
                display.keyboard.tap(static_cast<xcb_keysym_t>(key));
            }
            if (deadline.hasPassed()) {
                display.server.kill(); // ends Qt, and with it a test that would wait forever
            }
        });
        EXPECT_EQ(alerts.runModal(alert), answer);
        EXPECT_TRUE(isAnswered);
    }
}

TEST(ToolkitModule, WithoutItsFileAlertsAreAnsweredByTheLastButton)
{
    const TextLayouts textLayouts("sans");
    ToolkitModule toolkit("/nonexistent/quorvel-qt.so", "",
                          {.imageFile = {}, .activate = {}, .keyDown = {}, .textLayouts = textLayouts});
    testing::internal::CaptureStderr();
    Alert alert;
    alert.buttons = {"Open", "Later"};
    EXPECT_EQ(toolkit.runAlert(alert, {}), 1U);
    EXPECT_EQ(toolkit.runAlert({}, {}), 0U);
    toolkit.openMenu({}, [](MenuCommand) {});
    const auto output = testing::internal::GetCapturedStderr();
    EXPECT_THAT(output, testing::StartsWith("Menus, windows and alerts cannot be shown: "));
    EXPECT_EQ(std::ranges::count(output, '\n'), 1);
    EXPECT_FALSE(toolkit.isLoaded());
}

} // namespace
} // namespace quorvel::x11
