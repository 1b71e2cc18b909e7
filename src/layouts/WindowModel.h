#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string_view>
#include <utility>

namespace quorvel {

// One frame of a layout, in fractions of a screen's visible frame, origin at its bottom left, y up. The fields bear the
// names that they have in the catalogue file.
//
//   (0, 1) ┌─────────┬────────┐ (1, 1)
//          │         │  top_right
//          │         ├──────▪ │
//          │         ▪────────┤
//          │  bottom_left     │
//   (0, 0) └─────────┴────────┘ (1, 0)
struct WindowModel {
    // NOLINTBEGIN(readability-identifier-naming)
    double bottom_left_x = 0.0;
    double bottom_left_y = 0.0;
    double top_right_x = 0.0;
    double top_right_y = 0.0;
    // NOLINTEND(readability-identifier-naming)

    bool operator==(const WindowModel&) const = default;
};

inline constexpr std::array<std::pair<std::string_view, double WindowModel::*>, 4> windowModelFields{{
    {"bottom_left_x", &WindowModel::bottom_left_x},
    {"bottom_left_y", &WindowModel::bottom_left_y},
    {"top_right_x", &WindowModel::top_right_x},
    {"top_right_y", &WindowModel::top_right_y},
}};

} // namespace quorvel

template <>
struct std::hash<quorvel::WindowModel> {
    std::size_t operator()(const quorvel::WindowModel& window) const noexcept
    {
        std::size_t result = 0;
        for (const auto& [name, field] : quorvel::windowModelFields) {
            result = result * 31 + std::hash<double>()(window.*field);
        }
        return result;
    }
};
