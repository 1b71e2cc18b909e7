#include "layouts/LabelPlacement.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/Utf8.h"

namespace quorvel {

namespace {

using enum LabelPosition;

using Candidates = std::array<LabelPosition, 9>;

// In the order of LabelPosition; each row begins with its own anchor.
constexpr std::array<Candidates, 9> candidateTable{{
    {topLeft, top, leading, topRight, center, bottomLeft, trailing, bottom, bottomRight},
    {top, topLeft, topRight, center, leading, trailing, bottom, bottomLeft, bottomRight},
    {topRight, top, trailing, topLeft, center, bottomRight, leading, bottom, bottomLeft},
    {leading, topLeft, bottomLeft, center, top, bottom, trailing, topRight, bottomRight},
    {center, top, bottom, leading, trailing, topLeft, topRight, bottomLeft, bottomRight},
    {trailing, topRight, bottomRight, center, top, bottom, leading, topLeft, bottomLeft},
    {bottomLeft, bottom, leading, bottomRight, center, topLeft, trailing, top, topRight},
    {bottom, bottomLeft, bottomRight, center, leading, trailing, top, topLeft, topRight},
    {bottomRight, bottom, trailing, bottomLeft, center, topRight, leading, top, topLeft},
}};

double anchoredX(LabelPosition anchor, const ScreenRect& bounds, double width, double margin)
{
    switch (anchor) {
    case topLeft:
    case leading:
    case bottomLeft:
        return bounds.minX() + margin;
    case top:
    case center:
    case bottom:
        return bounds.midX() - width / 2.0;
    case topRight:
    case trailing:
    case bottomRight:
        return bounds.maxX() - width - margin;
    }
    return bounds.minX();
}

double anchoredY(LabelPosition anchor, const ScreenRect& bounds, double height, double margin)
{
    switch (anchor) {
    case topLeft:
    case top:
    case topRight:
        return bounds.maxY() - height - margin;
    case leading:
    case center:
    case trailing:
        return bounds.midY() - height / 2.0;
    case bottomLeft:
    case bottom:
    case bottomRight:
        return bounds.minY() + margin;
    }
    return bounds.minY();
}

} // namespace

Size windowLabelSize(double fontSize, std::string_view label, const std::optional<VisibleWindowInfo>& info)
{
    auto longest = characterCount(label);
    if (info) {
        longest = std::max({longest, characterCount(info->appName), characterCount(info->windowTitle)});
    }
    const double width = fontSize * 0.7 * static_cast<double>(longest) * 0.5 + 60.0;
    return {std::max(150.0, width), fontSize * 3.5 + 60.0};
}

ScreenRect anchoredRect(LabelPosition anchor, const ScreenRect& bounds, const Size& size, double margin)
{
    return {anchoredX(anchor, bounds, size.width, margin), anchoredY(anchor, bounds, size.height, margin), size.width,
            size.height};
}

ScreenRect labelRect(LabelPosition anchor, const ScreenRect& bounds, const Size& size)
{
    constexpr double margin = 16.0;
    return anchoredRect(anchor, bounds, size, margin);
}

std::span<const LabelPosition> anchorCandidates(LabelPosition preferred)
{
    return candidateTable[static_cast<std::size_t>(preferred)];
}

bool isOnScreen(const ScreenRect& rect, std::span<const Screen> screens)
{
    constexpr double sufficientShare = 0.8;
    return std::ranges::any_of(screens, [&rect](const Screen& screen) {
        const auto visiblePart = screen.visibleFrame.intersectionWith(rect);
        return screen.visibleFrame.contains(rect) ||
               (!visiblePart.isNull() && visiblePart.area() >= sufficientShare * rect.area());
    });
}

LabelPosition resolveAnchor(LabelPosition preferred, const ScreenRect& bounds, const Size& size,
                            std::span<const ScreenRect> occupied, std::span<const Screen> screens)
{
    for (const auto candidate : anchorCandidates(preferred)) {
        const auto rect = labelRect(candidate, bounds, size);
        // The few screens go first: they are quicker to ask than a long list of labels.
        if (isOnScreen(rect, screens) &&
            std::ranges::none_of(occupied, [&rect](const ScreenRect& other) { return rect.intersects(other); })) {
            return candidate;
        }
    }
    return preferred;
}

} // namespace quorvel
