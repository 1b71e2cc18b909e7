#include "base/LabelPosition.h"

#include "base/RawValues.h"

namespace quorvel {

namespace {

constexpr RawValues<LabelPosition, 9> rawValues{{{
    {LabelPosition::topLeft, "topLeft"},
    {LabelPosition::top, "top"},
    {LabelPosition::topRight, "topRight"},
    {LabelPosition::leading, "leading"},
    {LabelPosition::center, "center"},
    {LabelPosition::trailing, "trailing"},
    {LabelPosition::bottomLeft, "bottomLeft"},
    {LabelPosition::bottom, "bottom"},
    {LabelPosition::bottomRight, "bottomRight"},
}}};

constexpr RawValues<LabelPosition, 9> titles{{{
    {LabelPosition::topLeft, "Top Left"},
    {LabelPosition::top, "Top"},
    {LabelPosition::topRight, "Top Right"},
    {LabelPosition::leading, "Left"},
    {LabelPosition::center, "Center"},
    {LabelPosition::trailing, "Right"},
    {LabelPosition::bottomLeft, "Bottom Left"},
    {LabelPosition::bottom, "Bottom"},
    {LabelPosition::bottomRight, "Bottom Right"},
}}};

} // namespace

std::string_view rawValue(LabelPosition position)
{
    return rawValues.textOf(position);
}

std::string_view title(LabelPosition position)
{
    return titles.textOf(position);
}

std::optional<LabelPosition> labelPositionFromRawValue(std::string_view text)
{
    return rawValues.caseOf(text);
}

} // namespace quorvel
