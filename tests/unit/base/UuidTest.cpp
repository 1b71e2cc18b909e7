#include "base/Uuid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(Uuid, ItsTextIsUpperCase)
{
    const auto uuid = Uuid::fromText("6f9619ff-8b86-d011-b42d-00c04fc964ff");
    ASSERT_TRUE(uuid);
    EXPECT_EQ(uuid->text(), "6F9619FF-8B86-D011-B42D-00C04FC964FF");
    EXPECT_EQ(Uuid::fromText("6F9619FF-8B86-D011-B42D-00C04FC964FF"), uuid);
}

TEST(Uuid, OnlyTheCanonicalFormIsRead)
{
    for (const auto* text : {"", "6F9619FF8B86D011B42D00C04FC964FF", "{6F9619FF-8B86-D011-B42D-00C04FC964FF}",
                             "6F9619FF-8B86-D011-B42D-00C04FC964F", "6F9619FF-8B86-D011-B42D-00C04FC964FG",
                             "6F9619FF-8B86-D011-B42D-00C04FC964FFF", "6F9619FF+8B86-D011-B42D-00C04FC964FF",
                             "6F9619F--8B86-D011-B42D-00C04FC964FF", " F9619FF-8B86-D011-B42D-00C04FC964FF"}) {
        EXPECT_EQ(Uuid::fromText(text), std::nullopt) << text;
    }
}

TEST(Uuid, RandomOnesDifferAndSayThatTheyAreRandom)
{
    const auto uuid = Uuid::random();
    EXPECT_NE(uuid, Uuid::random());
    EXPECT_NE(uuid, Uuid());
    EXPECT_EQ(uuid.text()[14], '4');
    EXPECT_THAT(uuid.text()[19], testing::AnyOf('8', '9', 'A', 'B'));
    EXPECT_EQ(Uuid::fromText(uuid.text()), uuid);
}

} // namespace
} // namespace quorvel
