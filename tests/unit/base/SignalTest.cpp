#include "base/Signal.h"

#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

using testing::ElementsAre;

TEST(Signal, ObserversAreToldInTheOrderOfTheirRegistration)
{
    std::vector<std::string> told;
    Signal<int> signal;
    const auto first = signal.observe([&](int value) { told.push_back("first " + std::to_string(value)); });
    const auto second = signal.observe([&](int value) { told.push_back("second " + std::to_string(value)); });
    signal.emit(7);
    EXPECT_THAT(told, ElementsAre("first 7", "second 7"));
}

TEST(Signal, AnObserverWhoseTokenIsGoneHearsNothing)
{
    int told = 0;
    Signal<> signal;
    auto token = signal.observe([&] { ++told; });
    token.reset();
    signal.emit();
    EXPECT_EQ(told, 0);
}

TEST(Signal, AnObserverMayEndAnotherWhileTheyAreBeingTold)
{
    int told = 0;
    Signal<> signal;
    Subscription second;
    const auto first = signal.observe([&] { second.reset(); });
    second = signal.observe([&] { ++told; });
    signal.emit();
    EXPECT_EQ(told, 0);
}

TEST(Signal, AnObserverMayDestroyTheSignal)
{
    int told = 0;
    auto signal = std::make_optional<Signal<>>();
    const auto first = signal->observe([&] {
        ++told;
        signal.reset();
    });
    const auto second = signal->observe([&] { ++told; });
    signal->emit();
    EXPECT_FALSE(signal);
    EXPECT_EQ(told, 2);
}

} // namespace
} // namespace quorvel
