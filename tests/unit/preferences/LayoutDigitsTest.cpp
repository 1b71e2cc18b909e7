#include <gmock/gmock.h>

#include "tests/unit/preferences/LayoutsPaneFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;

class LayoutDigitsTest : public LayoutsPaneTest {
protected:
    LayoutDigitsTest()
    {
        setDigits({{"centered", "2"}, {"extra", "7"}});
        select({"centered", "extra", "two_stacked"});
    }
};

TEST_F(LayoutDigitsTest, FieldsShowTheStoredDigits)
{
    EXPECT_THAT(shownDigits(), ElementsAre("2", "7", ""));
}

TEST_F(LayoutDigitsTest, BlanksAroundADigitDoNotCount)
{
    pane.endEditingDigit(2, " 5 ");
    EXPECT_THAT(shownDigits(), ElementsAre("2", "7", "5"));
    EXPECT_EQ(storedDigits(), (Digits{{"centered", "2"}, {"extra", "7"}, {"two_stacked", "5"}}));
}

TEST_F(LayoutDigitsTest, ADigitMovesFromItsOldOwner)
{
    pane.endEditingDigit(0, "7");
    EXPECT_THAT(shownDigits(), ElementsAre("7", "", ""));
    EXPECT_EQ(storedDigits(), (Digits{{"centered", "7"}}));
}

TEST_F(LayoutDigitsTest, ADigitMovesAlsoFromALayoutThatIsNotSelected)
{
    setDigits({{"four_tiled", "4"}, {"one_full_screen", "4"}});
    pane.endEditingDigit(1, "4");
    EXPECT_EQ(storedDigits(), (Digits{{"extra", "4"}}));
}

TEST_F(LayoutDigitsTest, AnEmptyFieldRemovesTheDigit)
{
    pane.endEditingDigit(0, "");
    EXPECT_EQ(storedDigits(), (Digits{{"extra", "7"}}));
    pane.endEditingDigit(1, "  ");
    EXPECT_EQ(storedDigits(), Digits{});
    EXPECT_THAT(shownDigits(), ElementsAre("", "", ""));
}

TEST_F(LayoutDigitsTest, AnythingElseRestoresTheField)
{
    for (const auto* text : {"0", "12", "a", "-", "1a", "1 2", "\xFF"}) {
        pane.endEditingDigit(0, text);
        pane.endEditingDigit(2, text);
        EXPECT_THAT(shownDigits(), ElementsAre("2", "7", "")) << text;
        EXPECT_EQ(storedDigits(), (Digits{{"centered", "2"}, {"extra", "7"}})) << text;
    }
}

TEST_F(LayoutDigitsTest, TheFieldOfARowThatIsGoneChangesNothing)
{
    pane.endEditingDigit(3, "5");
    EXPECT_EQ(storedDigits(), (Digits{{"centered", "2"}, {"extra", "7"}}));
}

} // namespace
} // namespace quorvel
