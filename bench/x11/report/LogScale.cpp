#include "report/LogScale.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

namespace quorvel::bench {

namespace {

constexpr std::array<double, 4> roundFactors = {1.0, 2.0, 5.0, 10.0};

Milliseconds roundBelow(Milliseconds time)
{
    const double power = std::pow(10.0, std::floor(std::log10(time.count())));
    double found = power;
    for (const double factor : roundFactors) {
        if (factor * power <= time.count()) {
            found = factor * power;
        }
    }
    return Milliseconds(found);
}

Milliseconds roundAbove(Milliseconds time)
{
    const double power = std::pow(10.0, std::floor(std::log10(time.count())));
    const auto* const factor =
        std::ranges::find_if(roundFactors, [&](double candidate) { return candidate * power >= time.count(); });
    return Milliseconds((factor == roundFactors.end() ? 10.0 : *factor) * power);
}

} // namespace

LogScale::LogScale(Milliseconds least, Milliseconds greatest) : first(roundBelow(least)), last(roundAbove(greatest)) {}

double LogScale::position(Milliseconds time) const
{
    return std::clamp(std::log(time / first) / std::log(last / first), 0.0, 1.0);
}

std::vector<Milliseconds> LogScale::ticks() const
{
    std::vector<Milliseconds> ticks;
    for (double exponent = std::ceil(std::log10(first.count()));; ++exponent) {
        const Milliseconds tick(std::pow(10.0, exponent));
        if (tick > last) {
            return ticks;
        }
        ticks.push_back(tick);
    }
}

std::string tickText(Milliseconds tick)
{
    constexpr double millisecondsInSecond = 1000.0;
    return tick.count() < millisecondsInSecond ? fmt::format("{:g} ms", tick.count())
                                               : fmt::format("{:g} s", tick.count() / millisecondsInSecond);
}

} // namespace quorvel::bench
