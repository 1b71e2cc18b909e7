#include "base/DrawableCommands.h"

#include <cmath>

namespace quorvel {

namespace {

constexpr double largestFont = 1000.0;
constexpr double farthestEdge = 100'000.0;

bool isSane(double value)
{
    return std::abs(value) <= farthestEdge; // not so for NaN
}

bool isSane(const ViewRect& rect)
{
    return isSane(rect.x) && isSane(rect.y) && isSane(rect.width) && isSane(rect.height);
}

struct Judge {
    bool operator()(const RoundedRectCommand& command) const
    {
        return isSane(command.rect) && isSane(command.cornerRadius) &&
               isSane(command.stroke ? command.stroke->width : 0.0);
    }

    bool operator()(const TextCommand& command) const
    {
        return isSane(command.box) && command.font.size > 0.0 && command.font.size <= largestFont;
    }
};

} // namespace

bool canBeDrawn(const DrawCommand& command)
{
    return std::visit(Judge{}, command);
}

} // namespace quorvel
