#include "preferences/LayoutThumbnail.h"

#include <optional>

#include "platform/SystemColors.h"

namespace quorvel::layoutThumbnail {

namespace {

constexpr PictureRect frameArea = PictureRect{0.0, 0.0, size.width, size.height}.insetBy(6.0, 6.0);
constexpr Color background{0.22, 0.15, 0.06, 1.0};

std::vector<UnitRect> placeholderFrames()
{
    constexpr double near = 0.08;
    constexpr double far = 0.54;
    constexpr double side = 0.38;
    return {{near, near, side, side}, {far, near, side, side}, {near, far, side, side}, {far, far, side, side}};
}

// Draw lists count from the top.
ViewRect viewRect(const PictureRect& rect)
{
    return {rect.x, size.height - rect.maxY(), rect.width, rect.height};
}

RoundedRectCommand roundedRect(const ViewRect& rect, double cornerRadius, const Color& fill,
                               const std::optional<Stroke>& stroke)
{
    return {.rect = rect,
            .cornerRadius = cornerRadius,
            .cornerStyle = CornerStyle::circular,
            .backing = Backing::solid,
            .fill = fill,
            .stroke = stroke,
            .shadow = std::nullopt};
}

} // namespace

std::vector<PictureRect> frameRects(const std::vector<UnitRect>& frames)
{
    std::vector<PictureRect> rects;
    for (const auto& frame : frames.empty() ? placeholderFrames() : frames) {
        rects.push_back({frameArea.minX() + frame.x * frameArea.width, frameArea.minY() + frame.y * frameArea.height,
                         frame.width * frameArea.width, frame.height * frameArea.height});
    }
    return rects;
}

DrawList drawing(const std::vector<UnitRect>& frames, const SystemColors& systemColors)
{
    constexpr double backgroundRadius = 8.0;
    constexpr double frameRadius = 3.0;
    const auto fill = systemColors.yellow().withAlpha(0.15);
    const Stroke stroke{systemColors.yellow().withAlpha(0.9), 1.0};
    DrawList list;
    list.commands.emplace_back(
        roundedRect({0.0, 0.0, size.width, size.height}, backgroundRadius, background, std::nullopt));
    for (const auto& rect : frameRects(frames)) {
        list.commands.emplace_back(roundedRect(viewRect(rect), frameRadius, fill, stroke));
    }
    return list;
}

} // namespace quorvel::layoutThumbnail
