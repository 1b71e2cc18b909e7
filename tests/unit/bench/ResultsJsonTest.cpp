#include "report/ResultsJson.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/unit/bench/SampleResults.h"

namespace quorvel::bench {
namespace {

Results sample()
{
    return {.cores = 2, .loadBefore = 0.25, .runs = 3, .tasks = {sampleTask()}};
}

TEST(ResultsJson, ResultsSurviveBeingWrittenAndRead)
{
    EXPECT_EQ(fromJson(toJson(sample())), sample());
}

TEST(ResultsJson, ScriptsFindMedianPercentileAndRatioOfEachCell)
{
    const auto cell = nlohmann::json::parse(toJson(sample()))["tasks"][0]["rows"][1]["conditions"]["idle"];
    EXPECT_EQ(cell["median"], 8.0);
    EXPECT_EQ(cell["percentile95"], 12.5);
    EXPECT_EQ(cell["ratio"], 8.0);
    EXPECT_EQ(cell["times"], (nlohmann::json{8.0, 12.5}));
    EXPECT_EQ(cell["misses"], 0);
}

TEST(ResultsJson, WhatNeverHappenedHasMissesAndNoMedian)
{
    const auto cell = nlohmann::json::parse(toJson(sample()))["tasks"][0]["rows"][1]["conditions"]["loaded"];
    EXPECT_EQ(cell["misses"], 2);
    EXPECT_FALSE(cell.contains("median"));
}

TEST(ResultsJson, WhatIsNotInstalledIsNamed)
{
    const auto cell = nlohmann::json::parse(toJson(sample()))["tasks"][0]["rows"][0]["conditions"]["loaded-picom"];
    EXPECT_EQ(cell, (nlohmann::json{{"absent", "picom is not installed"}}));
}

TEST(ResultsJson, OtherTextIsRefused)
{
    EXPECT_THROW(fromJson("{}"), nlohmann::json::exception);
    EXPECT_THROW(fromJson("no JSON"), nlohmann::json::exception);
}

} // namespace
} // namespace quorvel::bench
