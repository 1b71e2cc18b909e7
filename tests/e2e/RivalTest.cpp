#include <algorithm>

#include <fmt/format.h>

#include "e2e/ModesTest.h"
#include "support/ChildProcess.h"
#include "support/ReliabilityRecord.h"

namespace quorvel::e2e {
namespace {

using Modifier = xtest::KeyInjector::Modifier;

constexpr auto desktop = "X11, the whole program";

// A second client that wants the same keys, and keyboards that change under a mode.
class RivalReliability : public ModesTest {
protected:
    bool grabKey(std::uint16_t modifiers, xcb_keysym_t keysym)
    {
        auto* link = rival.connection();
        const xtest::XReply<xcb_generic_error_t> error(xcb_request_check(
            link, xcb_grab_key_checked(link, 0, rival.root(), modifiers, display.keyboard.codeOf(keysym),
                                       XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
        return error == nullptr;
    }

    void ungrabKey(std::uint16_t modifiers, xcb_keysym_t keysym)
    {
        xcb_ungrab_key(rival.connection(), display.keyboard.codeOf(keysym), rival.root(), modifiers);
        rival.sync();
    }

    void run(const std::vector<std::string>& words)
    {
        xtest::ChildProcess process({words, display.server.clientEnvironment()});
        ASSERT_EQ(process.waitForEnd(), 0) << words.front();
    }

    void useLayout(const std::string& name)
    {
        if (name == "dvorak") {
            run({"setxkbmap", "us", "dvorak"});
        } else {
            run({"setxkbmap", name});
        }
    }

    xtest::XClient rival{display.server};
};

TEST_F(RivalReliability, HotKeysOfAnotherProgramAreReportedEachAndTheOthersWork)
{
    ReliabilityRecord record(desktop, "another client holds one of the three hot keys");
    struct HotKey {
        std::uint16_t modifiers;
        xcb_keysym_t keysym;
        Mode other; // that still works
    };
    constexpr std::uint16_t commandShift = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;
    for (const auto& key : {HotKey{commandShift, XKB_KEY_o, Mode::switcher},
                            HotKey{XCB_MOD_MASK_4 | XCB_MOD_MASK_1, XKB_KEY_r, Mode::overlay},
                            HotKey{commandShift, XKB_KEY_f, Mode::moveResize}}) {
        record.tried();
        ASSERT_TRUE(grabKey(key.modifiers, key.keysym));
        xtest::ProgramUnderTest program(display.server, QUORVEL_PROGRAM, configuration);
        program.waitForLine("Failed to register hotkey with status: -9878");
        EXPECT_EQ(program.end(), 0);
        EXPECT_EQ(std::ranges::count(program.outputLines(), "Failed to register hotkey with status: -9878"), 1);
        EXPECT_THAT(program.errorLines(), testing::IsEmpty());
        ungrabKey(key.modifiers, key.keysym);

        start();
        workAnew(key.other);
        endCleanly();
        record.survived("“Failed to register hotkey with status: -9878”");
    }
}

TEST_F(RivalReliability, WhileAnotherProgramHasTheKeyboardTheHotKeyIsNotOurs)
{
    ReliabilityRecord record(desktop, "another client holds the keyboard");
    start();
    const auto window = openWindow();
    for (const Mode mode : allModes) {
        record.tried();
        auto* link = rival.connection();
        const xtest::XReply<xcb_grab_keyboard_reply_t> grab(xcb_grab_keyboard_reply(
            link, xcb_grab_keyboard(link, 0, rival.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
            nullptr));
        ASSERT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
        quorvel->pressHotKey();
        quorvel->pressSwitcherHotKey();
        display.keyboard.tap({Modifier::command, Modifier::option}, XKB_KEY_r);
        xcb_ungrab_keyboard(link, XCB_CURRENT_TIME);
        rival.sync();
        work(mode, window->id());
        record.survived("");
    }
    EXPECT_EQ(linesOf("Activate overlay shortcut fired"), 1); // that of the work
    endCleanly();
}

TEST_F(RivalReliability, NobodyElseGetsTheKeyboardOfAMode)
{
    ReliabilityRecord record(desktop, "another client tries to take keyboard and keys during a mode");
    start();
    const auto window = openWindow();
    for (const Mode mode : {Mode::overlay, Mode::switcher}) {
        record.tried();
        enter(mode, window->id());
        display.client.waitFor("the keyboard's grab", [&] { return !display.grabs.isKeyboardFree(); });
        ASSERT_TRUE(grabKey(XCB_MOD_MASK_ANY, XKB_KEY_a));
        int stolen = 0;
        rival.observeEvents(
            [&](const xcb_generic_event_t& event) { stolen += (event.response_type & 0x7F) == XCB_KEY_PRESS ? 1 : 0; });
        display.keyboard.tap(XKB_KEY_a);
        quorvel->waitUntilIdle();
        rival.sync();
        rival.handleEvents();
        EXPECT_EQ(stolen, 0);
        ungrabKey(XCB_MOD_MASK_ANY, XKB_KEY_a);
        work(mode, window->id());
        record.survived("");
    }
    endCleanly();
}

TEST_F(RivalReliability, WithThePointerInOtherHandsEveryModeWorks)
{
    ReliabilityRecord record(desktop, "another client holds the pointer");
    start();
    const auto window = openWindow();
    auto* link = rival.connection();
    for (const Mode mode : allModes) {
        record.tried();
        const xtest::XReply<xcb_grab_pointer_reply_t> grab(
            xcb_grab_pointer_reply(link,
                                   xcb_grab_pointer(link, 0, rival.root(), 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                                                    XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
                                   nullptr));
        ASSERT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
        work(mode, window->id());
        xcb_ungrab_pointer(link, XCB_CURRENT_TIME);
        rival.sync();
        EXPECT_TRUE(display.grabs.isPointerFree());
        record.survived("");
    }
    endCleanly();
}

// The layouts type other letters with the same keys; the labels go by what a key types.
TEST_F(RivalReliability, TheKeyboardLayoutChangesWhileLettersAreUp)
{
    ReliabilityRecord record(desktop, "the keyboard layout changes while letters are up (de, fr, dvorak, us)");
    start();
    const auto window = openWindow();
    const auto other = openWindow({900, 400, 500, 400});
    for (const Mode mode : {Mode::overlay, Mode::switcher}) {
        for (const std::string layout : {"de", "fr", "dvorak", "us"}) {
            record.tried();
            display.client.activate(window->id());
            enter(mode, window->id());
            useLayout(layout);
            display.keyboard.tap(XKB_KEY_a);
            quorvel->waitUntilIdle();
            if (mode == Mode::overlay) {
                quorvel->waitUntilPlaced(window->id(), screen);
            }
            EXPECT_EQ(display.client.activeWindow(), window->id());
            useLayout("us"); // the hot keys stay where they are
            record.survived("");
        }
    }
    endCleanly();
}

TEST_F(RivalReliability, ALayoutWithoutLatinLettersHasNoLabelsToType)
{
    ReliabilityRecord record(desktop, "the keyboard layout changes to one without Latin letters (ru)");
    start();
    const auto window = openWindow();
    const auto before = rectOf(window->id());
    for (const Mode mode : {Mode::overlay, Mode::switcher}) {
        record.tried();
        enter(mode, window->id());
        const auto code = display.keyboard.codeOf(XKB_KEY_a);
        useLayout("ru");
        display.keyboard.tapCode({}, code);
        quorvel->waitUntilIdle();
        EXPECT_EQ(rectOf(window->id()), before);
        useLayout("us");
        record.survived("the letters go as after any other key");
    }
    workAnew(Mode::overlay);
    endCleanly();
}

// As a person does who has two layouts and a key for the other one.
TEST_F(RivalReliability, AKeySwitchesToTheOtherLayoutWhileLettersAreUp)
{
    ReliabilityRecord record(desktop, "a key switches between two keyboard layouts (us, ru) while letters are up");
    constexpr std::uint8_t rightControl = 105;
    run({"setxkbmap", "us,ru", "-option", "grp:rctrl_toggle"});
    start();
    const auto window = openWindow();
    const auto home = rectOf(window->id());
    const auto code = display.keyboard.codeOf(XKB_KEY_a);
    for (const Mode mode : {Mode::switcher, Mode::overlay}) {
        record.tried();
        enter(mode, window->id());
        display.keyboard.tapCode({}, rightControl);
        display.keyboard.tapCode({}, code);
        quorvel->waitUntilIdle();
        EXPECT_EQ(rectOf(window->id()), home);

        enter(mode, window->id()); // the hot keys stay where they are
        display.keyboard.tapCode({}, rightControl);
        display.keyboard.tapCode({}, code);
        quorvel->waitUntilIdle();
        EXPECT_EQ(display.client.activeWindow(), window->id());
        record.survived("what a letter is, the layout of its moment says");
    }
    quorvel->waitUntilPlaced(window->id(), screen);
    endCleanly();
}

TEST_F(RivalReliability, NumLockAndCapsLockChangeNothing)
{
    ReliabilityRecord record(desktop, "NumLock, CapsLock or both are on");
    start();
    const auto window = openWindow();
    for (const xcb_keysym_t lock : {XKB_KEY_Num_Lock, XKB_KEY_Caps_Lock, XKB_KEY_Num_Lock}) {
        display.keyboard.tap(lock); // the third switches it off again
        for (const Mode mode : allModes) {
            record.tried();
            work(mode, window->id());
            record.survived("");
        }
    }
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
