#pragma once

// Distances that the panes have in common; points.
namespace quorvel::macos::paneMetrics {

inline constexpr double margin = 20.0;
inline constexpr double columnSpacing = 20.0;
inline constexpr double groupSpacing = 16.0;
inline constexpr double titleSpacing = 6.0;
inline constexpr double cardMargin = 12.0;
inline constexpr double partSpacing = 8.0;
inline constexpr double rowHeight = 36.0;
inline constexpr double helpSpacing = 6.0;

// Lines between a title and its control are hard to follow where a column is wider.
inline constexpr double widestColumn = 620.0;

} // namespace quorvel::macos::paneMetrics
