#include "preferences/PreviewDrawing.h"

#include <optional>
#include <type_traits>
#include <utility>
#include <variant>

namespace quorvel {

namespace {

constexpr Color desktopColor = Color::bytes(38, 44, 56);
constexpr Color gridColor = Color::white().withAlpha(0.12);
constexpr Color windowColor = Color::bytes(236, 238, 242);
constexpr Color windowEdgeColor = Color::black().withAlpha(0.35);
constexpr Color titleColor = Color::bytes(70, 76, 88);

RoundedRectCommand filledRect(const ViewRect& rect, double cornerRadius, const Color& fill)
{
    return {
        .rect = rect,
        .cornerRadius = cornerRadius,
        .cornerStyle = CornerStyle::continuous,
        .backing = Backing::open,
        .fill = fill,
        .stroke = std::nullopt,
        .shadow = std::nullopt,
    };
}

void appendGrid(DrawList& list, const Size& size)
{
    constexpr int spacing = 20;
    for (int x = spacing; x < size.width; x += spacing) {
        list.commands.emplace_back(filledRect({static_cast<double>(x), 0.0, 1.0, size.height}, 0.0, gridColor));
    }
    for (int y = spacing; y < size.height; y += spacing) {
        list.commands.emplace_back(filledRect({0.0, static_cast<double>(y), size.width, 1.0}, 0.0, gridColor));
    }
}

} // namespace

DrawList previewDesktop(const Size& size, PreviewGrid grid)
{
    constexpr double cornerRadius = 8.0;
    DrawList list{{filledRect({0.0, 0.0, size.width, size.height}, cornerRadius, desktopColor)}};
    if (grid == PreviewGrid::shown) {
        appendGrid(list, size);
    }
    return list;
}

void appendSampleWindow(DrawList& list, const ViewRect& frame, const std::string& title)
{
    auto window = filledRect(frame, 8.0, windowColor);
    window.stroke = Stroke{windowEdgeColor, 1.0};
    list.commands.emplace_back(window);
    list.commands.emplace_back(TextCommand{
        .text = title,
        .font = {.size = 13.0, .weight = FontWeight::regular},
        .color = titleColor,
        .box = frame,
        .alignment = TextAlignment::center,
        .shadow = std::nullopt,
    });
}

void appendAt(DrawList& list, const ViewPoint& origin, const DrawList& part)
{
    for (auto command : part.commands) {
        std::visit(
            [&origin](auto& each) {
                auto* rect = [&each] {
                    if constexpr (std::is_same_v<std::remove_reference_t<decltype(each)>, TextCommand>) {
                        return &each.box;
                    } else {
                        return &each.rect;
                    }
                }();
                rect->x += origin.x;
                rect->y += origin.y;
            },
            command);
        list.commands.push_back(std::move(command));
    }
}

FormRow previewRow(PreviewControl preview)
{
    auto description = preview.description;
    return {
        .id = "preview",
        .title = {},
        .control = std::move(preview),
        .help = {},
        .accessibleName = std::move(description),
        .isEnabled = true,
    };
}

} // namespace quorvel
