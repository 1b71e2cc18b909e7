#include "base/KeyCodeSet.h"

#include <array>

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(KeyCodeSet, KeepsEachKeyOnceInAscendingOrder)
{
    KeyCodeSet keys{53, 48, 53};
    keys.insert(48);
    keys.insert(-1);
    EXPECT_EQ(std::vector<KeyCode>(keys.begin(), keys.end()), (std::vector<KeyCode>{-1, 48, 53}));
    EXPECT_EQ(keys.size(), 3U);
}

TEST(KeyCodeSet, KnowsWhichKeysItHolds)
{
    const KeyCodeSet keys{0, 126, 1000};
    EXPECT_TRUE(keys.contains(0));
    EXPECT_TRUE(keys.contains(1000));
    EXPECT_FALSE(keys.contains(1));
    EXPECT_FALSE(keys.contains(1001));
    EXPECT_FALSE(KeyCodeSet().contains(0));
}

TEST(KeyCodeSet, IsEqualWhateverTheOrderOfInsertion)
{
    const std::array codes{3, 1, 2};
    KeyCodeSet keys(codes.begin(), codes.end());
    EXPECT_EQ(keys, (KeyCodeSet{1, 2, 3}));
    keys.insert(KeyCodeSet{2, 4});
    EXPECT_EQ(keys, (KeyCodeSet{1, 2, 3, 4}));
}

TEST(KeyCodeSet, IsEmptyOnceCleared)
{
    KeyCodeSet keys{7};
    EXPECT_FALSE(keys.empty());
    keys.clear();
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(keys, KeyCodeSet());
}

} // namespace
} // namespace quorvel
