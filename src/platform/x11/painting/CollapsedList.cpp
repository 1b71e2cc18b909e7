#include "platform/x11/painting/CollapsedList.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "base/RoundedOutline.h"
#include "platform/x11/painting/ShadowMask.h"

namespace quorvel::x11 {

namespace {

// Along one axis: where something changes from pixel to pixel.
struct Interval {
    double from = 0.0;
    double to = 0.0;
};

struct Details {
    std::vector<Interval> x;
    std::vector<Interval> y;
};

double shadowReach(const std::optional<Shadow>& shadow)
{
    return shadow ? shadowExtent(shadow->blurRadius) : 0.0;
}

class DetailFinder {
public:
    void operator()(const RoundedRectCommand& command)
    {
        const double shadow = shadowReach(command.shadow);
        const double halfStroke = command.stroke ? command.stroke->width / 2.0 : 0.0;
        const double outside = halfStroke + shadow;
        const double inside = std::max(cornerExtent(command.cornerRadius, command.cornerStyle), halfStroke) + shadow;
        const auto& rect = command.rect;
        details.x.push_back({rect.minX() - outside, rect.minX() + inside});
        details.x.push_back({rect.maxX() - inside, rect.maxX() + outside});
        details.y.push_back({rect.minY() - outside, rect.minY() + inside});
        details.y.push_back({rect.maxY() - inside, rect.maxY() + outside});
    }

    void operator()(const TextCommand& command)
    {
        // Accents, slanted letters and scripts with tall lines reach out of the box.
        const double overhang = shadowReach(command.shadow) + command.font.size / 2.0;
        const auto& box = command.box;
        details.x.push_back({box.minX() - overhang, box.maxX() + overhang});
        details.y.push_back({box.minY() - overhang, box.maxY() + overhang});
    }

    Details details;
};

class SegmentBuilder {
public:
    void add(int to, bool isDetail)
    {
        if (to <= place) {
            return;
        }
        const int length = to - place;
        const int shortLength = isDetail ? length : 1;
        if (isDetail && !segments.empty() && !segments.back().isStretched()) {
            segments.back().length += length;
            segments.back().shortLength += length;
        } else {
            segments.push_back({place, length, shortPlace, shortLength});
        }
        place = to;
        shortPlace += shortLength;
    }

    std::vector<AxisSegment> segments;

private:
    int place = 0;
    int shortPlace = 0;
};

std::vector<AxisSegment> axisSegments(std::vector<Interval> details, int length)
{
    std::ranges::sort(details, {}, &Interval::from);
    SegmentBuilder builder;
    for (const auto& detail : details) {
        // Clamped before the conversion, because a list may hold any number.
        const auto limit = static_cast<double>(length);
        builder.add(static_cast<int>(std::clamp(std::floor(detail.from), 0.0, limit)), false);
        builder.add(static_cast<int>(std::clamp(std::ceil(detail.to), 0.0, limit)), true);
    }
    builder.add(length, false);
    return std::move(builder.segments);
}

int shortLength(const std::vector<AxisSegment>& segments)
{
    return segments.empty() ? 0 : segments.back().shortPlace + segments.back().shortLength;
}

// Where an edge of a shape goes. Edges lie in pieces that keep their length, or outside of the view.
double shortened(double value, const std::vector<AxisSegment>& segments)
{
    double removed = 0.0;
    for (const auto& segment : segments) {
        if (segment.place + segment.length <= value) {
            removed += segment.length - segment.shortLength;
        }
    }
    return value - removed;
}

struct Shortening {
    const std::vector<AxisSegment>& columns;
    const std::vector<AxisSegment>& rows;

    DrawCommand operator()(RoundedRectCommand command) const
    {
        command.rect = shortenedRect(command.rect);
        return command;
    }

    DrawCommand operator()(TextCommand command) const
    {
        command.box = shortenedRect(command.box);
        return command;
    }

    ViewRect shortenedRect(const ViewRect& rect) const
    {
        const double left = shortened(rect.minX(), columns);
        const double top = shortened(rect.minY(), rows);
        return {left, top, shortened(rect.maxX(), columns) - left, shortened(rect.maxY(), rows) - top};
    }
};

} // namespace

CollapsedList collapsed(const DrawList& list, PixelSize size)
{
    DetailFinder finder;
    for (const auto& command : list.commands) {
        std::visit(finder, command);
    }
    CollapsedList result;
    result.columns = axisSegments(std::move(finder.details.x), size.width);
    result.rows = axisSegments(std::move(finder.details.y), size.height);
    result.size = {shortLength(result.columns), shortLength(result.rows)};
    const Shortening shortening{result.columns, result.rows};
    for (const auto& command : list.commands) {
        result.list.commands.push_back(std::visit(shortening, command));
    }
    return result;
}

} // namespace quorvel::x11
