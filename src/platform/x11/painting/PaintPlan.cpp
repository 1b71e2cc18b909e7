#include "platform/x11/painting/PaintPlan.h"

#include <algorithm>
#include <utility>

namespace quorvel::x11 {

namespace {

constexpr unsigned opaqueAlpha = 255;

// The part of the picture where one piece of the columns meets one of the rows, and the place that it fills.
class Cell {
public:
    Cell(const PixelImage& picture, const AxisSegment& column, const AxisSegment& row)
        : picture(picture), column(column), row(row)
    {}

    bool isTransparent() const
    {
        return allOf([&](int x, int y) { return alphaOf(at(x, y)) == 0; });
    }

    bool isUniformAlongRows() const
    {
        return allOf([&](int x, int y) { return at(x, y) == at(0, y); });
    }

    bool isUniformAlongColumns() const
    {
        return allOf([&](int x, int y) { return at(x, y) == at(x, 0); });
    }

    template <class Add>
    void addRows(Add add) const
    {
        if (row.isStretched()) {
            add(PixelRect{column.place, row.place, column.length, row.length}, at(0, 0));
            return;
        }
        for (int y = 0; y < row.length; ++y) {
            add(PixelRect{column.place, row.place + y, column.length, 1}, at(0, y));
        }
    }

    template <class Add>
    void addColumns(Add add) const
    {
        for (int x = 0; x < column.length; ++x) {
            add(PixelRect{column.place + x, row.place, 1, row.length}, at(x, 0));
        }
    }

    PaintPlan::Piece piece() const
    {
        return {{column.place, row.place, column.length, row.length}, column.shortPlace, row.shortPlace};
    }

private:
    Pixel at(int x, int y) const { return picture.at(column.shortPlace + x, row.shortPlace + y); }

    template <class Predicate>
    bool allOf(Predicate predicate) const
    {
        for (int y = 0; y < row.shortLength; ++y) {
            for (int x = 0; x < column.shortLength; ++x) {
                if (!predicate(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }

    const PixelImage& picture;
    const AxisSegment& column;
    const AxisSegment& row;
};

bool continuesBelow(const PaintPlan::Fill& fill, const PixelRect& rect)
{
    return fill.rect.x == rect.x && fill.rect.width == rect.width && fill.rect.maxY() == rect.y;
}

bool continuesRight(const PaintPlan::Fill& fill, const PixelRect& rect)
{
    return fill.rect.y == rect.y && fill.rect.height == rect.height && fill.rect.maxX() == rect.x;
}

void addFill(std::vector<PaintPlan::Fill>& fills, const PixelRect& rect, Pixel pixel)
{
    if (alphaOf(pixel) == 0) {
        return;
    }
    for (auto& fill : fills) {
        if (fill.pixel != pixel) {
            continue;
        }
        if (continuesBelow(fill, rect)) {
            fill.rect.height += rect.height;
            return;
        }
        if (continuesRight(fill, rect)) {
            fill.rect.width += rect.width;
            return;
        }
    }
    fills.push_back({rect, pixel});
}

// Adds the opaque pixels of a piece row by row; a row that is like the one above makes its rectangles taller.
class RegionBuilder {
public:
    void add(const PixelImage& picture, const PaintPlan::Piece& piece)
    {
        std::vector<PixelRect> open;
        for (int y = 0; y < piece.rect.height; ++y) {
            auto runs = opaqueRuns(picture, piece, y);
            const bool isLikeAbove = std::ranges::equal(runs, open, [](const auto& run, const auto& above) {
                return run.x == above.x && run.width == above.width;
            });
            if (isLikeAbove) {
                std::ranges::for_each(open, [](PixelRect& rect) { ++rect.height; });
            } else {
                region.insert(region.end(), open.begin(), open.end());
                open = std::move(runs);
            }
        }
        region.insert(region.end(), open.begin(), open.end());
    }

    std::vector<PixelRect> region;

private:
    static std::vector<PixelRect> opaqueRuns(const PixelImage& picture, const PaintPlan::Piece& piece, int y)
    {
        std::vector<PixelRect> runs;
        const auto row = picture.row(piece.pictureY + y).subspan(static_cast<std::size_t>(piece.pictureX));
        for (int x = 0; x < piece.rect.width; ++x) {
            if (alphaOf(row[static_cast<std::size_t>(x)]) != opaqueAlpha) {
                continue;
            }
            const int place = piece.rect.x + x;
            if (!runs.empty() && runs.back().maxX() == place) {
                ++runs.back().width;
            } else {
                runs.push_back({place, piece.rect.y + y, 1, 1});
            }
        }
        return runs;
    }
};

} // namespace

PaintPlan paintPlan(std::shared_ptr<const PixelImage> picture, const std::vector<AxisSegment>& columns,
                    const std::vector<AxisSegment>& rows)
{
    PaintPlan plan;
    const auto add = [&](const PixelRect& rect, Pixel pixel) { addFill(plan.fills, rect, pixel); };
    for (const auto& row : rows) {
        for (const auto& column : columns) {
            const Cell cell(*picture, column, row);
            if (cell.isTransparent()) {
                continue;
            }
            if (cell.isUniformAlongRows()) {
                cell.addRows(add);
            } else if (cell.isUniformAlongColumns()) {
                cell.addColumns(add);
            } else {
                plan.pieces.push_back(cell.piece());
            }
        }
    }
    std::ranges::stable_sort(plan.fills, {}, &PaintPlan::Fill::pixel);
    plan.picture = std::move(picture);
    return plan;
}

std::vector<PixelRect> opaqueRegion(const PaintPlan& plan)
{
    RegionBuilder builder;
    for (const auto& fill : plan.fills) {
        if (alphaOf(fill.pixel) == opaqueAlpha) {
            builder.region.push_back(fill.rect);
        }
    }
    for (const auto& piece : plan.pieces) {
        builder.add(*plan.picture, piece);
    }
    return std::move(builder.region);
}

} // namespace quorvel::x11
