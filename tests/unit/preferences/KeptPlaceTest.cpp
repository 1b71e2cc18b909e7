#include "platform/KeptPlace.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

using Rows = std::vector<FocusableRow>;

const Rows before{{"one", {true}}, {"two", {true, true}}, {"three", {true}}, {"", {true, true, true}}};

TEST(KeptPlace, TheSameControlOfTheSameRowIsFoundWhereverItStands)
{
    const KeptPlace kept(before, {1, 1});
    EXPECT_EQ(kept.among(before), (FocusPlace{1, 1}));
    EXPECT_EQ(kept.among({{"new", {true}}, {"one", {true}}, {"two", {true, true}}}), (FocusPlace{2, 1}));
}

TEST(KeptPlace, OfADisabledControlTheNearestOfItsRowTakesThePlace)
{
    const KeptPlace kept(before, {3, 2});
    EXPECT_EQ(kept.among({{"", {true, true, false}}}), (FocusPlace{0, 1}));
    EXPECT_EQ(kept.among({{"", {true, false, false}}}), (FocusPlace{0, 0}));
    EXPECT_EQ(kept.among({{"", {true}}}), (FocusPlace{0, 0}));
}

TEST(KeptPlace, OfARowThatHasGoneTheNextOneTakesThePlaceElseTheOneBefore)
{
    const KeptPlace kept(before, {1, 0});
    EXPECT_EQ(kept.among({{"one", {true}}, {"three", {true}}}), (FocusPlace{1, 0}));
    EXPECT_EQ(kept.among({{"one", {true}}, {"three", {false}}}), (FocusPlace{0, 0}));
}

TEST(KeptPlace, WhereNothingIsLeftNothingIsFound)
{
    EXPECT_EQ(KeptPlace(before, {0, 0}).among({{"other", {true}}}), std::nullopt);
    EXPECT_EQ(KeptPlace().among(before), std::nullopt);
}

} // namespace
} // namespace quorvel
