// Random walks through all modes, the preferences and whatever happens to windows and screens meanwhile.

#include <array>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "app/MainController.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/app/AppScreens.h"
#include "tests/unit/app/ModeWalker.h"
#include "tests/unit/app/Shrinking.h"

namespace quorvel {
namespace {

constexpr std::size_t walkCount = 60;
constexpr std::size_t stepsPerWalk = 200;

std::optional<std::string> problemOf(const std::vector<WalkStep>& steps)
{
    std::optional<std::string> problem;
    const auto fatalError = fatalErrorOf([&] { problem = ModeWalker().walk(steps); });
    return fatalError ? "fatal error: " + *fatalError : problem;
}

std::string text(const std::vector<WalkStep>& steps)
{
    std::string result;
    for (const auto& step : steps) {
        result += "\n  " + textOf(step);
    }
    return result;
}

std::vector<WalkStep> randomSteps(std::uint32_t seed)
{
    constexpr std::uint32_t furtherModeKeys = 8; // a mode takes many keys until it comes to something
    std::mt19937 random(seed);
    std::vector<WalkStep> steps(stepsPerWalk);
    for (auto& step : steps) {
        const auto kind = random() % (walkStepKinds + furtherModeKeys);
        step = {kind < walkStepKinds ? static_cast<WalkStep::Kind>(kind) : WalkStep::Kind::modeKey,
                static_cast<std::uint32_t>(random())};
    }
    return steps;
}

TEST(ModeWalk, NothingIsLeftAfterAnyExit)
{
    for (std::uint32_t seed = 1; seed <= walkCount; ++seed) {
        const auto steps = randomSteps(seed);
        if (problemOf(steps)) {
            const auto fewest =
                shrunk(steps, [](const std::vector<WalkStep>& shorter) { return problemOf(shorter).has_value(); });
            FAIL() << "seed " << seed << ": " << *problemOf(fewest) << " after" << text(fewest);
        }
    }
}

// So that the walks go where they should: each mode is entered and left a good many times.
TEST(ModeWalk, TheWalksComeThroughAllModes)
{
    ModeWalker::Visits visits;
    for (std::uint32_t seed = 1; seed <= walkCount; ++seed) {
        ModeWalker walker;
        walker.walk(randomSteps(seed));
        visits += walker.visits();
    }
    constexpr std::size_t enough = 100;
    EXPECT_GT(visits.overlay, enough);
    EXPECT_GT(visits.moveResize, enough);
    EXPECT_GT(visits.focusSwitcher, enough);
    EXPECT_GT(visits.preferences, enough);
    EXPECT_GT(visits.snaps, 20U);
    EXPECT_GT(visits.exits, enough);
}

TEST(Shrinking, KeepsOnlyWhatIsNeeded)
{
    std::vector<int> numbers(1000);
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        numbers[index] = static_cast<int>(index);
    }
    const auto fails = [](const std::vector<int>& tried) {
        return std::ranges::count_if(tried, [](int number) { return number % 300 == 7; }) >= 3;
    };
    EXPECT_EQ(shrunk(numbers, fails).size(), 3U);
}

} // namespace
} // namespace quorvel
