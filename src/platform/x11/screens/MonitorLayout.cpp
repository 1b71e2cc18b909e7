#include "platform/x11/screens/MonitorLayout.h"

#include <algorithm>

namespace quorvel::x11 {

namespace {

// Where a strip over part of the root lies on a monitor; null where it does not.
RootRect overlap(const RootRect& monitor, const RootRect& strip)
{
    const auto common = monitor.intersectionWith(strip);
    return common.isNull() || common.area() <= 0.0 ? RootRect::null() : common;
}

RootRect fromEdges(double left, double top, double right, double bottom)
{
    return {left, top, std::max(right - left, 0.0), std::max(bottom - top, 0.0)};
}

double lengthOf(const Strut::Edge& edge)
{
    return std::max(edge.end - edge.start + 1.0, 0.0);
}

// A strip is measured from the root's edge, also for a panel on a monitor further in: its strip then covers the
// monitors in between as a whole, and is not meant for these.
class Reservation {
public:
    explicit Reservation(const RootRect& monitor)
        : monitor(monitor), left(monitor.minX()), top(monitor.minY()), right(monitor.maxX()), bottom(monitor.maxY())
    {}

    void add(const Strut& strut, Size root)
    {
        const auto onLeft = overlap(monitor, {0.0, strut.left.start, strut.left.depth, lengthOf(strut.left)});
        if (!onLeft.isNull() && onLeft.width < monitor.width) {
            left = std::max(left, onLeft.maxX());
        }
        const auto onRight = overlap(
            monitor, {root.width - strut.right.depth, strut.right.start, strut.right.depth, lengthOf(strut.right)});
        if (!onRight.isNull() && onRight.width < monitor.width) {
            right = std::min(right, onRight.minX());
        }
        const auto onTop = overlap(monitor, {strut.top.start, 0.0, lengthOf(strut.top), strut.top.depth});
        if (!onTop.isNull() && onTop.height < monitor.height) {
            top = std::max(top, onTop.maxY());
        }
        const auto onBottom = overlap(monitor, {strut.bottom.start, root.height - strut.bottom.depth,
                                                lengthOf(strut.bottom), strut.bottom.depth});
        if (!onBottom.isNull() && onBottom.height < monitor.height) {
            bottom = std::min(bottom, onBottom.minY());
        }
    }

    RootRect rest() const { return left < right && top < bottom ? fromEdges(left, top, right, bottom) : monitor; }

private:
    RootRect monitor;
    double left;
    double top;
    double right;
    double bottom;
};

} // namespace

std::optional<Strut> strutOf(std::span<const std::uint32_t> values, Size root)
{
    if (values.size() < 4) {
        return std::nullopt;
    }
    const bool isPartial = values.size() >= 12;
    const auto edge = [&](std::size_t index, double length) {
        const auto depth = static_cast<double>(values[index]);
        return isPartial ? Strut::Edge{depth, static_cast<double>(values[4 + 2 * index]),
                                       static_cast<double>(values[5 + 2 * index])}
                         : Strut::Edge{depth, 0.0, length - 1.0};
    };
    return Strut{edge(0, root.height), edge(1, root.height), edge(2, root.width), edge(3, root.width)};
}

RootRect workArea(const RootRect& monitor, std::span<const Strut> struts, Size root)
{
    Reservation reservation(monitor);
    for (const auto& strut : struts) {
        reservation.add(strut, root);
    }
    return reservation.rest();
}

RootRect limitedToWorkArea(const RootRect& area, const RootRect& monitor, std::span<const RootRect> workAreas)
{
    for (const auto& candidate : workAreas) {
        const auto common = area.intersectionWith(candidate);
        if (monitor.contains(candidate) && !common.isNull() && common.area() > 0.0) {
            return common;
        }
    }
    return area;
}

ScreenLayout screenLayout(std::span<const MonitorWithWorkArea> monitors)
{
    ScreenLayout layout;
    if (monitors.empty()) {
        return layout;
    }
    const auto& first = monitors.front();
    const auto topOf = [](const MonitorWithWorkArea& entry) { return entry.monitor.area.minY(); };
    layout.coordinates = {std::ranges::min(monitors, {}, topOf).monitor.area.minY(),
                          first.workArea.maxY() - first.monitor.area.minY()};
    for (const auto& [monitor, work] : monitors) {
        const auto frame = fromEdges(work.minX(), monitor.area.minY(), work.maxX(), work.maxY());
        layout.screens.push_back(
            {monitor.id, layout.coordinates.screenRect(frame), layout.coordinates.screenRect(work)});
    }
    return layout;
}

} // namespace quorvel::x11
