// The whole portable program: the bytes are what a person and the other programs do, and after each step nothing may be
// left that belongs to no mode.

#include <cstring>
#include <vector>

#include "tests/fuzz/FuzzTarget.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/app/ModeWalker.h"

namespace quorvel {

namespace {

constexpr std::size_t mostSteps = 200;
constexpr std::size_t bytesOfChoice = 2;

std::vector<WalkStep> stepsOf(std::span<const std::uint8_t> input)
{
    std::vector<WalkStep> steps;
    for (; input.size() > bytesOfChoice && steps.size() < mostSteps; input = input.subspan(bytesOfChoice + 1)) {
        const auto choice = static_cast<std::uint32_t>(input[1] | input[2] << 8);
        steps.push_back({static_cast<WalkStep::Kind>(input[0] % walkStepKinds), choice});
    }
    return steps;
}

} // namespace

void fuzz(std::span<const std::uint8_t> input)
{
    const auto steps = stepsOf(input);
    std::optional<std::string> problem;
    const auto fatalError = fatalErrorOf([&] { problem = ModeWalker().walk(steps); });
    require(!fatalError, fatalError ? fatalError->c_str() : "");
    require(!problem, problem ? problem->c_str() : "");
}

} // namespace quorvel
