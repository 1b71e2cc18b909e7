#include "platform/x11/painting/PictureCache.h"

#include <gtest/gtest.h>

#include "tests/unit/x11/painting/Painting.h"

namespace quorvel::x11 {
namespace {

class PictureCacheTest : public testing::Test {
protected:
    std::shared_ptr<const PixelImage> square(int side, double red, Blending blending = Blending::available)
    {
        const double length = side;
        const DrawList list{{filled({0, 0, length, length}, {red, 0.0, 0.0, 1.0})}};
        return cache.picture({.list = list, .size = {side, side}, .columns = {}, .rows = {}}, blending);
    }

    Painting painting;
    PictureCache cache{painting.painter};
};

TEST_F(PictureCacheTest, DrawsTheSamePictureOnce)
{
    EXPECT_EQ(square(10, 1.0), square(10, 1.0));
}

TEST_F(PictureCacheTest, KeepsDifferentContentApart)
{
    EXPECT_EQ(square(10, 1.0)->at(5, 5), 0xFFFF0000U);
    EXPECT_EQ(square(10, 0.0)->at(5, 5), 0xFF000000U);
    EXPECT_EQ(square(11, 1.0)->size, (PixelSize{11, 11}));
}

TEST_F(PictureCacheTest, KeepsTheWaysOfBlendingApart)
{
    EXPECT_NE(square(10, 1.0), square(10, 1.0, Blending::unavailable));
}

TEST_F(PictureCacheTest, HoldsNoMoreThanItsBound)
{
    for (int index = 0; index < 100; ++index) {
        square(200, index / 100.0);
        EXPECT_LE(cache.bytes(), PictureCache::maximumBytes);
    }
    EXPECT_GT(cache.bytes(), PictureCache::maximumBytes / 2);
}

TEST_F(PictureCacheTest, ForgetsWhatWasUsedLongestAgo)
{
    const auto used = square(200, 0.999);
    const std::weak_ptr<const PixelImage> unused = square(200, 0.998);
    for (int index = 0; index < 60; ++index) {
        square(200, index / 100.0);
        EXPECT_EQ(square(200, 0.999), used);
    }
    EXPECT_TRUE(unused.expired());
}

TEST_F(PictureCacheTest, DoesNotKeepAPictureThatWouldPushOutTheRest)
{
    square(10, 1.0);
    const auto before = cache.bytes();
    EXPECT_EQ(square(1000, 1.0)->at(999, 999), 0xFFFF0000U);
    EXPECT_EQ(cache.bytes(), before);
}

} // namespace
} // namespace quorvel::x11
