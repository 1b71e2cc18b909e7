#include "app/NeighbourScreens.h"

#include <algorithm>

namespace quorvel {

namespace {

constexpr double tolerance = 1.0; // points

bool isNextTo(const ScreenRect& frame, ScreenSide side, const ScreenRect& other)
{
    const bool isBeside = other.maxY() > frame.minY() && other.minY() < frame.maxY();
    const bool isInLine = other.maxX() > frame.minX() && other.minX() < frame.maxX();
    switch (side) {
    case ScreenSide::left:
        return other.maxX() <= frame.minX() + tolerance && isBeside;
    case ScreenSide::right:
        return other.minX() >= frame.maxX() - tolerance && isBeside;
    case ScreenSide::above:
        return other.minY() >= frame.maxY() - tolerance && isInLine;
    case ScreenSide::below:
        return other.maxY() <= frame.minY() + tolerance && isInLine;
    }
    return false;
}

} // namespace

bool hasNeighbour(const Screen& screen, ScreenSide side, const std::vector<Screen>& screens)
{
    return std::ranges::any_of(screens, [&](const Screen& other) {
        return !other.isSameScreenAs(screen) && isNextTo(screen.frame, side, other.frame);
    });
}

} // namespace quorvel
