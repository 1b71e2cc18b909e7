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

} // namespace

std::string_view rawValue(LabelPosition position)
{
    return rawValues.textOf(position);
}

std::optional<LabelPosition> labelPositionFromRawValue(std::string_view text)
{
    return rawValues.caseOf(text);
}

} // namespace quorvel
