#include "app/OverlayNavigation.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "settings/Settings.h"
#include "tests/support/FatalErrors.h"

namespace quorvel {
namespace {

class OverlayNavigationTest : public testing::Test {
protected:
    std::optional<Action> navigation(KeyCode keyCode, std::uint32_t modifiers = 0)
    {
        return overlayNavigation(settings, keyCode, modifiers);
    }

    void configure(const std::string& command, std::int64_t keyCode, std::int64_t modifiers)
    {
        settings.setInteger(command + "KeyCode", keyCode);
        settings.setInteger(command + "Modifiers", modifiers);
    }

    SimulatedDesktop desktop;
    Settings settings{desktop.userDefaults};
};

TEST_F(OverlayNavigationTest, TheArrowsAreBuiltIn)
{
    EXPECT_EQ(navigation(125), Action::nextLayout);
    EXPECT_EQ(navigation(126), Action::previousLayout);
    EXPECT_EQ(navigation(124), Action::nextScreen);
    EXPECT_EQ(navigation(123), Action::previousScreen);
    EXPECT_EQ(navigation(53), std::nullopt);
    EXPECT_EQ(navigation(0), std::nullopt);
}

TEST_F(OverlayNavigationTest, ABuiltInArrowTakesNoModifiers)
{
    for (const auto modifiers : {256U, 512U, 2048U, 4096U}) {
        EXPECT_EQ(navigation(125, modifiers), std::nullopt);
    }
}

TEST_F(OverlayNavigationTest, AShortcutReplacesTheArrowOfItsCommandOnly)
{
    configure("nextLayout", 45, 256);
    EXPECT_EQ(navigation(45, 256), Action::nextLayout);
    EXPECT_EQ(navigation(125), std::nullopt);
    EXPECT_EQ(navigation(126), Action::previousLayout);
    EXPECT_EQ(navigation(124), Action::nextScreen);
    EXPECT_EQ(navigation(123), Action::previousScreen);
}

TEST_F(OverlayNavigationTest, AShortcutWantsExactlyItsModifiers)
{
    configure("previousScreen", 45, 256);
    EXPECT_EQ(navigation(45), std::nullopt);
    EXPECT_EQ(navigation(45, 768), std::nullopt);
    EXPECT_EQ(navigation(45, 256), Action::previousScreen);
}

TEST_F(OverlayNavigationTest, AShortcutWithoutModifiersCountsHere)
{
    configure("nextScreen", 45, 0);
    EXPECT_EQ(navigation(45), Action::nextScreen);
}

TEST_F(OverlayNavigationTest, ModifiersWithoutKeyLeaveTheArrow)
{
    configure("nextLayout", 0, 256);
    EXPECT_EQ(navigation(125), Action::nextLayout);
    EXPECT_EQ(navigation(125, 256), std::nullopt);
    EXPECT_EQ(navigation(0, 256), std::nullopt);
}

TEST_F(OverlayNavigationTest, TheEarlierCommandWinsAKeyOfTwo)
{
    configure("previousScreen", 45, 0);
    configure("nextScreen", 45, 0);
    configure("previousLayout", 45, 0);
    EXPECT_EQ(navigation(45), Action::previousLayout);
    configure("nextLayout", 45, 0);
    EXPECT_EQ(navigation(45), Action::nextLayout);
}

TEST_F(OverlayNavigationTest, AnotherArrowMayBeTakenOver)
{
    configure("previousScreen", 125, 0);
    EXPECT_EQ(navigation(125), Action::nextLayout);
    configure("nextLayout", 45, 0);
    EXPECT_EQ(navigation(125), Action::previousScreen);
}

TEST_F(OverlayNavigationTest, TextsReadAsTheNumbersTheyBeginWith)
{
    settings.setString("nextLayoutKeyCode", "45");
    EXPECT_EQ(navigation(45), Action::nextLayout);
    settings.setString("nextLayoutKeyCode", "forty-five");
    EXPECT_EQ(navigation(125), Action::nextLayout);
}

TEST_F(OverlayNavigationTest, ANumberOutOfRangeIsAFatalErrorWhateverTheKey)
{
    configure("previousScreen", 65535, 4294967295);
    EXPECT_EQ(navigation(65535, 4294967295U), Action::previousScreen);

    configure("previousScreen", 65536, 0);
    EXPECT_EQ(fatalErrorOf([&] { navigation(125); }),
              "Setting \"previousScreenKeyCode\" holds 65536, which is out of range");
    configure("previousScreen", -1, 0);
    EXPECT_EQ(fatalErrorOf([&] { navigation(125); }),
              "Setting \"previousScreenKeyCode\" holds -1, which is out of range");
    configure("previousScreen", 45, 4294967296);
    EXPECT_EQ(fatalErrorOf([&] { navigation(125); }),
              "Setting \"previousScreenModifiers\" holds 4294967296, which is out of range");
    configure("previousScreen", 45, -1);
    EXPECT_EQ(fatalErrorOf([&] { navigation(125); }),
              "Setting \"previousScreenModifiers\" holds -1, which is out of range");
}

} // namespace
} // namespace quorvel
