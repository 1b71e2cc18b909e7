#include "support/ClientProcess.h"
#include "x11/preferences/PreferencesTest.h"

namespace quorvel::x11 {
namespace {

class ShortcutsPane : public PreferencesTest {
protected:
    static constexpr auto activate = "Layout Mode, Activate";
    static constexpr auto nextLayout = "Layout Mode, Next Layout";

    void record(const std::string& shortcut)
    {
        person.click(shortcut + ": Record");
        session.waitFor("the recording", [&] { return ShellPerson::control(shortcut + ": Stop") != nullptr; });
    }

    void waitUntilRecorded(const std::string& shortcut, std::string_view keys, std::int64_t keyCode,
                           std::int64_t modifiers)
    {
        waitUntilStored(std::string(keys) + "KeyCode", whole(keyCode));
        waitUntilStored(std::string(keys) + "Modifiers", whole(modifiers));
        session.waitFor("the end of the recording",
                        [&] { return ShellPerson::control(shortcut + ": Record") != nullptr; });
    }

    // Something whose effect can be seen, after all that was done before.
    void clearAnother()
    {
        person.click("Move/Resize Mode, Minimize: Clear");
        waitUntilStored("mrMinimizeKeyCode", whole(0));
    }
};

TEST_F(ShortcutsPane, AHotKeyThatIsRecordedWorksOnceTheWindowIsClosed)
{
    const xtest::ClientProcess editor(display.server, display.client, xtest::ClientProcess::Kind::plain);
    inPane("Shortcuts", [&] {
        const xtest::KeyCombination hotKey{{Modifier::command, Modifier::control}, XKB_KEY_k};
        record(activate);
        person.tap(hotKey.keysym, hotKey.modifiers);
        waitUntilRecorded(activate, "activateOverlay", 40, 0x1100);
        EXPECT_TRUE(session.ask([&] { return display.grabs.isFree(hotKey); })) << "hot keys rest";
        person.tap(XKB_KEY_w, {Modifier::control});
        session.waitFor("the hot key", [&] { return !display.grabs.isFree(hotKey); });
        session.waitFor("the editor to come to the front",
                        [&] { return display.client.activeWindow() == editor.window(); });
        person.tap(hotKey.keysym, hotKey.modifiers);
        session.waitFor("the overlay", [&] { return display.client.topLevelsOfProcess(getpid()).size() > 1; });
        session.waitFor("the keyboard's grab", [&] { return !display.grabs.isKeyboardFree(); });
        person.tap(XKB_KEY_Escape);
        session.waitFor("the overlay to go", [&] { return display.client.topLevelsOfProcess(getpid()).empty(); });
    });
}

TEST_F(ShortcutsPane, KeysThatPressButtonsAreRecordedAndPressNone)
{
    inPane("Shortcuts", [&] {
        const std::vector<std::pair<xcb_keysym_t, std::int64_t>> keys{
            {XKB_KEY_space, 49}, {XKB_KEY_Return, 36}, {XKB_KEY_Tab, 48}, {XKB_KEY_Escape, 53}, {XKB_KEY_Down, 125}};
        for (const auto& [keysym, keyCode] : keys) {
            SCOPED_TRACE(keyCode);
            record(nextLayout);
            person.tap(keysym);
            waitUntilRecorded(nextLayout, "nextLayout", keyCode, 0);
            EXPECT_TRUE(
                session.ask([] { return ShellPerson::control(std::string(nextLayout) + ": Record")->hasFocus(); }));
        }
        clearAnother();
        EXPECT_TRUE(person.shows(std::string(nextLayout) + ": Record"));
        EXPECT_EQ(stored("nextLayoutKeyCode"), whole(125));
    });
}

TEST_F(ShortcutsPane, AHeldKeyIsRecordedOnceAndMovesNothing)
{
    inPane("Shortcuts", [&] {
        record(nextLayout);
        display.keyboard.press(XKB_KEY_Tab);
        waitUntilRecorded(nextLayout, "nextLayout", 48, 0);
        session.ask([&] { return display.client.sync(), true; });
        display.keyboard.release(XKB_KEY_Tab);
        clearAnother();
        EXPECT_EQ(stored("nextLayoutKeyCode"), whole(48));
    });
}

TEST_F(ShortcutsPane, TheKeyOfCode0PassesAndTheRecordingGoesOn)
{
    inPane("Shortcuts", [&] {
        record(activate);
        person.tap(XKB_KEY_a);
        person.tap(XKB_KEY_a, {Modifier::command});
        EXPECT_FALSE(person.shows(std::string(activate) + ": Record"));
        person.tap(XKB_KEY_s, {Modifier::command});
        waitUntilRecorded(activate, "activateOverlay", 1, 0x100);
    });
}

TEST_F(ShortcutsPane, AModifierAloneAndItsReleaseAreNoShortcut)
{
    inPane("Shortcuts", [&] {
        record(activate);
        for (const auto modifier : {Modifier::shift, Modifier::command}) {
            display.keyboard.pressModifier(modifier);
            display.keyboard.releaseModifier(modifier);
        }
        clearAnother();
        EXPECT_TRUE(person.shows(std::string(activate) + ": Stop"));
        EXPECT_FALSE(stored("activateOverlayKeyCode"));
        person.tap(XKB_KEY_s, {Modifier::shift});
        waitUntilRecorded(activate, "activateOverlay", 1, 0x200);
    });
}

TEST_F(ShortcutsPane, StopLeavesTheShortcutAndClearTakesItAway)
{
    inPane("Shortcuts", [&] {
        record(activate);
        person.click(std::string(activate) + ": Stop");
        session.waitFor("the end of the recording",
                        [&] { return ShellPerson::control(std::string(activate) + ": Record") != nullptr; });
        EXPECT_FALSE(stored("activateOverlayKeyCode"));
        person.click(std::string(activate) + ": Clear");
        waitUntilStored("activateOverlayKeyCode", whole(0));
        EXPECT_EQ(stored("activateOverlayModifiers"), whole(0));
    });
}

TEST_F(ShortcutsPane, OneRecordingAtATime)
{
    inPane("Shortcuts", [&] {
        record(activate);
        record(nextLayout);
        EXPECT_TRUE(person.shows(std::string(activate) + ": Record"));
        person.tap(XKB_KEY_j);
        waitUntilRecorded(nextLayout, "nextLayout", 38, 0);
        EXPECT_FALSE(stored("activateOverlayKeyCode"));
    });
}

TEST_F(ShortcutsPane, ClosingTheWindowEndsARecording)
{
    inPane("Shortcuts", [&] {
        record(activate);
        session.ask([&] {
            display.client.sendToWindowManager(display.client.activeWindow(), "_NET_CLOSE_WINDOW",
                                               {XCB_CURRENT_TIME, 2, 0, 0, 0});
            return true;
        });
        session.waitFor("the window to close", [] { return QApplication::activeWindow() == nullptr; });
        person.openPreferences(*tray);
        EXPECT_TRUE(person.shows(std::string(activate) + ": Record"));
    });
}

TEST_F(ShortcutsPane, PickersStoreTheirChoiceAtOnce)
{
    inPane("Shortcuts", [&] {
        person.focus("Keyboard Layout");
        person.tap(XKB_KEY_Down);
        waitUntilStored("keyboardLayoutProfile", {std::string("Colemak")});
        person.focus("Move/Resize Mode, Resize modifier");
        person.tap(XKB_KEY_Down);
        waitUntilStored("mrResizeModifierFlags", whole(1048576));
    });
}

} // namespace
} // namespace quorvel::x11
