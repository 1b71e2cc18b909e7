#include "soak/Verdict.h"

#include <functional>

#include <gmock/gmock.h>

namespace quorvel::soak {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

Phase phaseWith(const std::function<void(Interval&)>& change, int intervals = 8)
{
    Phase phase;
    for (int number = 1; number <= intervals; ++number) {
        Interval interval{.cycle = number * 1000,
                          .sample = {.residentKibibytes = 20'000,
                                     .xResources = {{"WINDOW", 3}, {"GC", 2}},
                                     .pixmapBytes = 4096,
                                     .descriptors = 10},
                          .median = bench::Milliseconds(2.0),
                          .percentile95 = bench::Milliseconds(3.0)};
        change(interval);
        phase.intervals.push_back(interval);
    }
    return phase;
}

std::vector<std::string> grown(const Phase& phase, Judging judging = Judging::everything)
{
    std::vector<std::string> quantities;
    for (const auto& verdict : judge(phase, judging)) {
        if (!verdict.isSteady) {
            quantities.push_back(verdict.quantity);
        }
    }
    return quantities;
}

TEST(SoakVerdict, WhatStaysTheSameIsSteady)
{
    const auto verdicts = judge(phaseWith([](Interval&) {}), Judging::everything);
    EXPECT_EQ(verdicts.size(), 7U);
    EXPECT_THAT(verdicts, Each(Field(&Verdict::isSteady, true)));
}

TEST(SoakVerdict, OneResourceMoreAtOneReadingIsGrowthThatNamesItsKind)
{
    const auto phase = phaseWith([](Interval& interval) {
        if (interval.cycle == 7000) {
            ++interval.sample.xResources["GC"];
        }
    });
    EXPECT_THAT(grown(phase), ElementsAre("X resources"));
    EXPECT_THAT(judge(phase, Judging::everything).front().finding, HasSubstr("GC from 2 to 3 in cycle 7000"));
}

TEST(SoakVerdict, AKindOfResourceThatAppearsIsGrowthAlsoWhenAnotherOneGoes)
{
    const auto phase = phaseWith([&](Interval& interval) {
        if (interval.cycle > 5000) {
            interval.sample.xResources = {{"WINDOW", 3}, {"PIXMAP", 1}};
        }
    });
    EXPECT_THAT(grown(phase), ElementsAre("X resources"));
    EXPECT_EQ(judge(phase, Judging::everything).front().finding, "PIXMAP from 0 to 1 in cycle 6000");
}

TEST(SoakVerdict, PixmapBytesAndDescriptorsMustNotRise)
{
    EXPECT_THAT(grown(phaseWith([](Interval& interval) {
                    interval.sample.pixmapBytes += interval.cycle == 8000 ? 4 : 0;
                    interval.sample.descriptors += interval.cycle == 3000 ? 1 : 0;
                })),
                ElementsAre("pixmap bytes", "descriptors"));
}

TEST(SoakVerdict, WhatIsGivenBackMayNotBeTakenAgain)
{
    const auto fewerIn = [](int first, int last) {
        return phaseWith([=](Interval& interval) {
            if (interval.cycle >= first && interval.cycle <= last) {
                --interval.sample.descriptors;
                --interval.sample.xResources["GC"];
            }
        });
    };
    EXPECT_THAT(grown(fewerIn(4000, 8000)), IsEmpty());
    EXPECT_THAT(grown(fewerIn(4000, 6000)), ElementsAre("X resources", "descriptors"));
}

TEST(SoakVerdict, WhatIsThereBeforeTheEndOfTheWarmUpIsNoMeasure)
{
    EXPECT_THAT(grown(phaseWith([](Interval& interval) {
                    if (interval.cycle < 2000) {
                        interval.sample = {};
                        interval.median = bench::Milliseconds(0.1);
                    }
                })),
                IsEmpty());
}

TEST(SoakVerdict, GrabsAndWindowsMustNotBeLeftAtAnyReading)
{
    EXPECT_THAT(grown(phaseWith([](Interval& interval) {
                    interval.sample.grabs = interval.cycle == 1000 ? 1 : 0;
                    interval.sample.visibleWindows = interval.cycle == 4000 ? 2 : 0;
                })),
                ElementsAre("grabs", "windows on the screen"));
}

TEST(SoakVerdict, MemoryMayRiseByTheNoiseButNoFurther)
{
    const auto risenBy = [](std::size_t kibibytes) {
        return phaseWith([kibibytes](Interval& interval) {
            interval.sample.residentKibibytes += interval.cycle > 6000 ? kibibytes : 0;
        });
    };
    EXPECT_THAT(grown(risenBy(memoryNoiseKibibytes)), IsEmpty());
    EXPECT_THAT(grown(risenBy(memoryNoiseKibibytes + 1)), ElementsAre("resident memory"));
}

TEST(SoakVerdict, MemoryMayShrink)
{
    EXPECT_THAT(grown(phaseWith(
                    [](Interval& interval) { interval.sample.residentKibibytes -= interval.cycle > 6000 ? 5000 : 0; })),
                IsEmpty());
}

TEST(SoakVerdict, WhatCyclesLeaveByIntentIsNoGrowth)
{
    constexpr std::size_t perInterval = 1000; // a KiB each of its thousand cycles, nearly
    auto phase = phaseWith([](Interval& interval) {
        interval.sample.residentKibibytes += perInterval * static_cast<std::size_t>(interval.cycle) / 1000;
    });
    EXPECT_THAT(grown(phase), ElementsAre("resident memory"));
    phase.keptBytesPerCycle = 1024;
    EXPECT_THAT(grown(phase), IsEmpty());
    phase.keptBytesPerCycle = 512;
    EXPECT_THAT(grown(phase), ElementsAre("resident memory"));
}

TEST(SoakVerdict, ALatencyThatRisesByMoreThanTheNoiseIsGrowth)
{
    const auto slowedTo = [](double milliseconds) {
        return phaseWith([milliseconds](Interval& interval) {
            if (interval.cycle > 6000) {
                interval.median = bench::Milliseconds(milliseconds);
            }
        });
    };
    EXPECT_THAT(grown(slowedTo(3.0)), IsEmpty()); // 2 ms and a quarter of it and half a millisecond
    EXPECT_THAT(grown(slowedTo(3.1)), ElementsAre("latency"));
}

TEST(SoakVerdict, OneDisturbedIntervalOfAQuarterIsNoGrowth)
{
    EXPECT_THAT(grown(phaseWith(
                    [](Interval& interval) {
                        if (interval.cycle == 11'000) {
                            interval.median = bench::Milliseconds(50.0);
                            interval.sample.residentKibibytes += 5000;
                        }
                    },
                    12)),
                IsEmpty());
}

TEST(SoakVerdict, MemoryAndLatencyAreLeftOutWhereOnlyWhatIsExactIsJudged)
{
    const auto phase = phaseWith([](Interval& interval) {
        interval.sample.residentKibibytes += 1000 * static_cast<std::size_t>(interval.cycle);
        interval.sample.descriptors += interval.cycle > 4000 ? 1 : 0;
    });
    EXPECT_THAT(grown(phase, Judging::exactOnly), ElementsAre("descriptors"));
}

} // namespace
} // namespace quorvel::soak
