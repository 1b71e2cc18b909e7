#include "platform/x11/painting/RoundedPath.h"

#include "base/RoundedOutline.h"

namespace quorvel::x11 {

namespace {

struct CairoPath {
    cairo_t* context;

    void moveTo(double x, double y) const { cairo_move_to(context, x, y); }
    void lineTo(double x, double y) const { cairo_line_to(context, x, y); }
    void curveTo(double x1, double y1, double x2, double y2, double x, double y) const
    {
        cairo_curve_to(context, x1, y1, x2, y2, x, y);
    }
    void close() const { cairo_close_path(context); }
};

} // namespace

void addRoundedRectangle(cairo_t* context, const ViewRect& rect, double radius, CornerStyle style)
{
    if (radius <= 0.0) {
        cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
        return;
    }
    traceRoundedRectangle(CairoPath{context}, rect, radius, style);
}

} // namespace quorvel::x11
