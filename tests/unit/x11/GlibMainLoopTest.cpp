#include "platform/x11/GlibMainLoop.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class GlibMainLoopTest : public testing::Test {
protected:
    GlibMainLoop loop;
    std::vector<int> calls;
};

TEST_F(GlibMainLoopTest, WorkRunsLaterAndInOrder)
{
    loop.async([&] { calls.push_back(1); });
    loop.async([&] { calls.push_back(2); });
    EXPECT_TRUE(calls.empty());
    loop.turn();
    EXPECT_THAT(calls, ElementsAre(1, 2));
}

TEST_F(GlibMainLoopTest, WorkAddedByWorkWaitsForTheNextTurn)
{
    loop.async([&] { loop.async([&] { calls.push_back(3); }); });
    loop.async([&] { calls.push_back(2); });
    loop.turn();
    EXPECT_THAT(calls, ElementsAre(2));
    loop.turn();
    EXPECT_THAT(calls, ElementsAre(2, 3));
}

TEST_F(GlibMainLoopTest, WorkThatRunsTheLoopItselfHoldsNobodyUp)
{
    loop.async([&] {
        loop.turn();
        calls.push_back(2);
    });
    loop.async([&] { calls.push_back(1); });
    loop.turn();
    EXPECT_THAT(calls, ElementsAre(1, 2));
}

TEST_F(GlibMainLoopTest, AnotherThreadWakesTheLoop)
{
    std::thread other([&] {
        loop.async([&] {
            EXPECT_TRUE(loop.isMainThread());
            loop.quit(3);
        });
        EXPECT_FALSE(loop.isMainThread());
    });
    EXPECT_EQ(loop.run(), 3);
    other.join();
}

TEST_F(GlibMainLoopTest, QuittingBeforeTheStartEndsAtOnce)
{
    loop.quit(4);
    EXPECT_EQ(loop.run(), 4);
}

TEST_F(GlibMainLoopTest, DelayedWorkRunsInTheOrderOfItsTimes)
{
    loop.after(1h, [&] { calls.push_back(3); });
    loop.after(1ms, [&] { calls.push_back(1); });
    loop.after(1ms, [&] {
        calls.push_back(2);
        loop.quit(0);
    });
    loop.run();
    EXPECT_THAT(calls, ElementsAre(1, 2));
}

TEST_F(GlibMainLoopTest, ARepetitionEndsWithItsToken)
{
    Subscription repetition;
    repetition = loop.repeat(100us, [&] {
        calls.push_back(1);
        if (calls.size() == 3) {
            repetition.reset();
            loop.after(1ms, [&] { loop.quit(0); });
        }
    });
    loop.run();
    EXPECT_EQ(calls.size(), 3U);
}

} // namespace
} // namespace quorvel::x11
