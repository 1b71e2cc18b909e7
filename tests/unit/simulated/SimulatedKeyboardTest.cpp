#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

class SimulatedKeyboardTest : public testing::Test {
protected:
    std::unique_ptr<EventTap> startTap(const KeyCodeSet& keys)
    {
        auto tap = desktop.eventTaps.createTap({.eventMask = keyDownEventMask}, [this](const TapEvent& event) {
            seen.push_back(event.keyCode());
            return answer;
        });
        tap->createRunLoopSource();
        tap->addSourceToRunLoop();
        tap->setEnabled(true);
        tap->setKeysOfInterest(keys);
        return tap;
    }

    SimulatedDesktop desktop;
    SimulatedApplication& editor = desktop.launch("Editor");
    TapDecision answer = TapDecision::drop;
    std::vector<KeyCode> seen;
};

TEST_F(SimulatedKeyboardTest, AKeyReachesTheFrontmostApplicationLater)
{
    desktop.press(31, eventFlags::shift);
    EXPECT_TRUE(editor.receivedKeys().empty());

    desktop.drain();

    ASSERT_EQ(editor.receivedKeys().size(), 1U);
    EXPECT_EQ(editor.receivedKeys()[0].keyCode, 31);
    EXPECT_EQ(editor.receivedKeys()[0].characters, "O");
    EXPECT_EQ(editor.receivedKeys()[0].flags, eventFlags::shift);
}

TEST_F(SimulatedKeyboardTest, AHotKeyGoesBeforeTheTapAndTheApplication)
{
    const auto tap = startTap({31});
    std::vector<HotKeyId> fired;
    desktop.hotKeys.installHandler([&](HotKeyEvent& event) {
        fired.push_back(event.hotKeyId().value());
        return event.callNextHandler();
    });
    desktop.hotKeys.registerHotKey(31, hotKeyModifiers::command | hotKeyModifiers::shift, {7, 1});

    desktop.press(31, eventFlags::command | eventFlags::shift);
    desktop.drain();

    EXPECT_EQ(fired, (std::vector<HotKeyId>{{7, 1}}));
    EXPECT_TRUE(seen.empty());
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(SimulatedKeyboardTest, ATapSeesTheKeysOfItsInterestOnly)
{
    const auto tap = startTap({31});
    desktop.press(31);
    desktop.press(32);
    desktop.drain();

    EXPECT_EQ(seen, (std::vector<KeyCode>{31}));
    ASSERT_EQ(editor.receivedKeys().size(), 1U);
    EXPECT_EQ(editor.receivedKeys()[0].keyCode, 32);
}

TEST_F(SimulatedKeyboardTest, ADroppedKeyStaysTakenUntilItIsReleasedAlsoWhenTheTapLosesInterest)
{
    const auto tap = startTap({31});
    desktop.hold(31);
    desktop.drain();
    tap->setKeysOfInterest({});
    desktop.repeatKey(31);
    desktop.drain();
    EXPECT_TRUE(editor.receivedKeys().empty());

    desktop.releaseKey(31);
    desktop.press(31);
    desktop.drain();

    EXPECT_EQ(editor.receivedKeys().size(), 1U);
    EXPECT_EQ(seen.size(), 1U);
}

TEST_F(SimulatedKeyboardTest, TheKeyPanelTakesKeysWhileThisProgramIsActive)
{
    std::vector<std::string> typed;
    const auto panel =
        desktop.overlayWindows.createPanel({}, [&](const KeyEvent& event) { typed.push_back(event.characters); });
    panel->orderFrontRegardless();
    desktop.workspace.activateSelf();
    panel->makeKey();
    desktop.press(0);
    desktop.drain();
    EXPECT_EQ(typed, (std::vector<std::string>{"a"}));

    desktop.activate(editor);
    desktop.press(11);
    desktop.drain();

    EXPECT_FALSE(panel->isKey());
    EXPECT_EQ(typed.size(), 1U);
    EXPECT_EQ(editor.receivedKeys().size(), 1U);
}

TEST_F(SimulatedKeyboardTest, KeysTypeAsOnAUsKeyboardUnlessTheyAreToldOtherwise)
{
    desktop.keyboardLayout.setKey(16, {"z", "Z"});
    desktop.keyboardLayout.makeDead(33);
    desktop.press(18, eventFlags::shift);
    desktop.press(16);
    desktop.press(33);
    desktop.press(0, 0, "é!");
    desktop.drain();

    std::vector<std::string> typed;
    for (const auto& event : editor.receivedKeys()) {
        typed.push_back(event.characters);
    }
    EXPECT_EQ(typed, (std::vector<std::string>{"!", "z", "", "é!"}));
}

TEST_F(SimulatedKeyboardTest, WhereTapsSeeEveryKeyEachRepetitionIsDecidedAnew)
{
    desktop.eventTaps.visibility = SimulatedEventTaps::Visibility::everyKey;
    const auto tap = startTap({});
    desktop.hold(31);
    desktop.repeatKey(31);
    desktop.drain();
    EXPECT_EQ(seen.size(), 2U);

    answer = TapDecision::pass;
    desktop.repeatKey(31);
    desktop.drain();

    EXPECT_EQ(seen.size(), 3U);
    EXPECT_EQ(editor.receivedKeys().size(), 1U);
}

TEST_F(SimulatedKeyboardTest, WithNobodyInFrontKeysAreLost)
{
    desktop.leaveNobodyInFront();

    desktop.press(31);
    desktop.drain();

    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(SimulatedKeyboardTest, ARepetitionOfAKeyThatIsNotHeldIsNothing)
{
    desktop.press(31);
    desktop.repeatKey(31);
    desktop.drain();

    EXPECT_EQ(editor.receivedKeys().size(), 1U);
}

} // namespace
} // namespace quorvel
