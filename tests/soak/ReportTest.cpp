#include "soak/Report.h"

#include <gmock/gmock.h>

namespace quorvel::soak {
namespace {

using testing::HasSubstr;

Phase phaseOfFour()
{
    Phase phase{.name = "placements", .latency = "letter to the window in place"};
    for (int number = 1; number <= 4; ++number) {
        phase.intervals.push_back(
            {.cycle = 5 * number,
             .sample = {.residentKibibytes = 20'480,
                        .xResources = {{"WINDOW", 3}, {"PASSIVE GRAB", 12}, {"CURSOR", 1}, {"FONT", 2}},
                        .pixmapBytes = 1536,
                        .descriptors = 10},
             .median = bench::Milliseconds(1.25),
             .percentile95 = bench::Milliseconds(2.5)});
    }
    return phase;
}

TEST(SoakReport, TheCsvHasAColumnForEachKindThatAnyPhaseMet)
{
    auto other = phaseOfFour();
    other.name = "overlay cycles";
    other.intervals.resize(1);
    other.intervals.front().sample.xResources = {{"SyncCounter", 4}};
    EXPECT_THAT(csv({phaseOfFour(), other}),
                testing::AllOf(HasSubstr("95 % ms,CURSOR,FONT,PASSIVE GRAB,SyncCounter,WINDOW\n"),
                               HasSubstr("\nplacements,20,20480,1536,10,0,0,1.250,2.500,1,2,12,0,3\n"),
                               HasSubstr("\noverlay cycles,5,20480,1536,10,0,0,1.250,2.500,0,0,0,4,0\n")));
}

TEST(SoakReport, TheTableCountsKindsWithoutAColumnTogether)
{
    const auto text = markdown({phaseOfFour()}, Judging::exactOnly);
    EXPECT_THAT(text, HasSubstr("## 20 placements\n\nLatency: letter to the window in place.\n"));
    EXPECT_THAT(text, HasSubstr("\n| 5 | 20480 | 3 | 0 | 0 | 0 | 12 | 3 | 1.5 | 10 | 1.25 | 2.50 |\n"));
    EXPECT_THAT(text, HasSubstr("\n| X resources | steady | 18 of 4 kinds, never more at 4 readings |\n"));
}

TEST(SoakReport, ALineOfTheTerminalStandsBelowTheHeadsOfItsColumns)
{
    const auto phase = phaseOfFour();
    const auto head = heading(phase);
    const auto columns = head.substr(head.find_last_of('\n', head.size() - 2) + 1);
    EXPECT_EQ(row(phase.intervals.front()).size(), columns.size());
}

TEST(SoakReport, GrowthIsSaidLoudly)
{
    EXPECT_EQ(line({"descriptors", false, "from 10 to 11 in cycle 5"}),
              "  GREW    descriptors: from 10 to 11 in cycle 5\n");
}

} // namespace
} // namespace quorvel::soak
