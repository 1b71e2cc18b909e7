#include "platform/x11/painting/GaussianBlur.h"

#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <numeric>

#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

// Covered from column `from` on.
CoverageMask halfPlane(int width, int height, int from)
{
    CoverageMask mask{width, height, std::vector<std::uint8_t>(static_cast<std::size_t>(width * height))};
    for (int y = 0; y < height; ++y) {
        for (int x = from; x < width; ++x) {
            mask.values[static_cast<std::size_t>(y * width + x)] = 255;
        }
    }
    return mask;
}

int valueAt(const CoverageMask& mask, int x, int y)
{
    return mask.values[static_cast<std::size_t>(y * mask.width + x)];
}

class GaussianBlurOfDeviation : public testing::TestWithParam<double> {};

TEST_P(GaussianBlurOfDeviation, TurnsAnEdgeIntoTheGaussiansIntegral)
{
    const double deviation = GetParam();
    constexpr int edge = 100;
    auto mask = halfPlane(200, 101, edge);
    blur(mask, deviation);
    for (int x = edge - 40; x < edge + 40; ++x) {
        const double distance = x + 0.5 - edge;
        const double expected = 127.5 * (1.0 + std::erf(distance / (deviation * std::sqrt(2.0))));
        EXPECT_NEAR(valueAt(mask, x, 50), expected, 5.0) << "column " << x;
    }
}

TEST_P(GaussianBlurOfDeviation, IsTheSameInBothDirections)
{
    CoverageMask mask{64, 64, std::vector<std::uint8_t>(std::size_t{64} * 64)};
    mask.values[static_cast<std::size_t>(20 * 64 + 40)] = 255;
    mask.values[static_cast<std::size_t>(40 * 64 + 20)] = 255;
    mask.values[static_cast<std::size_t>(41 * 64 + 20)] = 255;
    mask.values[static_cast<std::size_t>(20 * 64 + 41)] = 255;
    blur(mask, GetParam());
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < y; ++x) {
            EXPECT_EQ(valueAt(mask, x, y), valueAt(mask, y, x));
        }
    }
}

TEST_P(GaussianBlurOfDeviation, ReachesNoFartherThanItsExtent)
{
    constexpr int edge = 60;
    const int extent = blurExtent(GetParam());
    auto mask = halfPlane(120, 1, edge);
    mask.height = 1;
    blur(mask, GetParam());
    EXPECT_EQ(valueAt(mask, edge - extent - 1, 0), 0);
}

INSTANTIATE_TEST_SUITE_P(Deviations, GaussianBlurOfDeviation, testing::Values(1.0, 1.5, 2.0, 3.7, 6.0, 10.0));

TEST(GaussianBlur, OfAGlowHasNoVisibleSteps)
{
    auto mask = halfPlane(120, 41, 60);
    blur(mask, 6.0);
    for (int x = 1; x < 120 - blurExtent(6.0); ++x) {
        const int step = valueAt(mask, x, 20) - valueAt(mask, x - 1, 20);
        EXPECT_GE(step, 0) << "column " << x;
        EXPECT_LE(step, 18) << "column " << x;
    }
}

TEST(GaussianBlur, KeepsTheAmountOfCoverage)
{
    CoverageMask mask{80, 80, std::vector<std::uint8_t>(std::size_t{80} * 80)};
    for (int y = 30; y < 50; ++y) {
        for (int x = 30; x < 50; ++x) {
            mask.values[static_cast<std::size_t>(y * 80 + x)] = 255;
        }
    }
    blur(mask, 4.0);
    const double sum = std::accumulate(mask.values.begin(), mask.values.end(), 0.0);
    EXPECT_NEAR(sum, 255.0 * 400.0, 255.0 * 4.0);
}

TEST(GaussianBlur, OfNoDeviationChangesNothing)
{
    auto mask = halfPlane(10, 2, 5);
    const auto before = mask.values;
    blur(mask, 0.0);
    EXPECT_EQ(mask.values, before);
    EXPECT_EQ(blurExtent(0.0), 0);
}

} // namespace
} // namespace quorvel::x11
