#include "app/SnapSearch.h"

#include <array>
#include <cmath>
#include <span>

#include "system/ScreenFlip.h"

namespace quorvel {

namespace {

constexpr double ownOriginTolerance = 2.0; // points
constexpr double leastProgress = 1.0;      // points

enum class Axis { horizontal, vertical };

constexpr Axis across(Axis axis)
{
    return axis == Axis::horizontal ? Axis::vertical : Axis::horizontal;
}

// The two edges of a rectangle along an axis.
struct Extent {
    double low = 0.0;
    double high = 0.0;
};

// An edge of the moved window, and one of another window that it may come to lie on.
struct EdgePair {
    double before = 0.0; // the moved window's edge, before and after the key
    double after = 0.0;
    double target = 0.0;
};

struct Candidate {
    double distance = 0.0;
    double shift = 0.0; // from the end of the step
    double target = 0.0;
    const AxRect* window = nullptr;
};

Extent along(const AxRect& rect, Axis axis)
{
    return axis == Axis::horizontal ? Extent{rect.minX(), rect.maxX()} : Extent{rect.minY(), rect.maxY()};
}

bool overlap(const Extent& a, const Extent& b)
{
    return a.high > b.low && a.low < b.high;
}

bool isAtOrigin(const AxRect& window, const AxRect& rect)
{
    return std::abs(window.x - rect.x) < ownOriginTolerance && std::abs(window.y - rect.y) < ownOriginTolerance;
}

// The screen that shows most of the rectangle, the earlier one on a tie; null if none shows any of it.
const Screen* screenOf(const AxRect& rect, const std::vector<Screen>& screens)
{
    const auto screenRect = flippedByPrimaryHeight<ScreenSpace>(rect, screens);
    const Screen* best = nullptr;
    double bestArea = 0.0;
    for (const auto& screen : screens) {
        const double area = screenRect.intersectionWith(screen.frame).area();
        if (area > bestArea) {
            best = &screen;
            bestArea = area;
        }
    }
    return best;
}

class Search {
public:
    Search(const SnapStep& step, const SnapNeighbours& neighbours, double threshold)
        : step(step),
          neighbours(neighbours),
          threshold(threshold),
          axis(isHorizontal(step.key) ? Axis::horizontal : Axis::vertical),
          screen(screenOf(step.after, neighbours.screens))
    {}

    std::optional<Snap> run()
    {
        for (std::size_t index = 0; index < neighbours.windows.size(); ++index) {
            const auto& window = neighbours.windows[index].bounds;
            if (index != neighbours.ownEntry && mayAttract(window)) {
                tryEdges(window);
            }
        }
        return best ? std::optional(snapTo(*best)) : std::nullopt;
    }

private:
    bool mayAttract(const AxRect& window) const
    {
        return overlap(along(step.after, across(axis)), along(window, across(axis))) &&
               !isAtOrigin(window, step.after) && isOnScreen(window);
    }

    bool isOnScreen(const AxRect& window) const
    {
        if (screen == nullptr) {
            return true;
        }
        const auto rect = flippedByPrimaryHeight<ScreenSpace>(window, neighbours.screens);
        return screen->frame.contains(ScreenPoint{rect.midX(), rect.midY()});
    }

    void tryEdges(const AxRect& window)
    {
        const auto before = along(step.before, axis);
        const auto after = along(step.after, axis);
        const auto target = along(window, axis);
        const std::array pairs{
            EdgePair{before.low, after.low, target.high},
            EdgePair{before.low, after.low, target.low},
            EdgePair{before.high, after.high, target.low},
            EdgePair{before.high, after.high, target.high},
        };
        // A window is resized by its high edge; the low one stays.
        const auto movingPairs = std::span(pairs).subspan(step.effect == ArrowEffect::resize ? 2 : 0);
        for (const auto& pair : movingPairs) {
            tryPair(pair, window);
        }
    }

    void tryPair(const EdgePair& pair, const AxRect& window)
    {
        const double shift = pair.target - pair.after;
        const double distance = std::abs(shift);
        const double progress = (pair.target - pair.before) * signOf(step.key);
        if (distance <= threshold && progress >= leastProgress && (!best || distance < best->distance)) {
            best = Candidate{distance, shift, pair.target, &window};
        }
    }

    Snap snapTo(const Candidate& candidate) const
    {
        const auto& window = *candidate.window;
        const auto edge = axis == Axis::horizontal ? AxRect{candidate.target, window.y, 0.0, window.height}
                                                   : AxRect{window.x, candidate.target, window.width, 0.0};
        return {changedBy(step.after, step.key, step.effect, candidate.shift), edge};
    }

    const SnapStep& step;
    const SnapNeighbours& neighbours;
    double threshold;
    Axis axis;
    const Screen* screen;
    std::optional<Candidate> best;
};

} // namespace

std::optional<Snap> searchSnap(const SnapStep& step, const SnapNeighbours& neighbours, double threshold)
{
    return Search(step, neighbours, threshold).run();
}

} // namespace quorvel
