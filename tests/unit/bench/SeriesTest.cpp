#include "report/Series.h"

#include <cmath>

#include <gtest/gtest.h>

#include "tests/unit/bench/SampleResults.h"

namespace quorvel::bench {
namespace {

TEST(Series, TheMedianOfAnOddNumberIsTheMiddleOne)
{
    EXPECT_EQ(seriesOf({5.0, 1.0, 3.0}).median(), Milliseconds(3.0));
}

TEST(Series, TheMedianOfAnEvenNumberIsTheLesserOfTheMiddleTwo)
{
    EXPECT_EQ(seriesOf({4.0, 1.0, 3.0, 2.0}).median(), Milliseconds(2.0));
}

TEST(Series, NineteenOfTwentyTimesDoNotExceedThe95thPercentile)
{
    Series series;
    for (int time = 20; time >= 1; --time) {
        series.add(Milliseconds(time));
    }
    EXPECT_EQ(series.percentile95(), Milliseconds(19.0));
}

TEST(Series, TheEndsAreTheLeastAndTheGreatestTime)
{
    const auto series = seriesOf({2.0, 9.0, 4.0});
    EXPECT_EQ(series.quantile(0.0), Milliseconds(2.0));
    EXPECT_EQ(series.quantile(1.0), Milliseconds(9.0));
}

TEST(Series, WithoutTimesThereIsNoMedian)
{
    Series series;
    series.addMiss();
    EXPECT_TRUE(series.isEmpty());
    EXPECT_TRUE(std::isnan(series.median().count()));
}

} // namespace
} // namespace quorvel::bench
