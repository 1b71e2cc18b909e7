#include "platform/x11/painting/Painter.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <variant>

#include "platform/x11/painting/CairoHandles.h"
#include "platform/x11/painting/ImageSurface.h"
#include "platform/x11/painting/RoundedPath.h"
#include "platform/x11/painting/ShadowMask.h"

namespace quorvel::x11 {

namespace {

void setSource(cairo_t* context, const Color& color)
{
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
}

// A text with its place: the origin of its baseline.
struct PlacedText {
    GObjectHandle<PangoLayout> layout;
    double x = 0.0;
    double baseline = 0.0;
    double width = 0.0;
};

class ListPainter {
public:
    ListPainter(cairo_t* context, PixelSize size, const TextLayouts& layouts, double textScale)
        : context(context), size(size), layouts(layouts), textScale(textScale)
    {}

    void operator()(const RoundedRectCommand& command) const
    {
        if (command.shadow) {
            paintShadow(*command.shadow, outerRect(command), [&](cairo_t* mask) { paintShape(mask, command); });
        }
        paintShape(context, command);
    }

    void operator()(const TextCommand& command) const
    {
        const auto text = place(command);
        if (command.shadow) {
            paintShadow(*command.shadow, inkRect(text), [&](cairo_t* mask) { paintText(mask, text, command.color); });
        }
        paintText(context, text, command.color);
    }

private:
    static void paintShape(cairo_t* target, const RoundedRectCommand& command)
    {
        if (command.fill) {
            addRoundedRectangle(target, command.rect, command.cornerRadius, command.cornerStyle);
            setSource(target, *command.fill);
            cairo_fill(target);
        }
        if (command.stroke && command.stroke->width > 0.0) {
            addRoundedRectangle(target, command.rect, command.cornerRadius, command.cornerStyle);
            setSource(target, command.stroke->color);
            cairo_set_line_width(target, command.stroke->width);
            cairo_stroke(target);
        }
    }

    void paintText(cairo_t* target, const PlacedText& text, const Color& color) const
    {
        auto* const line = pango_layout_get_line_readonly(text.layout.get(), 0);
        setSource(target, color);
        cairo_move_to(target, text.x, text.baseline);
        if (textScale == 1.0) {
            pango_cairo_show_layout_line(target, line);
        } else {
            cairo_save(target);
            cairo_scale(target, textScale, textScale);
            pango_cairo_layout_line_path(target, line); // cairo would move glyphs to whole pixels
            cairo_restore(target);
            cairo_fill(target);
        }
    }

    void paintShadow(const Shadow& shadow, const ViewRect& ink, const std::function<void(cairo_t*)>& paintInk) const
    {
        const ShadowMask mask(ink, size, shadow.blurRadius, paintInk);
        setSource(context, shadow.color);
        mask.paint(context);
    }

    PlacedText place(const TextCommand& command) const
    {
        PlacedText text{.layout = layouts.layout(command.text, command.font)};
        auto* const layout = text.layout.get();
        constexpr double roundingError = 1e-6;
        const double room = command.box.width / textScale + roundingError;
        if (TextLayouts::width(layout) > room) {
            pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
            pango_layout_set_width(layout, static_cast<int>(std::floor(room)) * PANGO_SCALE);
        }
        text.width = textScale * TextLayouts::width(layout);
        const auto metrics = layouts.lineMetrics(command.font);
        text.x = std::floor(leftEdge(command, text.width));
        text.baseline = std::round(command.box.midY() + textScale * (metrics.ascent - metrics.descent) / 2.0);
        return text;
    }

    static double leftEdge(const TextCommand& command, double width)
    {
        switch (command.alignment) {
        case TextAlignment::leading:
            return command.box.minX();
        case TextAlignment::center:
            return command.box.midX() - width / 2.0;
        case TextAlignment::trailing:
            return command.box.maxX() - width;
        }
        return command.box.minX();
    }

    static ViewRect outerRect(const RoundedRectCommand& command)
    {
        const double outside = command.stroke ? command.stroke->width / 2.0 : 0.0;
        const auto& rect = command.rect;
        return {rect.x - outside, rect.y - outside, rect.width + 2.0 * outside, rect.height + 2.0 * outside};
    }

    ViewRect inkRect(const PlacedText& text) const
    {
        PangoRectangle ink{};
        pango_layout_line_get_pixel_extents(pango_layout_get_line_readonly(text.layout.get(), 0), &ink, nullptr);
        return {text.x + textScale * ink.x, text.baseline + textScale * ink.y, textScale * ink.width,
                textScale * ink.height};
    }

    cairo_t* context;
    PixelSize size;
    const TextLayouts& layouts;
    double textScale;
};

} // namespace

void Painter::paint(PixelImage& image, const DrawList& list, double textScale) const
{
    if (image.size.width <= 0 || image.size.height <= 0) {
        return;
    }
    const CairoSurface surface = imageSurface(image);
    const CairoContext context(cairo_create(surface.get()));
    const ListPainter painter(context.get(), image.size, layouts, textScale);
    for (const auto& command : list.commands) {
        std::visit(painter, command);
    }
    cairo_surface_flush(surface.get());
}

} // namespace quorvel::x11
