#include "report/SvgFile.h"

#include <stdexcept>
#include <variant>

#include <cairo-svg.h>

#include "platform/x11/painting/CairoHandles.h"
#include "platform/x11/painting/RoundedPath.h"

namespace quorvel::bench {

namespace {

class SvgPainter {
public:
    SvgPainter(cairo_t* context, const x11::TextLayouts& layouts) : context(context), layouts(layouts) {}

    void operator()(const RoundedRectCommand& command) const
    {
        x11::addRoundedRectangle(context, command.rect, command.cornerRadius, command.cornerStyle);
        setSource(command.fill.value());
        cairo_fill(context);
    }

    void operator()(const TextCommand& command) const
    {
        const auto layout = layouts.layout(command.text, command.font);
        const auto metrics = layouts.lineMetrics(command.font);
        const double spare = command.box.width - x11::TextLayouts::width(layout.get());
        const double left = command.box.minX() + spare * shareOnTheLeft(command.alignment);
        cairo_move_to(context, left, command.box.midY() + (metrics.ascent - metrics.descent) / 2.0);
        setSource(command.color);
        pango_cairo_show_layout_line(context, pango_layout_get_line_readonly(layout.get(), 0));
    }

private:
    static double shareOnTheLeft(TextAlignment alignment)
    {
        switch (alignment) {
        case TextAlignment::leading:
            return 0.0;
        case TextAlignment::center:
            return 0.5;
        case TextAlignment::trailing:
            return 1.0;
        }
        return 0.0;
    }

    void setSource(const Color& color) const
    {
        cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
    }

    cairo_t* context;
    const x11::TextLayouts& layouts;
};

} // namespace

void writeSvg(const std::filesystem::path& file, const Chart& chart, const x11::TextLayouts& layouts)
{
    const x11::CairoSurface surface(cairo_svg_surface_create(file.c_str(), chart.size.width, chart.size.height));
    cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
    const x11::CairoContext context(cairo_create(surface.get()));
    const SvgPainter painter(context.get(), layouts);
    for (const auto& command : chart.drawing.commands) {
        std::visit(painter, command);
    }
    cairo_surface_finish(surface.get());
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

} // namespace quorvel::bench
