#include "settings/SettingsReport.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedLog.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "settings/Settings.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {
namespace {

class SettingsReportTest : public testing::Test {
protected:
    Journal journal;
    SimulatedMainQueue mainQueue{journal};
    SimulatedUserDefaults store{journal, mainQueue};
    SimulatedLog log{journal};
    Settings settings{store};
};

TEST_F(SettingsReportTest, IsSilentAboutAbsentSettingsAndThoseOfTheRightType)
{
    resetShortcuts(settings);
    settings.setReal("mrCornerRadius", 12.0);
    settings.setInteger("textSize", 30);
    settings.setBoolean("isTextBold", false);
    settings.setString("textColor", "unreadable");
    settings.setData("savedThemes", {});
    settings.setStringArray("selectedLayoutIDs", {"centered"});
    settings.setStringDictionary("layoutShortcuts", {{"centered", "1"}});
    settings.setString("somethingElse", "of another program");
    reportMistypedSettings(store, log);
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(SettingsReportTest, NamesEachSettingOfAWrongTypeAndKeepsIt)
{
    settings.setString("activateOverlayModifiers", "256");
    settings.setBoolean("textSize", true);
    settings.setInteger("isTextBold", 1);
    settings.setReal("textColor", 0.5);
    settings.setStringDictionary("savedThemes", {});
    store.setObject("selectedLayoutIDs", {PropertyArray{{std::string("a")}, {std::int64_t{5}}}});
    settings.setData("layoutShortcuts", {});
    const auto before = store.contents();

    reportMistypedSettings(store, log);

    EXPECT_EQ(log.lines(), (std::vector<std::string>{
                               "Setting \"activateOverlayModifiers\" holds a string where an integer is expected",
                               "Setting \"textColor\" holds a number where a string is expected",
                               "Setting \"textSize\" holds a Boolean where a number is expected",
                               "Setting \"isTextBold\" holds an integer where a Boolean is expected",
                               "Setting \"savedThemes\" holds a dictionary where data is expected",
                               "Setting \"selectedLayoutIDs\" holds an array where an array of strings is expected",
                               "Setting \"layoutShortcuts\" holds data where a dictionary of strings is expected",
                           }));
    EXPECT_EQ(store.contents(), before);
}

} // namespace
} // namespace quorvel
