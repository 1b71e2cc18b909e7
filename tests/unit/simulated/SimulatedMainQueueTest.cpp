#include "platform/simulated/SimulatedMainQueue.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "tests/support/FatalErrors.h"

namespace quorvel {
namespace {

using Seconds = SimulatedMainQueue::Seconds;

class SimulatedMainQueueTest : public testing::Test {
protected:
    std::function<void()> note(std::string text)
    {
        return [this, text = std::move(text)] { notes.push_back(text); };
    }

    Journal journal;
    SimulatedMainQueue queue{journal};
    std::vector<std::string> notes;
};

TEST_F(SimulatedMainQueueTest, ATurnRunsWhatWaitedAndNotWhatThatAdds)
{
    queue.async([&] {
        notes.emplace_back("first");
        queue.async(note("third"));
    });
    queue.async(note("second"));

    EXPECT_EQ(queue.turn(), 2U);
    EXPECT_EQ(notes, (std::vector<std::string>{"first", "second"}));
    EXPECT_EQ(queue.turn(), 1U);
    EXPECT_EQ(notes.back(), "third");
    EXPECT_EQ(queue.turn(), 0U);
}

TEST_F(SimulatedMainQueueTest, DelayedWorkRunsInOrderOfItsTimeOnceTimeHasPassed)
{
    queue.after(Seconds(2.0), note("late"));
    queue.after(Seconds(1.0), note("early"));
    queue.drain();
    EXPECT_TRUE(notes.empty());

    queue.advance(Seconds(1.5));
    EXPECT_EQ(notes, (std::vector<std::string>{"early"}));
    queue.advance(Seconds(0.5));
    EXPECT_EQ(notes, (std::vector<std::string>{"early", "late"}));
    EXPECT_EQ(queue.now(), Seconds(2.0));
}

TEST_F(SimulatedMainQueueTest, ARepetitionCanEndItself)
{
    Subscription repetition;
    repetition = queue.repeat(Seconds(1.0), [&] {
        notes.emplace_back("tick");
        if (notes.size() == 2) {
            repetition.reset();
        }
    });

    queue.advance(Seconds(10.0));

    EXPECT_EQ(notes.size(), 2U);
    EXPECT_EQ(queue.pendingCount(), 0U);
}

TEST_F(SimulatedMainQueueTest, TimeCanGoOnToTheNextWork)
{
    queue.after(Seconds(3.0), note("late"));

    EXPECT_TRUE(queue.advanceToNext());
    EXPECT_EQ(notes, (std::vector<std::string>{"late"}));
    EXPECT_EQ(queue.now(), Seconds(3.0));
    EXPECT_FALSE(queue.advanceToNext());
}

TEST_F(SimulatedMainQueueTest, WorkThatIsOverdueRunsAtOnceAndTimeDoesNotGoBack)
{
    queue.advance(Seconds(5.0));
    queue.after(Seconds(-1.0), note("overdue"));
    queue.advance(Seconds(0.0));

    EXPECT_EQ(notes, (std::vector<std::string>{"overdue"}));
    EXPECT_EQ(queue.now(), Seconds(5.0));
}

TEST_F(SimulatedMainQueueTest, DroppedWorkNeverRunsAndMayAddWorkAsItGoes)
{
    auto owned = std::make_shared<Subscription>([this] { queue.async(note("added by the dropped")); });
    queue.async([this, owned] { notes.emplace_back("dropped"); });
    owned.reset();

    queue.discard();
    queue.drain();

    EXPECT_TRUE(notes.empty());
    EXPECT_EQ(queue.pendingCount(), 0U);
}

TEST_F(SimulatedMainQueueTest, WorkThatNeverEndsIsFatal)
{
    std::function<void()> again = [&] { queue.async(again); };
    again();

    EXPECT_EQ(fatalErrorOf([&] { queue.drain(); }), "The main queue never comes to rest");
    EXPECT_EQ(fatalErrorOf([&] { static_cast<void>(queue.repeat(Seconds(0.0), [] {})); }),
              "A repeated piece of work needs an interval above 0");
}

TEST_F(SimulatedMainQueueTest, OtherThreadsAddWorkForTheMainThread)
{
    bool ranOnMainThread = false;
    bool addedOnMainThread = true;
    std::thread([&] {
        addedOnMainThread = queue.isMainThread();
        queue.async([&] { ranOnMainThread = queue.isMainThread(); });
    }).join();
    EXPECT_FALSE(addedOnMainThread);

    queue.drain();

    EXPECT_TRUE(ranOnMainThread);
}

} // namespace
} // namespace quorvel
