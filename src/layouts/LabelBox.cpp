#include "layouts/LabelBox.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "base/ColorCodec.h"
#include "layouts/FilledBorder.h"
#include "platform/TextMetrics.h"

namespace quorvel {

namespace {

constexpr double horizontalPadding = 8.0;
constexpr double verticalPadding = 4.0;

// How far along the free space between a box and its area an anchor puts the box: 0 at the left or top, 1 at the right
// or bottom.
struct Share {
    double x = 0.0;
    double y = 0.0;
};

Share freeSpaceBefore(LabelPosition anchor)
{
    switch (anchor) {
    case LabelPosition::topLeft:
        return {0.0, 0.0};
    case LabelPosition::top:
        return {0.5, 0.0};
    case LabelPosition::topRight:
        return {1.0, 0.0};
    case LabelPosition::leading:
        return {0.0, 0.5};
    case LabelPosition::center:
        return {0.5, 0.5};
    case LabelPosition::trailing:
        return {1.0, 0.5};
    case LabelPosition::bottomLeft:
        return {0.0, 1.0};
    case LabelPosition::bottom:
        return {0.5, 1.0};
    case LabelPosition::bottomRight:
        return {1.0, 1.0};
    }
    return {};
}

ViewRect anchored(const Size& size, const ViewRect& area, LabelPosition anchor)
{
    const auto share = freeSpaceBefore(anchor);
    return {std::round(area.x + (area.width - size.width) * share.x),
            std::round(area.y + (area.height - size.height) * share.y), size.width, size.height};
}

} // namespace

LabelBox LabelBox::withLetter(std::string letter, const OverlayAppearance& appearance,
                              const LabelFallbackColors& fallbackColors)
{
    const auto weight = appearance.isTextBold ? FontWeight::bold : FontWeight::regular;
    return {
        .lines = {{
            .text = std::move(letter),
            .font = {std::max(0.0, appearance.textSize), weight},
            .color = colorFromHex(appearance.textColorHex).value_or(fallbackColors.text),
            .shadow = std::nullopt,
        }},
        .backgroundColor = colorFromHex(appearance.textBackgroundColorHex).value_or(fallbackColors.background),
        .border = {colorFromHex(appearance.textBorderColorHex).value_or(fallbackColors.border),
                   appearance.textBorderWidth},
        .cornerRadius = appearance.textBorderRadius,
        .shadow = std::nullopt,
    };
}

void LabelBox::appendTo(DrawList& list, const ViewRect& area, LabelPosition anchor, const TextMetrics& metrics) const
{
    Size content;
    std::vector<double> lineHeights;
    lineHeights.reserve(lines.size());
    for (const auto& line : lines) {
        const auto size = metrics.measure(line.text, line.font);
        lineHeights.push_back(size.height);
        content.width = std::max(content.width, size.width);
        content.height += size.height;
    }
    const Size boxSize{std::min(content.width + 2.0 * horizontalPadding, area.width),
                       content.height + 2.0 * verticalPadding};
    const auto box = anchored(boxSize, area, anchor);
    FilledBorder{
        .rect = box,
        .cornerRadius = cornerRadius,
        .cornerStyle = CornerStyle::circular,
        .backing = Backing::solid,
        .fill = backgroundColor,
        .border = border,
        .shadow = shadow,
    }
        .appendTo(list);

    auto textBox = box.insetBy(horizontalPadding, verticalPadding);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const auto& line = lines[index];
        textBox.height = lineHeights[index];
        list.commands.emplace_back(TextCommand{
            .text = line.text,
            .font = line.font,
            .color = line.color,
            .box = textBox,
            .alignment = TextAlignment::center,
            .shadow = line.shadow,
        });
        textBox.y += lineHeights[index];
    }
}

} // namespace quorvel
