#include "system/KeyQueue.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

class KeyQueueTest : public testing::Test {
protected:
    static CapturedKey key(const std::string& character) { return {0, character, 0}; }

    SimulatedDesktop desktop;
    std::vector<std::string> done;

    // Each key causes something that is done in a later turn.
    KeyQueue queue{desktop.mainQueue, [this](const CapturedKey& key) {
                       done.push_back(key.character);
                       desktop.mainQueue.async([this, key] { done.push_back("after " + key.character); });
                   }};
};

TEST_F(KeyQueueTest, EachKeyWaitsForWhatTheOneBeforeItHasCaused)
{
    queue.deliverLater(key("a"));
    queue.deliverLater(key("b"));
    queue.deliverLater(key("c"));
    EXPECT_EQ(done, std::vector<std::string>());
    desktop.drain();
    EXPECT_EQ(done, (std::vector<std::string>{"a", "after a", "b", "after b", "c", "after c"}));
}

TEST_F(KeyQueueTest, AKeyIsDeliveredAtOnceUnlessTheOneBeforeItIsUnderWay)
{
    queue.deliver(key("a"));
    EXPECT_EQ(done, std::vector<std::string>{"a"});
    queue.deliver(key("b"));
    EXPECT_EQ(done, std::vector<std::string>{"a"});
    desktop.drain();
    EXPECT_EQ(done, (std::vector<std::string>{"a", "after a", "b", "after b"}));
    queue.deliver(key("c"));
    EXPECT_EQ(done.back(), "c");
}

TEST_F(KeyQueueTest, AKeyThatIsWaitingWhenAnotherIsToBeDeliveredAtOnceGoesFirst)
{
    queue.deliverLater(key("a"));
    queue.deliver(key("b"));
    desktop.drain();
    EXPECT_EQ(done, (std::vector<std::string>{"a", "after a", "b", "after b"}));
}

TEST_F(KeyQueueTest, ATurnThatGetsLostTakesItsKeyAlongAndNoOther)
{
    queue.deliverLater(key("a"));
    desktop.mainQueue.discard();
    queue.deliverLater(key("b"));
    queue.deliverLater(key("c"));
    desktop.drain();
    EXPECT_EQ(done, (std::vector<std::string>{"b", "after b", "c", "after c"}));
}

} // namespace
} // namespace quorvel
