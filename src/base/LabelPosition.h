#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quorvel {

// Where a label sits inside a frame: three rows by three columns. Settings keep the raw value.
enum class LabelPosition { topLeft, top, topRight, leading, center, trailing, bottomLeft, bottom, bottomRight };

inline constexpr std::array allLabelPositions{
    LabelPosition::topLeft,    LabelPosition::top,    LabelPosition::topRight,
    LabelPosition::leading,    LabelPosition::center, LabelPosition::trailing,
    LabelPosition::bottomLeft, LabelPosition::bottom, LabelPosition::bottomRight,
};

std::string_view rawValue(LabelPosition position);

// The name that preferences show.
std::string_view title(LabelPosition position);

// Exact and case-sensitive; nothing for any other text.
std::optional<LabelPosition> labelPositionFromRawValue(std::string_view text);

} // namespace quorvel
