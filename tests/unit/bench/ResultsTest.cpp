#include "report/Results.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/unit/bench/SampleResults.h"

namespace quorvel::bench {
namespace {

TEST(Results, EachConditionHasItsColumn)
{
    for (std::size_t index = 0; index < allConditions.size(); ++index) {
        EXPECT_EQ(indexOf(allConditions.at(index)), index);
    }
}

TEST(Results, ARatioComparesMediansUnderTheSameCondition)
{
    const auto task = sampleTask();
    EXPECT_DOUBLE_EQ(ratioToFirst(task, task.rows[0], idle).value(), 1.0);
    EXPECT_DOUBLE_EQ(ratioToFirst(task, task.rows[1], idle).value(), 8.0);
    EXPECT_DOUBLE_EQ(ratioToFirst(task, task.rows[1], idleComposited).value(), 7.66);
}

TEST(Results, ThereIsNoRatioWithoutTimes)
{
    const auto task = sampleTask();
    EXPECT_FALSE(ratioToFirst(task, task.rows[1], loaded));
    EXPECT_FALSE(ratioToFirst(task, task.rows[1], loadedComposited));
}

TEST(Results, ABudgetInMillisecondsIsHeldAgainstTheMedian)
{
    const auto budgets =
        checkedBudgets({{"at most 1 ms", 1.0, 0, {}, idle}, {"at most 3 ms", 3.0, 0, {}, loaded}}, sampleTask().rows);
    ASSERT_EQ(budgets.size(), 2U);
    EXPECT_EQ(budgets[0], (Budget{"at most 1 ms", 1.0, 1.0}));
    EXPECT_TRUE(budgets[0].isMet());
    EXPECT_EQ(budgets[1], (Budget{"at most 3 ms", 3.0, 4.0}));
    EXPECT_FALSE(budgets[1].isMet());
}

TEST(Results, ABudgetWithAReferenceIsHeldAgainstTheRatioOfMedians)
{
    const auto budgets = checkedBudgets({{"a third of wmctrl's", 1.0 / 3.0, 0, 1, idle}}, sampleTask().rows);
    ASSERT_EQ(budgets.size(), 1U);
    EXPECT_DOUBLE_EQ(budgets[0].value, 0.125);
    EXPECT_TRUE(budgets[0].isMet());
}

TEST(Results, ABudgetOnWhatWasNotMeasuredIsPassedOver)
{
    const auto rows = sampleTask().rows;
    EXPECT_TRUE(checkedBudgets({{"at most 9 ms", 9.0, 0, {}, loadedComposited}}, rows).empty());
    EXPECT_TRUE(checkedBudgets({{"half of wmctrl's", 0.5, 0, 1, loaded}}, rows).empty());
}

TEST(Results, RunsUnderOtherConditionsAreCombined)
{
    const Results whole{.runs = 3, .tasks = {sampleTask()}};
    auto first = whole;
    auto second = whole;
    for (std::size_t row = 0; row < 2; ++row) {
        first.tasks[0].rows[row].under(loaded) = {{}, Cell::notMeasured};
        second.tasks[0].rows[row].under(idle) = {{}, Cell::notMeasured};
    }
    second.tasks[0].budgets = {{"another one", 2.0, 1.0}};
    const auto all = combined({first, second});
    EXPECT_EQ(all.tasks[0].rows, whole.tasks[0].rows);
    EXPECT_EQ(all.tasks[0].budgets.size(), whole.tasks[0].budgets.size() + 1);
}

TEST(Results, RunsOfOtherTasksOrContestantsAreNotCombined)
{
    const Results run{.tasks = {sampleTask()}};
    auto otherTask = run;
    otherTask.tasks[0].title = "another task";
    auto otherContestant = run;
    otherContestant.tasks[0].rows[1].name = "another tool";
    EXPECT_THROW(combined({run, otherTask}), std::invalid_argument);
    EXPECT_THROW(combined({run, otherContestant}), std::invalid_argument);
    EXPECT_THROW(combined({run, Results{}}), std::invalid_argument);
}

TEST(Results, OneBudgetThatIsNotMetIsEnough)
{
    Results results{.tasks = {sampleTask()}};
    EXPECT_FALSE(allBudgetsMet(results));
    results.tasks[0].budgets.pop_back();
    EXPECT_TRUE(allBudgetsMet(results));
}

} // namespace
} // namespace quorvel::bench
