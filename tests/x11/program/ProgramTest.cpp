#include <algorithm>
#include <csignal>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ClientProcess.h"
#include "support/ProgramUnderTest.h"
#include "support/TestDisplay.h"
#include "support/XReply.h"

namespace quorvel::xtest {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using Modifier = KeyInjector::Modifier;

const fs::path executable = QUORVEL_PROGRAM;
const std::string lastRegistration = "Registered hotkey id=3 ";
const KeyCombination overlayKey{{Modifier::command, Modifier::shift}, XKB_KEY_o};

// Hears the keys that another program's window gets.
class WindowListener {
public:
    WindowListener(const XServer& server, xcb_window_t window) : link(xcb_connect(server.display().c_str(), nullptr))
    {
        const std::uint32_t mask = XCB_EVENT_MASK_KEY_PRESS;
        xcb_change_window_attributes(link, window, XCB_CW_EVENT_MASK, &mask);
        XReply<xcb_get_input_focus_reply_t>(xcb_get_input_focus_reply(link, xcb_get_input_focus(link), nullptr));
    }
    WindowListener(const WindowListener&) = delete;
    WindowListener& operator=(const WindowListener&) = delete;
    ~WindowListener() { xcb_disconnect(link); }

    // Waits for a press and answers its key code.
    std::uint8_t nextPress()
    {
        for (;;) {
            const XReply<xcb_generic_event_t> event(xcb_wait_for_event(link));
            if (event && event->response_type == XCB_KEY_PRESS) {
                return reinterpret_cast<const xcb_key_press_event_t&>(*event).detail;
            }
        }
    }

private:
    xcb_connection_t* link;
};

class ProgramTest : public testing::Test {
protected:
    std::unique_ptr<ProgramUnderTest> start(const ProgramUnderTest::Options& options = {})
    {
        return std::make_unique<ProgramUnderTest>(display.server, executable, configuration, options);
    }

    std::unique_ptr<ProgramUnderTest> startAndWait(const ProgramUnderTest::Options& options = {})
    {
        auto program = start(options);
        program->waitForLineStartingWith(lastRegistration);
        return program;
    }

    void pressOverlayKey() { display.keyboard.tap(overlayKey.modifiers, overlayKey.keysym); }

    // A program with a window in front, so that the overlay has something to place.
    std::unique_ptr<ProgramUnderTest> startAndShowOverlay()
    {
        display.startWindowManager(WindowManager::openbox);
        editor = std::make_unique<ClientProcess>(display.server, display.client, ClientProcess::Kind::plain);
        auto program = startAndWait();
        pressOverlayKey();
        display.client.waitFor("the overlay and the keyboard's grab", [&] {
            return !display.client.topLevelsOfProcess(program->id()).empty() && !display.grabs.isKeyboardFree();
        });
        return program;
    }

    void expectNothingGrabbed()
    {
        display.grabs.waitUntilKeyboardIsFree();
        EXPECT_TRUE(display.grabs.isFree(overlayKey));
    }

    // Another program puts a file with these entries in place of the settings.
    void replaceSettings(const std::string& entries)
    {
        fs::rename(configuration.write("edited", "<plist><dict>" + entries + "</dict></plist>"), settings());
    }

    // How many times the hot keys have been registered.
    static std::ptrdiff_t registrations(ProgramUnderTest& program)
    {
        return std::ranges::count_if(program.outputLines(),
                                     [](const std::string& line) { return line.starts_with("Registering shortcuts"); });
    }

    fs::path settings() const { return configuration.path() / "quorvel" / "settings.plist"; }

    TestDisplay display;
    TemporaryDirectory configuration;
    std::unique_ptr<ClientProcess> editor;
};

TEST_F(ProgramTest, ItTellsWhatItCanDoAndWhichVersionItIsWithoutADisplay)
{
    const auto help = start({.arguments = {"--help"}, .environment = {{"DISPLAY", ""}}});
    EXPECT_EQ(help->waitForEnd(), 0);
    EXPECT_THAT(help->outputLines(), Contains(HasSubstr("Usage: quorvel")));
    const auto version = start({.arguments = {"--version"}, .environment = {{"DISPLAY", ""}}});
    EXPECT_EQ(version->waitForEnd(), 0);
    EXPECT_THAT(version->outputLines(), ElementsAre(testing::StartsWith("quorvel ")));
}

TEST_F(ProgramTest, AnArgumentThatItDoesNotKnowEndsItWithOneLine)
{
    const auto program = start({.arguments = {"--fly"}});
    EXPECT_EQ(program->waitForEnd(), 2);
    EXPECT_THAT(program->errorLines(), ElementsAre(HasSubstr("--fly")));
}

TEST_F(ProgramTest, WithoutADisplayItSaysSoAndNamesTheSession)
{
    const auto program = start({.environment = {{"DISPLAY", ""}, {"XDG_SESSION_TYPE", "tty"}}});
    EXPECT_EQ(program->waitForEnd(), 1);
    EXPECT_THAT(program->errorLines(), ElementsAre(AllOf(HasSubstr("DISPLAY"), HasSubstr("\"tty\""))));
}

TEST_F(ProgramTest, AWaylandSessionIsRefusedByItsName)
{
    const auto program = start({.environment = {{"XDG_SESSION_TYPE", "wayland"}}});
    EXPECT_EQ(program->waitForEnd(), 1);
    EXPECT_THAT(program->errorLines(), ElementsAre(HasSubstr("\"wayland\"")));
    const auto hinted = start({.environment = {{"XDG_SESSION_TYPE", ""}, {"WAYLAND_DISPLAY", "wayland-0"}}});
    EXPECT_EQ(hinted->waitForEnd(), 1);
    EXPECT_THAT(hinted->errorLines(), ElementsAre(HasSubstr("\"wayland\"")));
}

TEST_F(ProgramTest, AfterACrashItStartsAgain)
{
    const auto first = startAndWait();
    EXPECT_EQ(first->end(SIGKILL), 128 + SIGKILL);
    display.client.watchSelection("_QUORVEL_S0");
    display.client.waitFor("the server to notice",
                           [&] { return display.client.selectionOwner("_QUORVEL_S0") == XCB_NONE; });
    startAndWait();
}

TEST_F(ProgramTest, AnotherOneTakesOverWhenAskedTo)
{
    const auto first = startAndWait();
    const auto second = startAndWait({.arguments = {"--replace"}});
    EXPECT_EQ(first->waitForEnd(), 0);
    pressOverlayKey();
    second->waitForLine("Activate overlay shortcut fired");
}

TEST_F(ProgramTest, AShortcutChangedInTheFileHoldsAtOnce)
{
    const auto program = startAndWait();
    replaceSettings("<key>activateOverlayKeyCode</key><integer>40</integer>");
    program->waitForLine("Registering shortcuts: keyCode=40, modifiers=768");
    program->waitForLineStartingWith(lastRegistration);
    display.keyboard.tap(overlayKey.modifiers, XKB_KEY_k);
    program->waitForLine("Activate overlay shortcut fired");
    EXPECT_TRUE(display.grabs.isFree(overlayKey));
}

TEST_F(ProgramTest, ItsOwnSettingsAreNoChangeThatItHearsOf)
{
    const auto program = startAndWait(); // which has just written the first settings
    pressOverlayKey();
    program->waitForLine("Activate overlay shortcut fired");
    EXPECT_EQ(registrations(*program), 1);
}

TEST_F(ProgramTest, AnotherSettingChangedInTheFileIsCheckedAndLeavesTheHotKeysAlone)
{
    const auto program = startAndWait();
    replaceSettings("<key>textSize</key><string>large</string>");
    program->waitForLine("Setting \"textSize\" holds a string where a number is expected");
    replaceSettings("<key>textSize</key><string>large</string><key>activateOverlayKeyCode</key><integer>40</integer>");
    program->waitForLine("Registering shortcuts: keyCode=40, modifiers=768");
    EXPECT_EQ(registrations(*program), 2);
}

TEST_F(ProgramTest, ACrashLeavesNothingGrabbedWhileTheOverlayIsUp)
{
    const auto program = startAndShowOverlay();
    EXPECT_EQ(program->end(SIGKILL), 128 + SIGKILL);
    expectNothingGrabbed();
}

TEST_F(ProgramTest, NothingOfAHeldEscapeReachesTheWindowBehindTheOverlay)
{
    const auto program = startAndShowOverlay();
    WindowListener listener(display.server, editor->window());
    ChildProcess({{"xset", "r", "rate", "20", "100"}, display.server.clientEnvironment()}).waitForEnd();
    display.keyboard.press(XKB_KEY_Escape);
    program->waitForLine("Blocker blocked key: 53");
    display.client.waitFor("the overlay to go",
                           [&] { return display.client.topLevelsOfProcess(program->id()).empty(); });
    EXPECT_FALSE(display.grabs.isKeyboardFree());
    display.keyboard.release(XKB_KEY_Escape);
    display.grabs.waitUntilKeyboardIsFree();
    display.keyboard.tap(XKB_KEY_x);
    EXPECT_EQ(listener.nextPress(), display.keyboard.codeOf(XKB_KEY_x));
}

} // namespace
} // namespace quorvel::xtest
