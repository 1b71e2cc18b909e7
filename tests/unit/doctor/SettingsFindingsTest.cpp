#include "doctor/SettingsFindings.h"

#include "doctor/SettingsSnapshot.h"
#include "settings/SettingsKeys.h"
#include "tests/unit/doctor/DoctorFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

PropertyValue text(std::string value)
{
    return {std::move(value)};
}

PropertyData bytes(std::string_view content)
{
    PropertyData data;
    for (const char character : content) {
        data.push_back(static_cast<std::byte>(character));
    }
    return data;
}

using SettingsFindings = DoctorFixture;

TEST_F(SettingsFindings, TheFileIsNamedAndNoFileIsNoProblem)
{
    EXPECT_THAT(finding("settings.file"), says(Verdict::good, "Settings are read from settings.plist."));
    stored.state = StoredSettings::State::absent;
    EXPECT_THAT(finding("settings.file"), says(Verdict::good, HasSubstr("No settings are stored")));
}

TEST_F(SettingsFindings, ADamagedFileAndAnUnreadableOneAreProblems)
{
    stored.problem = "it ends too soon";
    stored.state = StoredSettings::State::damaged;
    EXPECT_THAT(finding("settings.file"), says(Verdict::problem, HasSubstr("are damaged: it ends too soon.")));
    stored.state = StoredSettings::State::unreadable;
    EXPECT_THAT(finding("settings.file"), says(Verdict::problem, HasSubstr("cannot be read: it ends too soon.")));
    EXPECT_FALSE(isFit());
}

TEST_F(SettingsFindings, AFileThatCannotBeChangedIsAProblemAndOneThatOthersMayReadANotice)
{
    stored.isPrivate = false;
    EXPECT_THAT(finding("settings.private"), says(Verdict::notice, "Others may read settings.plist."));
    EXPECT_TRUE(isFit());
    stored.isWritable = false;
    EXPECT_THAT(finding("settings.writable"), says(Verdict::problem, HasSubstr("cannot be written")));
    EXPECT_FALSE(isFit());
}

TEST_F(SettingsFindings, AValueOfAWrongTypeIsANotice)
{
    store("textSize", text("large"));
    store("isTextBold", PropertyValue{true});
    EXPECT_THAT(findings(examined(), "settings.type"),
                ElementsAre(says(Verdict::notice, "Setting \"textSize\" holds a string where a number is expected.")));
    EXPECT_TRUE(isFit());
}

TEST_F(SettingsFindings, WhatNoSettingCanHoldIsANoticeToo)
{
    stored.entries.emplace_back("textSize", std::nullopt);
    EXPECT_THAT(finding("settings.type"), says(Verdict::notice, HasSubstr("what no setting can hold")));
}

TEST_F(SettingsFindings, WhatOtherProgramsPutIntoTheFileIsPassedOver)
{
    store("window of another program", text("anything"));
    stored.entries.emplace_back("date of another program", std::nullopt);
    EXPECT_THAT(findings(examined(), "settings.type"), IsEmpty());
}

TEST_F(SettingsFindings, ANumberAtWhichTheProgramWouldEndIsAProblem)
{
    store("mrResizeModifierFlags", {std::int64_t{-1}});
    store("nextLayoutKeyCode", {std::int64_t{1} << 40});
    store("activateOverlayKeyCode", {std::int64_t{0xFFFFFFFF}});
    EXPECT_THAT(findings(examined(), "settings.range"),
                ElementsAre(says(Verdict::problem, HasSubstr("\"mrResizeModifierFlags\" holds -1")),
                            says(Verdict::problem, HasSubstr("\"nextLayoutKeyCode\" holds 1099511627776"))));
}

TEST_F(SettingsFindings, ThemesThatCannotBeReadAreANotice)
{
    store("savedThemes", {bytes("[]")});
    store("savedSwitcherThemes", {bytes("no themes")});
    EXPECT_THAT(findings(examined(), "settings.themes"),
                ElementsAre(says(Verdict::notice, HasSubstr("The saved switcher themes cannot be read: "))));
}

TEST_F(SettingsFindings, LayoutsThatTheCatalogueLacksAreNamed)
{
    store("selectedLayoutIDs", {PropertyArray{text("centered"), text("old")}});
    store("layoutShortcuts", {PropertyDictionary{{"older", text("3")}, {"halves", text("1")}}});
    EXPECT_THAT(findings(examined(), "layouts.unknown"),
                ElementsAre(says(Verdict::notice, "The layout \"old\", which is selected, is not in the catalogue."),
                            says(Verdict::notice, HasSubstr("\"older\", which the digit 3 goes to,"))));
    EXPECT_TRUE(isFit());
}

TEST_F(SettingsFindings, ASelectionOfUnknownLayoutsOnlyLeavesTheOverlayEmpty)
{
    store("selectedLayoutIDs", {PropertyArray{text("old")}});
    EXPECT_THAT(finding("layouts.selection"), says(Verdict::problem, HasSubstr("stays empty")));
    EXPECT_FALSE(isFit());
}

TEST_F(SettingsFindings, TheCatalogueIsCounted)
{
    EXPECT_THAT(finding("layouts.catalogue"), says(Verdict::good, "The catalogue has 2 layouts."));
}

TEST_F(SettingsFindings, ACatalogueThatIsMissingUnreadableOrWrongIsAProblem)
{
    desktop.bundle.removeResource("layouts", "json");
    EXPECT_THAT(finding("layouts.catalogue"), says(Verdict::problem, HasSubstr("there is no file layouts.json")));
    desktop.bundle.addUnreadableResource("layouts", "json", "cannot read it");
    EXPECT_THAT(finding("layouts.catalogue"), says(Verdict::problem, HasSubstr("cannot read it")));
    desktop.bundle.addResource("layouts", "json", R"({"layouts": 1})");
    EXPECT_THAT(finding("layouts.catalogue"), says(Verdict::problem, HasSubstr("layouts is not")));
    desktop.bundle.addResource("layouts", "json", R"({"layouts": []})");
    EXPECT_THAT(finding("layouts.catalogue"), says(Verdict::problem, "The catalogue has no layouts."));
    EXPECT_FALSE(isFit());
}

TEST_F(SettingsFindings, ALayoutThatIsThereTwiceIsAProblem)
{
    desktop.bundle.addResource("layouts", "json", R"({"layouts": [
        {"id": "a", "name": "A", "windows": []}, {"id": "a", "name": "B", "windows": []}]})");
    EXPECT_THAT(finding("layouts.catalogue"), says(Verdict::problem, HasSubstr("\"a\" twice")));
}

TEST(SettingsSnapshot, ChangesStayInMemory)
{
    const std::vector<SettingsEntry> entries{{"a", text("1")}, {"b", std::nullopt}};
    SettingsSnapshot snapshot(entries);
    EXPECT_EQ(snapshot.object("a"), text("1"));
    EXPECT_EQ(snapshot.object("b"), std::nullopt);
    snapshot.setObject("a", text("2"));
    EXPECT_EQ(snapshot.object("a"), text("2"));
    snapshot.removeObject("a");
    EXPECT_EQ(snapshot.object("a"), std::nullopt);
    EXPECT_EQ(entries.front().second, text("1"));
}

} // namespace
} // namespace quorvel
