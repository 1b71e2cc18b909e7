#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "contract/ContractTest.h"
#include "platform/MainQueue.h"

namespace quorvel::contract {
namespace {

using namespace std::chrono_literals;

class MainQueueContract : public ContractTest {
protected:
    std::function<void()> note(std::string text)
    {
        return [this, text = std::move(text)] { notes.push_back(text); };
    }

    std::vector<std::string> notes;
    MainQueue& queue = port(&ContractPorts::mainQueue);
};

TEST_F(MainQueueContract, WorkRunsInALaterTurnInTheOrderOfAdding)
{
    queue.async(note("first"));
    queue.async(note("second"));
    EXPECT_TRUE(notes.empty());

    EXPECT_TRUE(desktop->waitUntil([&] { return notes.size() == 2; }));

    EXPECT_EQ(notes, (std::vector<std::string>{"first", "second"}));
}

TEST_F(MainQueueContract, WorkThatAddsWorkEndsBeforeThatRuns)
{
    queue.async([&] {
        queue.async(note("inner"));
        notes.emplace_back("outer");
    });

    EXPECT_TRUE(desktop->waitUntil([&] { return notes.size() == 2; }));

    EXPECT_EQ(notes, (std::vector<std::string>{"outer", "inner"}));
}

TEST_F(MainQueueContract, DelayedWorkRunsInTheOrderOfItsTime)
{
    queue.after(1h, note("late"));
    queue.after(10ms, note("early"));
    queue.async(note("at once"));

    EXPECT_TRUE(desktop->waitUntil([&] { return notes.size() == 2; }));

    EXPECT_EQ(notes, (std::vector<std::string>{"at once", "early"}));
}

TEST_F(MainQueueContract, DelayedWorkRunsOnce)
{
    queue.after(1ms, note("once"));
    queue.after(20ms, note("end"));

    EXPECT_TRUE(desktop->waitUntil([&] { return !notes.empty() && notes.back() == "end"; }));

    EXPECT_EQ(notes, (std::vector<std::string>{"once", "end"}));
}

TEST_F(MainQueueContract, WorkIsRepeatedUntilItsSubscriptionEnds)
{
    auto repetition = queue.repeat(5ms, note("tick"));
    EXPECT_TRUE(notes.empty());
    EXPECT_TRUE(desktop->waitUntil([&] { return notes.size() == 3; }));

    repetition.reset();
    queue.after(30ms, note("end"));
    EXPECT_TRUE(desktop->waitUntil([&] { return notes.back() == "end"; }));

    EXPECT_EQ(notes, (std::vector<std::string>{"tick", "tick", "tick", "end"}));
}

TEST_F(MainQueueContract, ARepetitionCanEndItself)
{
    Subscription repetition;
    repetition = queue.repeat(1ms, [&] {
        notes.emplace_back("tick");
        repetition.reset();
    });
    queue.after(20ms, note("end"));

    EXPECT_TRUE(desktop->waitUntil([&] { return !notes.empty() && notes.back() == "end"; }));

    EXPECT_EQ(notes, (std::vector<std::string>{"tick", "end"}));
}

TEST_F(MainQueueContract, OtherThreadsAddWorkThatRunsOnTheMainThread)
{
    EXPECT_TRUE(queue.isMainThread());
    bool addedOnMainThread = true;
    std::thread([&] {
        addedOnMainThread = queue.isMainThread();
        queue.async([&] { notes.emplace_back(queue.isMainThread() ? "main" : "other"); });
    }).join();

    EXPECT_TRUE(desktop->waitUntil([&] { return !notes.empty(); }));

    EXPECT_FALSE(addedOnMainThread);
    EXPECT_EQ(notes, (std::vector<std::string>{"main"}));
}

} // namespace
} // namespace quorvel::contract
