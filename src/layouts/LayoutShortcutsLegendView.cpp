#include "layouts/LayoutShortcutsLegendView.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "layouts/FilledBorder.h"
#include "platform/SystemColors.h"
#include "platform/TextMetrics.h"

namespace quorvel {

namespace {

constexpr Font headingFont{11.0, FontWeight::semibold};
constexpr Font digitFont{12.0, FontWeight::bold};
constexpr double padding = 12.0;
constexpr double rowSpacing = 6.0;
constexpr double badgeSide = 20.0;
constexpr double nameOffset = badgeSide + 8.0;

// A text with the box that it needs.
TextCommand measuredText(std::string text, const Font& font, const Color& color, const ViewPoint& origin,
                         const TextMetrics& metrics)
{
    const auto size = metrics.measure(text, font);
    return {
        .text = std::move(text),
        .font = font,
        .color = color,
        .box = ViewRect::of(origin, size),
        .alignment = TextAlignment::leading,
        .shadow = std::nullopt,
    };
}

RoundedRectCommand badgeOf(const LayoutShortcutEntry& entry, const ViewRect& rect, const SystemColors& colors)
{
    return {
        .rect = rect,
        .cornerRadius = 5.0,
        .cornerStyle = CornerStyle::circular,
        .backing = Backing::solid,
        .fill = entry.isActive ? colors.accent() : Color::white().withAlpha(0.15),
        .stroke = std::nullopt,
        .shadow = std::nullopt,
    };
}

TextCommand digitOf(const LayoutShortcutEntry& entry, const ViewRect& badge)
{
    return {
        .text = entry.digit,
        .font = digitFont,
        .color = Color::white(),
        .box = badge,
        .alignment = TextAlignment::center,
        .shadow = std::nullopt,
    };
}

void appendBackground(DrawList& list, const Size& size)
{
    const FilledBorder plate{
        .rect = {0.0, 0.0, size.width, size.height},
        .cornerRadius = 10.0,
        .cornerStyle = CornerStyle::circular,
        .backing = Backing::solid,
        .fill = Color::black().withAlpha(0.78),
        .border = {Color::white().withAlpha(0.12), 1.0},
    };
    plate.appendTo(list);
}

} // namespace

FittedDrawing LayoutShortcutsLegendView::body(const ViewEnvironment& environment) const
{
    auto headingText = measuredText("Jump to layout", headingFont, Color::white().withAlpha(0.6), {padding, padding},
                                    environment.textMetrics);
    double right = headingText.box.maxX();
    double bottom = headingText.box.maxY();
    std::vector<DrawCommand> content{std::move(headingText)};
    for (const auto& entry : entries) {
        const double rowTop = bottom + rowSpacing;
        const Font nameFont{12.0, entry.isActive ? FontWeight::semibold : FontWeight::regular};
        auto name =
            measuredText(entry.name, nameFont, Color::white(), {padding + nameOffset, rowTop}, environment.textMetrics);
        const double rowHeight = std::max(badgeSide, name.box.height);
        const ViewRect badge{padding, rowTop + (rowHeight - badgeSide) / 2.0, badgeSide, badgeSide};
        name.box.height = rowHeight;
        right = std::max(right, name.box.maxX());
        bottom = rowTop + rowHeight;
        content.emplace_back(badgeOf(entry, badge, environment.systemColors));
        content.emplace_back(digitOf(entry, badge));
        content.emplace_back(std::move(name));
    }
    FittedDrawing drawing{.fittingSize = {right + padding, bottom + padding}, .content = {}};
    appendBackground(drawing.content, drawing.fittingSize);
    std::ranges::move(content, std::back_inserter(drawing.content.commands));
    return drawing;
}

} // namespace quorvel
