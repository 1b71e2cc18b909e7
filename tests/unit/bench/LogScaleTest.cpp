#include "report/LogScale.h"

#include <gtest/gtest.h>

namespace quorvel::bench {
namespace {

TEST(LogScale, ItBeginsAndEndsAtRoundTimesAroundAll)
{
    const LogScale scale(Milliseconds(0.43), Milliseconds(153.0));
    EXPECT_NEAR(scale.begin().count(), 0.2, 1e-9);
    EXPECT_NEAR(scale.end().count(), 200.0, 1e-9);
}

TEST(LogScale, ARoundTimeIsItsOwnEnd)
{
    const LogScale scale(Milliseconds(0.5), Milliseconds(1000.0));
    EXPECT_NEAR(scale.begin().count(), 0.5, 1e-9);
    EXPECT_NEAR(scale.end().count(), 1000.0, 1e-9);
}

TEST(LogScale, EqualFactorsAreEqualDistances)
{
    const LogScale scale(Milliseconds(1.0), Milliseconds(1000.0));
    EXPECT_DOUBLE_EQ(scale.position(Milliseconds(1.0)), 0.0);
    EXPECT_NEAR(scale.position(Milliseconds(10.0)), 1.0 / 3.0, 1e-9);
    EXPECT_NEAR(scale.position(Milliseconds(100.0)), 2.0 / 3.0, 1e-9);
    EXPECT_DOUBLE_EQ(scale.position(Milliseconds(1000.0)), 1.0);
}

TEST(LogScale, TimesBeyondAnEndStandThere)
{
    const LogScale scale(Milliseconds(1.0), Milliseconds(100.0));
    EXPECT_DOUBLE_EQ(scale.position(Milliseconds(0.1)), 0.0);
    EXPECT_DOUBLE_EQ(scale.position(Milliseconds(5000.0)), 1.0);
}

TEST(LogScale, TicksArePowersOfTenWithinTheEnds)
{
    const auto ticks = LogScale(Milliseconds(0.2), Milliseconds(2000.0)).ticks();
    ASSERT_EQ(ticks.size(), 4U);
    EXPECT_EQ(tickText(ticks[0]), "1 ms");
    EXPECT_EQ(tickText(ticks[1]), "10 ms");
    EXPECT_EQ(tickText(ticks[2]), "100 ms");
    EXPECT_EQ(tickText(ticks[3]), "1 s");
}

} // namespace
} // namespace quorvel::bench
