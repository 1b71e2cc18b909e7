#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace quorvel::bench {

enum class Load {
    idle,
    busyCores, // as many busy processes as there are cores
};
enum class Compositing { off, on };

// What a measurement is taken under.
struct Condition {
    Load load = Load::idle;
    Compositing compositing = Compositing::off;

    bool operator==(const Condition&) const = default;
};

// In the order of the columns of a table.
inline constexpr std::array allConditions = {
    Condition{Load::idle, Compositing::off},
    Condition{Load::idle, Compositing::on},
    Condition{Load::busyCores, Compositing::off},
    Condition{Load::busyCores, Compositing::on},
};

constexpr std::size_t indexOf(const Condition& condition)
{
    return (condition.load == Load::busyCores ? 2U : 0U) + (condition.compositing == Compositing::on ? 1U : 0U);
}

// "idle", "idle-picom", "loaded", "loaded-picom".
std::string nameOf(const Condition& condition);

} // namespace quorvel::bench
