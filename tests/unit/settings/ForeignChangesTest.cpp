#include "settings/ForeignChanges.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedLog.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedNotificationCenter.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "settings/Settings.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ForeignChangesTest : public testing::Test {
protected:
    // How many announcements of changed shortcuts these keys cause.
    int announcements(const std::set<std::string>& keys)
    {
        int count = 0;
        const auto observer =
            center.observe(notificationNames::shortcutDidChange, noNotificationObject, [&count] { ++count; });
        handleForeignChanges(keys, store, center, log);
        mainQueue.drain();
        return count;
    }

    Journal journal;
    SimulatedMainQueue mainQueue{journal};
    SimulatedNotificationCenter center{journal, mainQueue};
    SimulatedUserDefaults store{journal, mainQueue};
    SimulatedLog log{journal};
    Settings settings{store};
};

TEST_F(ForeignChangesTest, AChangedHalfOfAShortcutIsAnnounced)
{
    EXPECT_EQ(announcements({"activateOverlayKeyCode"}), 1);
    EXPECT_EQ(announcements({"nextScreenModifiers"}), 1);
    EXPECT_EQ(announcements({"mrMoveLeftKeyCode"}), 1);
}

TEST_F(ForeignChangesTest, ManyChangesAreAnnouncedOnce)
{
    EXPECT_EQ(announcements({"moveResizeKeyCode", "moveResizeModifiers", "textSize"}), 1);
}

TEST_F(ForeignChangesTest, OtherSettingsAndKeysOfOthersAreNot)
{
    EXPECT_EQ(announcements({"overlayBorderColor", "textSize", "selectedLayoutIDs", "layoutShortcuts"}), 0);
    EXPECT_EQ(announcements({"mrResizeModifierFlags", "keyboardLayoutProfile", "fsPopupPosition"}), 0);
    EXPECT_EQ(announcements({"somebodysKeyCode"}), 0);
    EXPECT_EQ(announcements({}), 0);
}

TEST_F(ForeignChangesTest, OfTheChangedSettingsThoseOfAWrongTypeAreReported)
{
    settings.setString("textSize", "large");
    settings.setString("overlayBorderWidth", "wide");
    settings.setString("textColor", "#000000");
    handleForeignChanges({"textColor", "textSize", "somebodysText"}, store, center, log);
    EXPECT_THAT(log.lines(), ElementsAre("Setting \"textSize\" holds a string where a number is expected"));
}

TEST_F(ForeignChangesTest, SettingsThatAreGoneAreNotReported)
{
    handleForeignChanges({"textSize"}, store, center, log);
    EXPECT_THAT(log.lines(), IsEmpty());
}

} // namespace
} // namespace quorvel
