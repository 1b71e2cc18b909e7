#include "preferences/ShortcutPreferencesView.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/preferences/FormReading.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view activate = "activateOverlayKeyCode";
constexpr KeyCode keyF = 3;
constexpr KeyCode keyO = 31;
constexpr KeyCode keyM = 46;
constexpr auto commandShift = eventFlags::command | eventFlags::shift;

class ShortcutPreferencesViewTest : public testing::Test {
protected:
    ShortcutControl control(std::string_view id) const { return controlOf<ShortcutControl>(view.form(), id); }
    std::string helpOf(std::string_view id) const { return rowOf(view.form(), id).help; }

    EventHandling type(KeyCode keyCode, std::uint64_t flags = 0)
    {
        return desktop.eventMonitors.keyDown({keyCode, "", flags});
    }

    void record(std::string_view id, KeyCode keyCode, std::uint64_t flags = 0)
    {
        view.press(control(id).record.id);
        type(keyCode, flags);
    }

    // How often the change of a shortcut was announced since the last call.
    int takePosts()
    {
        desktop.drain();
        return std::exchange(posts, 0);
    }

    void pressAlertButton(std::string_view title)
    {
        view.press(buttonTitled(view.form().alert.value().buttons, title).id);
    }

    SimulatedDesktop desktop;
    Platform platform = desktop.platform();
    Settings settings{desktop.userDefaults};
    ShortcutPreferencesView view{platform};
    int posts = 0;
    Subscription postCount = desktop.notificationCenter.observe(notificationNames::shortcutDidChange,
                                                                noNotificationObject, [this] { ++posts; });
};

TEST_F(ShortcutPreferencesViewTest, SixteenShortcutsStandInFourSections)
{
    EXPECT_THAT(outline(view.form()),
                ElementsAre("# Keyboard Layout", "keyboardLayoutProfile: , picker of 4",                    //
                            "# Layout Mode", "activateOverlayKeyCode: Activate, shortcut",                  //
                            "nextLayoutKeyCode: Next Layout, shortcut",                                     //
                            "previousLayoutKeyCode: Previous Layout, shortcut",                             //
                            "nextScreenKeyCode: Next Screen, shortcut",                                     //
                            "previousScreenKeyCode: Previous Screen, shortcut",                             //
                            "# Focus Switcher", "focusSwitcherKeyCode: Activate, shortcut",                 //
                            "fsToggleMinimizedKeyCode: Toggle Minimized, shortcut",                         //
                            "fsToggleAllWindowsKeyCode: Toggle Frames / List, shortcut",                    //
                            "fsPopupPosition: Popup position, picker of 9",                                 //
                            "# Move/Resize Mode", "moveResizeKeyCode: Activate, shortcut",                  //
                            "mrMoveLeftKeyCode: Move Left, shortcut",                                       //
                            "mrMoveRightKeyCode: Move Right, shortcut",                                     //
                            "mrMoveUpKeyCode: Move Up, shortcut", "mrMoveDownKeyCode: Move Down, shortcut", //
                            "mrCycleWindowsKeyCode: Cycle Windows, shortcut",                               //
                            "mrMinimizeKeyCode: Minimize, shortcut", "mrExitModeKeyCode: Exit Mode, shortcut",
                            "mrResizeModifierFlags: Resize modifier, picker of 4"));
    EXPECT_THAT(titlesOf(view.form().buttons), ElementsAre("Reset All Shortcuts"));
}

TEST_F(ShortcutPreferencesViewTest, EveryRowShowsNoneUntilSomethingIsStored)
{
    for (const auto& group : view.form().groups) {
        for (const auto& row : group.rows) {
            if (const auto* const shortcut = std::get_if<ShortcutControl>(&row.control)) {
                EXPECT_EQ(shortcut->text, "None") << row.id;
            }
        }
    }
    EXPECT_THAT(desktop.userDefaults.contents(), IsEmpty());
}

TEST_F(ShortcutPreferencesViewTest, RecordingStoresTheKeyAndItsModifiersAndPostsOnce)
{
    view.press(control(activate).record.id);
    EXPECT_TRUE(control(activate).isRecording);
    EXPECT_EQ(control(activate).record.title, "Stop");
    EXPECT_EQ(type(keyO, commandShift), EventHandling::swallow);
    EXPECT_FALSE(control(activate).isRecording);
    EXPECT_EQ(control(activate).record.title, "Record");
    EXPECT_EQ(control(activate).text, "⌘⇧O");
    EXPECT_EQ(control(activate).spelledOut, "Command+Shift+O");
    EXPECT_EQ(desktop.userDefaults.object("activateOverlayKeyCode"), PropertyValue{std::int64_t{31}});
    EXPECT_EQ(desktop.userDefaults.object("activateOverlayModifiers"), PropertyValue{std::int64_t{768}});
    EXPECT_EQ(desktop.userDefaults.contents().size(), 2U);
    EXPECT_EQ(takePosts(), 1);
}

TEST_F(ShortcutPreferencesViewTest, EachRowRecordsIntoItsOwnSettings)
{
    KeyCode keyCode = 60;
    for (const auto& group : view.form().groups) {
        for (const auto& row : group.rows) {
            if (std::holds_alternative<ShortcutControl>(row.control)) {
                record(row.id, ++keyCode);
                EXPECT_EQ(settings.integer(row.id), keyCode);
            }
        }
    }
    EXPECT_EQ(keyCode, 76);
    EXPECT_EQ(desktop.userDefaults.contents().size(), 32U);
}

TEST_F(ShortcutPreferencesViewTest, TheKeyboardProfileNamesTheKeysAndPostsNothing)
{
    record(activate, keyO, commandShift);
    takePosts();
    view.set("keyboardLayoutProfile", std::int64_t{3});
    EXPECT_EQ(settings.string(settingsKeys::keyboardLayoutProfile), "Dvorak");
    EXPECT_EQ(control(activate).text, "⌘⇧R");
    settings.setString(settingsKeys::keyboardLayoutProfile, "colemak");
    EXPECT_EQ(control(activate).text, "⌘⇧O");
    EXPECT_EQ(takePosts(), 0);
}

TEST_F(ShortcutPreferencesViewTest, StoppingLeavesEverythingAsItWas)
{
    view.press(control(activate).record.id);
    view.press(control(activate).record.id);
    EXPECT_EQ(control(activate).record.title, "Record");
    EXPECT_THAT(desktop.userDefaults.contents(), IsEmpty());
    EXPECT_EQ(takePosts(), 0);
}

TEST_F(ShortcutPreferencesViewTest, AnotherRowTakesTheRecordingOver)
{
    view.press(control(activate).record.id);
    view.press(control("nextLayoutKeyCode").record.id);
    EXPECT_FALSE(control(activate).isRecording);
    EXPECT_EQ(desktop.eventMonitors.keyMonitorCount(), 1U);
    type(keyO);
    EXPECT_EQ(control(activate).text, "None");
    EXPECT_EQ(control("nextLayoutKeyCode").text, "O");
}

TEST_F(ShortcutPreferencesViewTest, NothingIsRecordedOutOfSight)
{
    view.press(control(activate).record.id);
    view.stopRecording();
    EXPECT_EQ(type(keyO), EventHandling::pass);
    EXPECT_THAT(desktop.userDefaults.contents(), IsEmpty());
}

TEST_F(ShortcutPreferencesViewTest, ClearingWritesZerosAndPostsOnce)
{
    record("nextScreenKeyCode", keyCodes::rightArrow, commandShift);
    takePosts();
    view.press(control("nextScreenKeyCode").clear.id);
    EXPECT_EQ(control("nextScreenKeyCode").text, "None");
    EXPECT_EQ(desktop.userDefaults.object("nextScreenKeyCode"), PropertyValue{std::int64_t{0}});
    EXPECT_EQ(desktop.userDefaults.object("nextScreenModifiers"), PropertyValue{std::int64_t{0}});
    EXPECT_EQ(takePosts(), 1);
}

TEST_F(ShortcutPreferencesViewTest, ResettingAsksFirst)
{
    view.press(view.form().buttons.front().id);
    const auto alert = view.form().alert;
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->title, "Reset all shortcuts to defaults?");
    EXPECT_EQ(alert->message, "This will discard your current keyboard shortcut customizations.");
    EXPECT_THAT(titlesOf(alert->buttons), ElementsAre("Reset All Shortcuts", "Cancel"));
    EXPECT_THAT(desktop.userDefaults.contents(), IsEmpty());

    pressAlertButton("Cancel");
    EXPECT_FALSE(view.form().alert);
    EXPECT_THAT(desktop.userDefaults.contents(), IsEmpty());
    EXPECT_EQ(takePosts(), 0);
}

TEST_F(ShortcutPreferencesViewTest, ResettingWrites33SettingsAndPostsOnce)
{
    view.set("mrResizeModifierFlags", std::int64_t{2});
    view.set("keyboardLayoutProfile", std::int64_t{3});
    view.set("fsPopupPosition", std::int64_t{0});
    view.press(view.form().buttons.front().id);
    pressAlertButton("Reset All Shortcuts");
    EXPECT_FALSE(view.form().alert);
    EXPECT_EQ(desktop.userDefaults.contents().size(), 33U + 2U);
    EXPECT_EQ(settings.integer(settingsKeys::activateOverlayKeyCode), 1);
    EXPECT_EQ(control(activate).text, "⌘⇧O");
    EXPECT_EQ(settings.string(settingsKeys::fsPopupPosition), "center");
    EXPECT_EQ(settings.integer(settingsKeys::mrResizeModifierFlags), 524288);
    EXPECT_EQ(settings.string(settingsKeys::keyboardLayoutProfile), "Dvorak");
    EXPECT_EQ(takePosts(), 1);
}

TEST_F(ShortcutPreferencesViewTest, PickersStoreAndPostNothing)
{
    const auto popup = controlOf<PickerControl>(view.form(), "fsPopupPosition");
    EXPECT_THAT(popup.choices, ElementsAre("Top Left", "Top", "Top Right", "Left", "Center", "Right", "Bottom Left",
                                           "Bottom", "Bottom Right"));
    EXPECT_EQ(popup.selected, 4U);
    view.set("fsPopupPosition", std::int64_t{5});
    EXPECT_EQ(settings.string(settingsKeys::fsPopupPosition), "trailing");

    const auto profile = controlOf<PickerControl>(view.form(), "keyboardLayoutProfile");
    EXPECT_THAT(profile.choices, ElementsAre("QWERTY", "Colemak", "Colemak-DH", "Dvorak"));
    EXPECT_EQ(profile.selected, 0U);

    const auto resize = controlOf<PickerControl>(view.form(), "mrResizeModifierFlags");
    EXPECT_THAT(resize.choices, ElementsAre("⇧ Shift", "⌘ Command", "⌥ Option", "⌃ Control"));
    EXPECT_EQ(resize.selected, 0U);
    const std::vector<std::int64_t> flags{131072, 1048576, 524288, 262144};
    for (std::int64_t index = 0; index < 4; ++index) {
        view.set("mrResizeModifierFlags", index);
        EXPECT_EQ(settings.integer(settingsKeys::mrResizeModifierFlags), flags.at(static_cast<std::size_t>(index)));
        EXPECT_EQ(controlOf<PickerControl>(view.form(), "mrResizeModifierFlags").selected, index);
    }
    EXPECT_EQ(takePosts(), 0);
}

TEST_F(ShortcutPreferencesViewTest, AShortcutOfAnotherRowIsRecordedAndTheRowSaysWhoHoldsIt)
{
    record("focusSwitcherKeyCode", keyF, commandShift);
    EXPECT_EQ(helpOf("focusSwitcherKeyCode"), "");
    record(activate, keyF, commandShift);
    EXPECT_EQ(control(activate).text, "⌘⇧F");
    EXPECT_EQ(helpOf(activate), "Also used by “Activate” in Focus Switcher.");
    EXPECT_EQ(helpOf("focusSwitcherKeyCode"), "");
    EXPECT_EQ(takePosts(), 2);
}

TEST_F(ShortcutPreferencesViewTest, ARowThatShowsNoneHoldsItsDefault)
{
    record("nextLayoutKeyCode", 15, eventFlags::command | eventFlags::option);
    EXPECT_EQ(helpOf("nextLayoutKeyCode"), "Also used by “Activate” in Move/Resize Mode.");
    record("mrMoveLeftKeyCode", keyM);
    EXPECT_EQ(helpOf("mrMoveLeftKeyCode"), "Also used by “Toggle Minimized” in Focus Switcher.");
}

TEST_F(ShortcutPreferencesViewTest, KeysOfOneModeMeetWhateverTheirModifiers)
{
    constexpr KeyCode tab = 48;
    record("mrMinimizeKeyCode", tab, eventFlags::shift);
    EXPECT_EQ(control("mrMinimizeKeyCode").text, "⇧Tab");
    EXPECT_EQ(helpOf("mrMinimizeKeyCode"), "Also used by “Cycle Windows” in Move/Resize Mode.");
    record("mrCycleWindowsKeyCode", tab, eventFlags::option);
    EXPECT_EQ(helpOf("mrMinimizeKeyCode"), "Also used by “Cycle Windows” in Move/Resize Mode.");
    EXPECT_EQ(helpOf("mrCycleWindowsKeyCode"), "Also used by “Minimize” in Move/Resize Mode.");
    record("mrCycleWindowsKeyCode", keyF);
    EXPECT_EQ(helpOf("mrMinimizeKeyCode"), "");
}

TEST_F(ShortcutPreferencesViewTest, KeysOfDifferentModesAndHotKeysMeetOnlyWithTheSameModifiers)
{
    record("mrMinimizeKeyCode", keyF, eventFlags::shift);
    record("fsToggleMinimizedKeyCode", keyF);
    EXPECT_EQ(helpOf("fsToggleMinimizedKeyCode"), "");
    record("moveResizeKeyCode", keyF, eventFlags::option);
    EXPECT_EQ(helpOf("moveResizeKeyCode"), "");
    record("mrExitModeKeyCode", keyO, commandShift);
    record("moveResizeKeyCode", keyO);
    EXPECT_EQ(helpOf("moveResizeKeyCode"), "");
}

TEST_F(ShortcutPreferencesViewTest, AShortcutOfAnotherProgramIsRecordedAndTheRowSaysSo)
{
    desktop.hotKeys.holdElsewhere({31, 768});
    record(activate, keyO, commandShift);
    EXPECT_EQ(control(activate).text, "⌘⇧O");
    EXPECT_EQ(helpOf(activate), "Also used by another program.");
    EXPECT_EQ(takePosts(), 1);
}

TEST_F(ShortcutPreferencesViewTest, AFreeShortcutIsClaimedForNoLongerThanItTakesToKnow)
{
    record(activate, keyO, commandShift);
    EXPECT_EQ(helpOf(activate), "");
    EXPECT_EQ(desktop.journal.count("HotKeys.registerHotKey(31, 768"), 1U);
    EXPECT_THAT(desktop.hotKeys.registered(), IsEmpty());
}

TEST_F(ShortcutPreferencesViewTest, OtherFailuresOfAClaimSayNothing)
{
    desktop.hotKeys.failRegistration(osStatus::parameterError);
    record(activate, keyO, commandShift);
    EXPECT_EQ(helpOf(activate), "");
}

TEST_F(ShortcutPreferencesViewTest, TheLineGoesWhenEitherRowGetsAnotherShortcut)
{
    record("focusSwitcherKeyCode", keyF, commandShift);
    record(activate, keyF, commandShift);
    record("focusSwitcherKeyCode", keyM, commandShift);
    EXPECT_EQ(helpOf(activate), "");

    record("focusSwitcherKeyCode", keyF, commandShift);
    EXPECT_EQ(helpOf("focusSwitcherKeyCode"), "Also used by “Activate” in Layout Mode.");
    view.press(control("focusSwitcherKeyCode").clear.id);
    EXPECT_EQ(helpOf("focusSwitcherKeyCode"), "");
}

TEST_F(ShortcutPreferencesViewTest, ResettingTakesTheLinesAway)
{
    desktop.hotKeys.holdElsewhere({31, 768});
    record(activate, keyO, commandShift);
    view.press(view.form().buttons.front().id);
    pressAlertButton("Reset All Shortcuts");
    EXPECT_EQ(control(activate).text, "⌘⇧O");
    EXPECT_EQ(helpOf(activate), "");
}

TEST_F(ShortcutPreferencesViewTest, EveryChangeIsAnnounced)
{
    int changes = 0;
    const auto token = view.observe([&] { ++changes; });
    const auto tookNotice = [&] { return std::exchange(changes, 0) > 0; };
    view.press(control(activate).record.id);
    EXPECT_TRUE(tookNotice());
    type(keyO);
    EXPECT_TRUE(tookNotice());
    view.press(control(activate).clear.id);
    EXPECT_TRUE(tookNotice());
    view.set("fsPopupPosition", std::int64_t{5});
    EXPECT_TRUE(tookNotice());
    view.press(view.form().buttons.front().id);
    EXPECT_TRUE(tookNotice());
    pressAlertButton("Cancel");
    EXPECT_TRUE(tookNotice());
    desktop.drain();
    changes = 0;
    desktop.userDefaults.changeFromOutside("fsPopupPosition", {std::string("top")});
    desktop.drain();
    EXPECT_TRUE(tookNotice());
}

TEST_F(ShortcutPreferencesViewTest, AccessibleNamesTellRowsOfTheSameTitleApart)
{
    std::map<std::string, int> names;
    for (const auto& group : view.form().groups) {
        for (const auto& row : group.rows) {
            ++names[row.accessibleName];
        }
    }
    EXPECT_EQ(names.size(), 19U);
    EXPECT_TRUE(names.contains("Keyboard Layout"));
    EXPECT_EQ(control(activate).record.accessibleName, "Layout Mode, Activate: Record");
}

TEST_F(ShortcutPreferencesViewTest, AControlThatTheFormLacksIsFatal)
{
    EXPECT_EQ(fatalErrorOf([this] { view.press("nextLayoutKeyCode.play"); }),
              "There is no control \"nextLayoutKeyCode.play\"");
    EXPECT_EQ(fatalErrorOf([this] { view.press("resetAllShortcuts.confirm"); }),
              "There is no control \"resetAllShortcuts.confirm\"");
    EXPECT_EQ(fatalErrorOf([this] { view.set("textSize", 1.0); }), "There is no control \"textSize\"");
}

} // namespace
} // namespace quorvel
