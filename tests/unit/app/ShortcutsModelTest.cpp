#include "app/ShortcutsModel.h"

#include <vector>

#include <gtest/gtest.h>

namespace quorvel {
namespace {

using States = ShortcutsModel::States;

TEST(ShortcutsModel, ItBeginsIdle)
{
    EXPECT_EQ(ShortcutsModel().state(), States::idle);
}

TEST(ShortcutsModel, ObserversHearOfEachNewStateUntilTheirTokenGoes)
{
    ShortcutsModel model;
    std::vector<States> heard;
    auto token = model.observeState([&](States state) { heard.push_back(state); });
    model.setState(States::waitingLayoutSelection);
    model.setState(States::idle);
    token.reset();
    model.setState(States::waitingLayoutSelection);
    EXPECT_EQ(heard, (std::vector<States>{States::waitingLayoutSelection, States::idle}));
    EXPECT_EQ(model.state(), States::waitingLayoutSelection);
}

TEST(ShortcutsModel, AnObserverThatIsRemovedByAnotherHearsNothing)
{
    ShortcutsModel model;
    int calls = 0;
    Subscription second;
    const auto first = model.observeState([&](States) { second.reset(); });
    second = model.observeState([&](States) { ++calls; });
    model.setState(States::waitingLayoutSelection);
    EXPECT_EQ(calls, 0);
}

TEST(ShortcutsModel, AnObserverMayOutliveTheModel)
{
    Subscription token;
    {
        ShortcutsModel model;
        token = model.observeState([](States) {});
    }
    token.reset();
    EXPECT_FALSE(token.isActive());
}

} // namespace
} // namespace quorvel
