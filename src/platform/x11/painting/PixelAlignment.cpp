#include "platform/x11/painting/PixelAlignment.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "base/DrawableCommands.h"

namespace quorvel::x11 {

namespace {

struct Alignment {
    double xFactor;
    double yFactor;
    double scale;

    DrawCommand operator()(RoundedRectCommand command) const
    {
        const double oldHalf = command.stroke ? command.stroke->width / 2.0 : 0.0;
        if (command.stroke && command.stroke->width > 0.0) {
            command.stroke->width = std::max(std::round(command.stroke->width * scale), 1.0);
        }
        const double newHalf = command.stroke ? command.stroke->width / 2.0 : 0.0;
        const double left = std::round((command.rect.minX() - oldHalf) * xFactor);
        const double top = std::round((command.rect.minY() - oldHalf) * yFactor);
        const double right = std::round((command.rect.maxX() + oldHalf) * xFactor);
        const double bottom = std::round((command.rect.maxY() + oldHalf) * yFactor);
        command.rect = {left + newHalf, top + newHalf, std::max(right - left - 2.0 * newHalf, 0.0),
                        std::max(bottom - top - 2.0 * newHalf, 0.0)};
        command.cornerRadius *= scale;
        scaleShadow(command.shadow);
        return command;
    }

    DrawCommand operator()(TextCommand command) const
    {
        const double left = std::floor(command.box.minX() * xFactor);
        const double top = std::floor(command.box.minY() * yFactor);
        const double right = std::ceil(command.box.maxX() * xFactor);
        const double bottom = std::ceil(command.box.maxY() * yFactor);
        command.box = {left, top, right - left, bottom - top};
        scaleShadow(command.shadow);
        return command;
    }

private:
    void scaleShadow(std::optional<Shadow>& shadow) const
    {
        if (shadow) {
            shadow->blurRadius *= scale;
        }
    }
};

double factor(double points, int pixels, double scale)
{
    return points > 0.0 ? pixels / points : scale;
}

} // namespace

DrawList alignedToPixels(const DrawList& list, Size viewSize, PixelSize pixelSize, double scale)
{
    const Alignment alignment{factor(viewSize.width, pixelSize.width, scale),
                              factor(viewSize.height, pixelSize.height, scale), scale};
    DrawList aligned;
    aligned.commands.reserve(list.commands.size());
    for (const auto& command : list.commands) {
        if (canBeDrawn(command)) {
            aligned.commands.push_back(std::visit(alignment, command));
        }
    }
    return aligned;
}

} // namespace quorvel::x11
