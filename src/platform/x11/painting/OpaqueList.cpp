#include "platform/x11/painting/OpaqueList.h"

#include <algorithm>
#include <cmath>
#include <variant>
#include <vector>

namespace quorvel::x11 {

namespace {

// Stands for the unknown desktop behind a window: dark, because the colours people choose for labels are light.
constexpr Color backdrop = Color::bytes(28, 28, 30);

// What is fainter than this is not drawn at all.
constexpr double visibleAlpha = 0.02;

constexpr double plateRadius = 4.0;
constexpr double platePadding = 4.0;

Color overBackdrop(const Color& color)
{
    const auto mix = [&](double component, double behind) {
        return component * color.alpha + behind * (1.0 - color.alpha);
    };
    return {mix(color.red, backdrop.red), mix(color.green, backdrop.green), mix(color.blue, backdrop.blue), 1.0};
}

class Conversion {
public:
    void operator()(RoundedRectCommand command)
    {
        if (isOnSolid(command.rect)) {
            result.commands.emplace_back(command);
            return;
        }
        command.shadow.reset();
        makeStrokeOpaque(command);
        if (command.backing == Backing::solid) {
            command.fill = overBackdrop(command.fill.value_or(Color::clear()));
            solids.push_back(command.rect);
        } else {
            command.fill.reset();
        }
        if (command.fill || command.stroke) {
            result.commands.emplace_back(command);
        }
    }

    void operator()(const TextCommand& command)
    {
        if (!command.text.empty() && !isOnSolid(command.box)) {
            addPlate(command.box);
        }
        result.commands.emplace_back(command);
    }

    DrawList result;

private:
    bool isOnSolid(const ViewRect& rect) const
    {
        return std::ranges::any_of(solids, [&](const ViewRect& solid) { return solid.contains(rect); });
    }

    static void makeStrokeOpaque(RoundedRectCommand& command)
    {
        if (command.stroke && (command.stroke->color.alpha < visibleAlpha || command.stroke->width <= 0.0)) {
            command.stroke.reset();
        }
        if (command.stroke) {
            command.stroke->color = overBackdrop(command.stroke->color);
        }
    }

    void addPlate(const ViewRect& box)
    {
        RoundedRectCommand plate;
        plate.rect = {box.x - platePadding, box.y, box.width + 2.0 * platePadding, box.height};
        plate.cornerRadius = plateRadius;
        plate.backing = Backing::solid;
        plate.fill = backdrop;
        solids.push_back(plate.rect);
        result.commands.emplace_back(plate);
    }

    std::vector<ViewRect> solids;
};

} // namespace

DrawList withoutBlending(const DrawList& list)
{
    Conversion conversion;
    for (const auto& command : list.commands) {
        std::visit(conversion, command);
    }
    return std::move(conversion.result);
}

} // namespace quorvel::x11
