#pragma once

#include <memory>

#include <cairo.h>
#include <pango/pangocairo.h>

namespace quorvel::x11 {

struct CairoDeleter {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

struct PangoDeleter {
    void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
    void operator()(PangoFontMetrics* metrics) const { pango_font_metrics_unref(metrics); }
};

struct GObjectDeleter {
    void operator()(void* object) const { g_object_unref(object); }
};

using CairoContext = std::unique_ptr<cairo_t, CairoDeleter>;
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoDeleter>;
using CairoFontOptions = std::unique_ptr<cairo_font_options_t, CairoDeleter>;

template <class T>
using PangoHandle = std::unique_ptr<T, PangoDeleter>;

template <class T>
using GObjectHandle = std::unique_ptr<T, GObjectDeleter>;

} // namespace quorvel::x11
