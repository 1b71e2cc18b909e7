#include "layouts/LabelBox.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "base/ColorCodec.h"
#include "platform/TextMetrics.h"

namespace quorvel {

namespace {

constexpr double horizontalPadding = 8.0;
constexpr double verticalPadding = 4.0;
constexpr double detailMargin = 4.0; // further room beside and below the details

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

// One shape, so that its shadow is that of fill and border together. The border lies wholly inside the box.
RoundedRectCommand outline(const LabelBox& label, const ViewRect& box)
{
    const double inset = std::max(0.0, label.border.width / 2.0);
    return {
        .rect = box.insetBy(inset, inset),
        .cornerRadius = std::max(0.0, label.cornerRadius - inset),
        .cornerStyle = CornerStyle::circular,
        .backing = Backing::solid,
        .fill = label.backgroundColor,
        .stroke = label.border.width > 0.0 ? std::optional(label.border) : std::nullopt,
        .shadow = label.shadow,
    };
}

TextCommand textCommand(const LabelLine& line, const ViewRect& box)
{
    return {
        .text = line.text,
        .font = line.font,
        .color = line.color,
        .box = box,
        .alignment = TextAlignment::center,
        .shadow = line.shadow,
    };
}

} // namespace

LabelBox LabelBox::withLetter(std::string letter, const OverlayAppearance& appearance,
                              const LabelFallbackColors& fallbackColors)
{
    const auto weight = appearance.isTextBold ? FontWeight::bold : FontWeight::regular;
    return {
        .letter =
            {
                .text = std::move(letter),
                .font = {std::max(0.0, appearance.textSize), weight},
                .color = colorFromHex(appearance.textColorHex).value_or(fallbackColors.text),
                .shadow = std::nullopt,
            },
        .details = {},
        .backgroundColor = colorFromHex(appearance.textBackgroundColorHex).value_or(fallbackColors.background),
        .border = {colorFromHex(appearance.textBorderColorHex).value_or(fallbackColors.border),
                   appearance.textBorderWidth},
        .cornerRadius = appearance.textBorderRadius,
        .shadow = std::nullopt,
    };
}

void LabelBox::appendTo(DrawList& list, const ViewRect& area, LabelPosition anchor, const TextMetrics& metrics) const
{
    const auto letterSize = metrics.measure(letter.text, letter.font);
    auto content = letterSize;
    std::vector<double> detailHeights;
    for (const auto& detail : details) {
        const auto size = metrics.measure(detail.text, detail.font);
        detailHeights.push_back(size.height);
        content.width = std::max(content.width, size.width + 2.0 * detailMargin);
        content.height += size.height;
    }
    if (!details.empty()) {
        content.height += detailMargin;
    }
    const Size boxSize{std::min(content.width + 2.0 * horizontalPadding, area.width),
                       content.height + 2.0 * verticalPadding};
    const auto box = anchored(boxSize, area, anchor);
    list.commands.emplace_back(outline(*this, box));

    auto row = box.insetBy(horizontalPadding, verticalPadding);
    row.height = letterSize.height;
    list.commands.emplace_back(textCommand(letter, row));
    for (std::size_t index = 0; index < details.size(); ++index) {
        row.y += row.height;
        row.height = detailHeights[index];
        list.commands.emplace_back(textCommand(details[index], row.insetBy(detailMargin, 0.0)));
    }
}

} // namespace quorvel
