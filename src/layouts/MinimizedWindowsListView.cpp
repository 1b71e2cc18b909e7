#include "layouts/MinimizedWindowsListView.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "platform/TextMetrics.h"

namespace quorvel {

namespace {

constexpr Font titleFont{14.0, FontWeight::bold};
constexpr Font labelFont{18.0, FontWeight::bold};
constexpr Font appNameFont{13.0, FontWeight::semibold};
constexpr Font windowTitleFont{13.0, FontWeight::regular};
constexpr double padding = 16.0;
constexpr double spacing = 6.0;
constexpr double titlePadding = 4.0; // below the title
constexpr double badgePadding = 4.0;
constexpr double badgeWidth = 28.0 + 2.0 * badgePadding;
constexpr double textGap = 8.0;
constexpr double columnGap = 24.0;
constexpr double widestAppName = 180.0;
constexpr double widestWindowTitle = 420.0;

std::size_t dividedUp(std::size_t number, std::size_t divisor)
{
    return (number + divisor - 1) / divisor;
}

// Where everything goes.
struct ListLayout {
    Size title;
    double rowHeight = 0.0;
    std::size_t rows = 0; // in a column
    std::size_t columns = 0;
    double appNameWidth = 0.0;
    double windowTitleWidth = 0.0;

    double rowsTop() const { return padding + title.height + titlePadding + spacing; }
    double textWidth() const { return appNameWidth + (windowTitleWidth > 0.0 ? textGap + windowTitleWidth : 0.0); }
    double columnWidth() const { return badgeWidth + textGap + textWidth(); }

    Size size() const
    {
        const auto rowCount = static_cast<double>(rows);
        const auto columnCount = static_cast<double>(columns);
        const double listWidth = columns == 0 ? 0.0 : columnCount * columnWidth() + (columnCount - 1.0) * columnGap;
        const double rowsHeight =
            rows == 0 ? 0.0 : titlePadding + spacing + rowCount * rowHeight + (rowCount - 1.0) * spacing;
        return {std::max(title.width, listWidth) + 2.0 * padding, title.height + rowsHeight + 2.0 * padding};
    }

    ViewRect row(std::size_t index) const
    {
        const auto columnsBefore = index / rows;
        const auto column = static_cast<double>(columnsBefore);
        const auto line = static_cast<double>(index % rows);
        return {padding + column * (columnWidth() + columnGap), rowsTop() + line * (rowHeight + spacing), columnWidth(),
                rowHeight};
    }
};

void arrangeColumns(ListLayout& layout, std::size_t count, double roomHeight)
{
    const double rowsRoom = roomHeight - layout.rowsTop() - padding;
    const double fitting = std::floor((rowsRoom + spacing) / (layout.rowHeight + spacing));
    layout.columns = dividedUp(count, static_cast<std::size_t>(std::max(fitting, 1.0)));
    layout.rows = layout.columns == 0 ? 0 : dividedUp(count, layout.columns);
}

// Titles give way before names do.
void narrowTexts(ListLayout& layout, double roomWidth)
{
    const auto columnCount = static_cast<double>(std::max<std::size_t>(layout.columns, 1));
    const double columnRoom = (roomWidth - 2.0 * padding - (columnCount - 1.0) * columnGap) / columnCount;
    const double textRoom = std::max(std::floor(columnRoom - badgeWidth - textGap), 0.0);
    layout.appNameWidth = std::min(layout.appNameWidth, textRoom);
    layout.windowTitleWidth = std::clamp(textRoom - layout.appNameWidth - textGap, 0.0, layout.windowTitleWidth);
    layout.title.width = std::min(layout.title.width, std::max(roomWidth - 2.0 * padding, 0.0));
}

ListLayout layoutOf(const MinimizedWindowsListView& view, const TextMetrics& metrics, const Size& room)
{
    ListLayout layout;
    layout.title = metrics.measure(view.title, titleFont);
    double lineHeight = 0.0;
    for (const auto& entry : view.entries) {
        const auto appName = metrics.measure(entry.appName, appNameFont);
        const auto windowTitle = metrics.measure(entry.windowTitle, windowTitleFont);
        const auto label = metrics.measure(entry.label, labelFont);
        lineHeight = std::max({lineHeight, appName.height, windowTitle.height, label.height + 2.0 * badgePadding});
        layout.appNameWidth = std::max(layout.appNameWidth, std::min(appName.width, widestAppName));
        layout.windowTitleWidth = std::max(layout.windowTitleWidth, std::min(windowTitle.width, widestWindowTitle));
    }
    layout.rowHeight = lineHeight;
    arrangeColumns(layout, view.entries.size(), room.height);
    narrowTexts(layout, room.width);
    return layout;
}

// One shape, so that its shadow is that of plate and border together. The border lies wholly inside.
RoundedRectCommand plate(const MinimizedWindowsListView& view, const Size& size)
{
    constexpr double borderWidth = 1.0;
    constexpr double radius = 10.0;
    return {
        .rect = ViewRect{0.0, 0.0, size.width, size.height}.insetBy(borderWidth / 2.0, borderWidth / 2.0),
        .cornerRadius = radius - borderWidth / 2.0,
        .cornerStyle = CornerStyle::circular,
        .backing = Backing::solid,
        .fill = view.bgColor,
        .stroke = Stroke{view.borderColor, borderWidth},
        .shadow = Shadow{Color::black().withAlpha(0.5), 10.0},
    };
}

RoundedRectCommand badge(const MinimizedWindowsListView& view, const ViewRect& rect)
{
    return {
        .rect = rect.insetBy(0.5, 0.5),
        .cornerRadius = 5.5,
        .cornerStyle = CornerStyle::circular,
        .backing = Backing::solid,
        .fill = Color::white().withAlpha(0.1),
        .stroke = Stroke{view.labelBorderColor, 1.0},
        .shadow = std::nullopt,
    };
}

void appendText(DrawList& list, const std::string& text, const Font& font, const Color& color, const ViewRect& box,
                TextAlignment alignment)
{
    if (!text.empty() && box.width > 0.0) {
        list.commands.emplace_back(TextCommand{
            .text = text,
            .font = font,
            .color = color,
            .box = box,
            .alignment = alignment,
            .shadow = std::nullopt,
        });
    }
}

void appendRow(DrawList& list, const MinimizedWindowsListView& view, const MinimizedWindowEntry& entry,
               const ListLayout& layout, const ViewRect& row)
{
    const ViewRect badgeRect{row.x, row.y, badgeWidth, row.height};
    const ViewRect appName{badgeRect.maxX() + textGap, row.y, layout.appNameWidth, row.height};
    const ViewRect windowTitle{appName.maxX() + textGap, row.y, layout.windowTitleWidth, row.height};
    list.commands.emplace_back(badge(view, badgeRect));
    appendText(list, entry.label, labelFont, view.labelColor, badgeRect, TextAlignment::center);
    appendText(list, entry.appName, appNameFont, view.appNameColor, appName, TextAlignment::leading);
    appendText(list, entry.windowTitle, windowTitleFont, view.windowTitleColor, windowTitle, TextAlignment::leading);
}

} // namespace

FittedDrawing MinimizedWindowsListView::body(const ViewEnvironment& environment, const Size& room) const
{
    const auto layout = layoutOf(*this, environment.textMetrics, room);
    FittedDrawing drawing{.fittingSize = layout.size(), .content = {}};
    auto& list = drawing.content;
    list.commands.emplace_back(plate(*this, drawing.fittingSize));
    const ViewRect titleBox{padding, padding, layout.title.width, layout.title.height};
    appendText(list, title, titleFont, titleColor, titleBox, TextAlignment::leading);
    for (std::size_t index = 0; index < entries.size(); ++index) {
        appendRow(list, *this, entries[index], layout, layout.row(index));
    }
    return drawing;
}

} // namespace quorvel
