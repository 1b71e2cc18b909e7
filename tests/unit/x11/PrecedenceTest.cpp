#include "platform/x11/Precedence.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"

namespace quorvel::x11 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PrecedenceTest : public testing::Test {
protected:
    void later(const std::string& name)
    {
        precedence.afterwards([this, name] { done.push_back(name); });
    }

    void advance(double milliseconds) { queue.advance(SimulatedMainQueue::Seconds(milliseconds / 1000.0)); }

    Journal journal;
    SimulatedMainQueue queue{journal};
    Precedence precedence{queue};
    std::vector<std::string> done;
};

TEST_F(PrecedenceTest, WorkIsDoneInTheNextTurnWhenNobodyWaits)
{
    later("first");
    later("second");
    EXPECT_THAT(done, IsEmpty());
    queue.turn();
    EXPECT_THAT(done, ElementsAre("first", "second"));
}

TEST_F(PrecedenceTest, WorkWaitsForTheLastClaim)
{
    auto first = precedence.claim();
    auto second = precedence.claim();
    later("work");
    queue.drain();
    first.reset();
    queue.drain();
    EXPECT_THAT(done, IsEmpty());
    second.reset();
    EXPECT_THAT(done, IsEmpty()) << "not from within a call";
    queue.drain();
    EXPECT_THAT(done, ElementsAre("work"));
}

TEST_F(PrecedenceTest, WhatIsClaimedByWorkOfAnEarlierTurnGoesFirst)
{
    Subscription claim;
    queue.async([&] { claim = precedence.claim(); });
    later("work");
    queue.drain();
    EXPECT_THAT(done, IsEmpty());
    claim.reset();
    queue.drain();
    EXPECT_THAT(done, ElementsAre("work"));
}

TEST_F(PrecedenceTest, AClaimHoldsWorkUpForAFrameOfADisplayAtMost)
{
    const auto claim = precedence.claim();
    later("first");
    advance(15.0);
    later("second");
    EXPECT_THAT(done, IsEmpty());
    advance(1.5);
    EXPECT_THAT(done, ElementsAre("first", "second"));
}

TEST_F(PrecedenceTest, EachWaitHasItsOwnEnd)
{
    auto claim = precedence.claim();
    later("first");
    advance(10.0);
    claim.reset();
    queue.drain();
    claim = precedence.claim();
    later("second");
    advance(10.0);
    EXPECT_THAT(done, ElementsAre("first"));
    advance(10.0);
    EXPECT_THAT(done, ElementsAre("first", "second"));
}

} // namespace
} // namespace quorvel::x11
