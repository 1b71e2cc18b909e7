#include "report/ResultsTable.h"

#include <gtest/gtest.h>

#include "tests/unit/bench/SampleResults.h"

namespace quorvel::bench {
namespace {

TEST(ResultsTable, AllConditionsStandInOneAlignedTable)
{
    EXPECT_EQ(tableOf({.tasks = {sampleTask()}}), &R"(
| ms: median (95th percentile) ratio | idle              | idle-picom        | loaded                           | loaded-picom           |
|------------------------------------|-------------------|-------------------|----------------------------------|------------------------|
| **Key to window in place**         |                   |                   |                                  |                        |
| Quorvel: letter                    | 1.00 (2.00) 1.00× | 20.0 (20.0) 1.00× | 4.00 (4.00) 1.00×, 1 of 2 missed | picom is not installed |
| wmctrl (sxhkd)                     | 8.00 (12.5) 8.00× | 153 (153) 7.66×   | never happened                   | picom is not installed |
)"[1]);
}

TEST(ResultsTable, BudgetsAreListedWithWhatCameOfThem)
{
    EXPECT_EQ(budgetListOf({.tasks = {sampleTask()}}), "- met: at most 3 ms: 1.00, limit 3.00\n"
                                                       "- NOT MET: half of wmctrl's: 0.60, limit 0.50\n");
}

TEST(ResultsTable, TimesHaveThreeDigitsWorthReading)
{
    EXPECT_EQ(timeText(Milliseconds(0.934)), "0.93");
    EXPECT_EQ(timeText(Milliseconds(9.996)), "10.0");
    EXPECT_EQ(timeText(Milliseconds(99.94)), "99.9");
    EXPECT_EQ(timeText(Milliseconds(99.96)), "100");
    EXPECT_EQ(timeText(Milliseconds(390.4)), "390");
}

} // namespace
} // namespace quorvel::bench
