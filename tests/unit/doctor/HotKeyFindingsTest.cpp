#include "doctor/HotKeyFindings.h"

#include "base/Keys.h"
#include "settings/SettingsKeys.h"
#include "tests/unit/doctor/DoctorFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::uint32_t keyO = 31;
constexpr std::uint32_t commandShift = hotKeyModifiers::command | hotKeyModifiers::shift;

PropertyValue integer(std::int64_t number)
{
    return {number};
}

class HotKeyFindings : public DoctorFixture {
protected:
    void storeShortcut(std::string_view keyCode, std::string_view modifiers, std::int64_t key, std::int64_t mask)
    {
        store(std::string(keyCode), integer(key));
        store(std::string(modifiers), integer(mask));
    }
};

TEST_F(HotKeyFindings, FreeOnesAreGoodAndSpeltOut)
{
    EXPECT_THAT(finding("hot-keys.layout-overlay"), says(Verdict::good, "Command+Shift+O, the layout overlay: free."));
    EXPECT_THAT(finding("hot-keys.focus-switcher"), says(Verdict::good, "Command+Shift+F, the focus switcher: free."));
    EXPECT_THAT(finding("hot-keys.move-resize"), says(Verdict::good, "Command+Option+R, moving and resizing: free."));
    EXPECT_THAT(findings(examined(), "hot-keys.next-layout"), IsEmpty());
}

TEST_F(HotKeyFindings, OneThatAnotherProgramHoldsIsAProblem)
{
    desktop.hotKeys.holdElsewhere({keyO, commandShift});
    const auto found = finding("hot-keys.layout-overlay");
    EXPECT_THAT(found, says(Verdict::problem, HasSubstr("another program holds it")));
    EXPECT_EQ(found.details.at("holder"), PropertyValue{std::string("another program")});
    EXPECT_EQ(found.details.at("keyCode"), integer(keyO));
    EXPECT_FALSE(isFit());
}

TEST_F(HotKeyFindings, OneThatTheRunningProgramHoldsIsGood)
{
    desktop.desktopProbe.desktop.isProgramRunning = true;
    desktop.hotKeys.registerHotKey(keyO, commandShift, {});
    EXPECT_THAT(finding("hot-keys.layout-overlay"), says(Verdict::good, HasSubstr("held by the Quorvel")));
    EXPECT_EQ(finding("hot-keys.layout-overlay").details.at("holder"), PropertyValue{std::string("quorvel")});
}

TEST_F(HotKeyFindings, OneThatIsFreeWhileTheProgramRunsIsWorthANotice)
{
    desktop.desktopProbe.desktop.isProgramRunning = true;
    EXPECT_THAT(finding("hot-keys.layout-overlay"), says(Verdict::notice, HasSubstr("although Quorvel is running")));
    EXPECT_TRUE(isFit());
}

TEST_F(HotKeyFindings, AKeyThatTheKeyboardLacksIsAProblem)
{
    storeShortcut(settingsKeys::activateOverlayKeyCode, settingsKeys::activateOverlayModifiers, 200, commandShift);
    EXPECT_THAT(finding("hot-keys.layout-overlay"), says(Verdict::problem, HasSubstr("no such key")));
}

TEST_F(HotKeyFindings, OneThatIsSwitchedOffIsANoticeAndNobodyIsAskedForIt)
{
    storeShortcut(settingsKeys::focusSwitcherKeyCode, settingsKeys::focusSwitcherModifiers, 0, 0);
    desktop.hotKeys.holdElsewhere({0, 0});
    EXPECT_THAT(finding("hot-keys.focus-switcher"), says(Verdict::notice, "No hot key is set for the focus switcher."));
    EXPECT_TRUE(isFit());
}

TEST_F(HotKeyFindings, OfTwoThatAreTheSameTheOneThatIsRegisteredFirstWorks)
{
    storeShortcut(settingsKeys::focusSwitcherKeyCode, settingsKeys::focusSwitcherModifiers, 15,
                  hotKeyModifiers::command | hotKeyModifiers::option); // as for moving and resizing
    EXPECT_THAT(finding("hot-keys.move-resize"), says(Verdict::good, HasSubstr("free")));
    EXPECT_THAT(finding("hot-keys.focus-switcher"),
                says(Verdict::problem, HasSubstr("set for moving and resizing, too")));
}

TEST_F(HotKeyFindings, StepsCountOnceTheyHaveModifiers)
{
    storeShortcut(settingsKeys::nextLayoutKeyCode, settingsKeys::nextLayoutModifiers, 45, 0);
    EXPECT_THAT(findings(examined(), "hot-keys.next-layout"), IsEmpty());
    stored.entries.clear();
    storeShortcut(settingsKeys::nextLayoutKeyCode, settingsKeys::nextLayoutModifiers, 45, hotKeyModifiers::control);
    EXPECT_THAT(finding("hot-keys.next-layout"), says(Verdict::good, "Control+N, the next layout: free."));
}

TEST_F(HotKeyFindings, OneOutOfRangeIsToldOfAmongTheSettingsOnly)
{
    storeShortcut(settingsKeys::activateOverlayKeyCode, settingsKeys::activateOverlayModifiers, -5, commandShift);
    EXPECT_THAT(findings(examined(), "hot-keys.layout-overlay"), IsEmpty());
    EXPECT_THAT(finding("settings.range"), says(Verdict::problem, HasSubstr("activateOverlayKeyCode")));
}

TEST_F(HotKeyFindings, ACommandKeyThatIsHeldByItselfConcernsTheHotKeysWithIt)
{
    desktop.desktopProbe.commandKeyIsHeld = true;
    EXPECT_THAT(finding("hot-keys.command-key"),
                says(Verdict::notice, HasSubstr("Command+Shift+O, Command+Option+R, Command+Shift+F")));
    EXPECT_TRUE(isFit());
}

TEST_F(HotKeyFindings, AWindowManagerThatIsKnownToKeepTheCommandKeyIsAProblemWithARepair)
{
    desktop.desktopProbe.commandKeyIsHeld = true;
    desktop.desktopProbe.desktop.windowManager->name = "IceWM 3.3.1";
    const auto found = finding("hot-keys.command-key");
    EXPECT_EQ(found.verdict, Verdict::problem);
    EXPECT_THAT(found.advice, HasSubstr("Win95Keys=0"));
}

TEST_F(HotKeyFindings, WithoutHotKeysThatNeedItTheCommandKeyIsNobodysBusiness)
{
    desktop.desktopProbe.commandKeyIsHeld = true;
    for (const auto& [key, modifiers] :
         {std::pair{settingsKeys::activateOverlayKeyCode, settingsKeys::activateOverlayModifiers},
          {settingsKeys::focusSwitcherKeyCode, settingsKeys::focusSwitcherModifiers},
          {settingsKeys::moveResizeKeyCode, settingsKeys::moveResizeModifiers}}) {
        storeShortcut(key, modifiers, 0, 0);
    }
    EXPECT_THAT(findings(examined(), "hot-keys.command-key"), IsEmpty());
}

TEST_F(HotKeyFindings, AskingLeavesNoHotKeyBehind)
{
    examined();
    EXPECT_THAT(desktop.hotKeys.registered(), IsEmpty());
}

} // namespace
} // namespace quorvel
