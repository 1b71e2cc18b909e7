#include "platform/LayoutsPaneShape.h"

#include <gtest/gtest.h>

#include "tests/unit/preferences/LayoutsPaneFixture.h"

namespace quorvel {
namespace {

LayoutsPaneContent contentOf(const std::vector<std::pair<std::string, std::string>>& digits)
{
    LayoutsPaneContent content;
    for (const auto& [id, digit] : digits) {
        content.selected.push_back({.cell = {.layoutID = id, .name = id, .thumbnailSize = {}, .thumbnail = {}},
                                    .digit = digit,
                                    .digitAccessibleName = {},
                                    .height = 56.0});
    }
    return content;
}

TEST(LayoutsPaneShape, EqualContentsNeedNothingNew)
{
    EXPECT_EQ(changesBetween(contentOf({{"full", "1"}}), contentOf({{"full", "1"}})), LayoutsPaneChanges{});
}

TEST(LayoutsPaneShape, AvailableRowsAreToldFromSelectedOnes)
{
    auto content = contentOf({{"full", "1"}});
    content.available.push_back({.content = LayoutSectionHeader{"1 Window", false}, .height = 28.0});

    EXPECT_EQ(changesBetween(contentOf({{"full", "1"}}), content),
              (LayoutsPaneChanges{.hasOtherAvailableRows = true, .selected = SelectedRowsChange::none}));
}

TEST(LayoutsPaneShape, AnotherDigitLeavesTheRowsAsTheyAre)
{
    EXPECT_EQ(changesBetween(contentOf({{"full", "1"}}), contentOf({{"full", "2"}})).selected,
              SelectedRowsChange::digits);
}

TEST(LayoutsPaneShape, AnotherOrderOrNumberOfLayoutsNeedsOtherRows)
{
    const auto shown = contentOf({{"full", "1"}, {"side", ""}});
    EXPECT_EQ(changesBetween(shown, contentOf({{"side", ""}, {"full", "1"}})).selected, SelectedRowsChange::rows);
    EXPECT_EQ(changesBetween(shown, contentOf({{"full", "1"}})).selected, SelectedRowsChange::rows);
}

class DigitEditingTest : public LayoutsPaneTest {
protected:
    DigitEditingTest()
    {
        setDigits({{"centered", "2"}});
        select({"centered", "extra"});
    }
};

TEST_F(DigitEditingTest, AFieldShowsTheDigitThatWasTaken)
{
    EXPECT_EQ(endEditingDigit(pane, "extra", " 5 "), "5");
    EXPECT_EQ(storedDigits(), (Digits{{"centered", "2"}, {"extra", "5"}}));
}

TEST_F(DigitEditingTest, AFieldShowsTheOldDigitWhereAnotherWasRefused)
{
    EXPECT_EQ(endEditingDigit(pane, "centered", "12"), "2");
    EXPECT_EQ(endEditingDigit(pane, "extra", "x"), "");
}

TEST_F(DigitEditingTest, AFieldThatTheKeyboardOnlyPassedByChangesNothing)
{
    int changes = 0;
    const auto token = pane.observe([&] { ++changes; });
    EXPECT_EQ(endEditingDigit(pane, "centered", "2"), "2");
    EXPECT_EQ(changes, 0);
}

TEST_F(DigitEditingTest, ALayoutIsFoundWhereverItsRowIsByNow)
{
    select({"extra", "centered"});
    EXPECT_EQ(endEditingDigit(pane, "centered", "3"), "3");
    EXPECT_EQ(storedDigits(), (Digits{{"centered", "3"}}));
}

TEST_F(DigitEditingTest, ALayoutThatHasGoneGetsNoDigit)
{
    select({"extra"});
    endEditingDigit(pane, "centered", "3");
    EXPECT_EQ(storedDigits(), (Digits{{"centered", "2"}}));
}

} // namespace
} // namespace quorvel
