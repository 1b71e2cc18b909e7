#include "platform/x11/painting/TextLayouts.h"

#include <algorithm>

#include "base/Utf8.h"

namespace quorvel::x11 {

namespace {

// More sizes than one appearance uses; a person who drags a size slider makes many more.
constexpr std::size_t maximumRecords = 32;

PangoWeight pangoWeight(FontWeight weight)
{
    switch (weight) {
    case FontWeight::regular:
        return PANGO_WEIGHT_NORMAL;
    case FontWeight::semibold:
        return PANGO_WEIGHT_SEMIBOLD;
    case FontWeight::bold:
        return PANGO_WEIGHT_BOLD;
    }
    return PANGO_WEIGHT_NORMAL;
}

// Subpixel antialiasing needs a known opaque background, which overlays do not have.
CairoFontOptions fontOptions()
{
    CairoFontOptions options(cairo_font_options_create());
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_SLIGHT);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_ON);
    return options;
}

} // namespace

TextLayouts::TextLayouts(const std::string& families)
    : families(families), fontMap(pango_cairo_font_map_new()), context(pango_font_map_create_context(fontMap.get()))
{
    pango_cairo_context_set_font_options(context.get(), fontOptions().get());
}

TextLayouts::LineMetrics TextLayouts::lineMetrics(const Font& font) const
{
    return record(font).metrics;
}

GObjectHandle<PangoLayout> TextLayouts::layout(std::string_view text, const Font& font) const
{
    GObjectHandle<PangoLayout> layout(pango_layout_new(context.get()));
    const std::string valid = validUtf8(text);
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    pango_layout_set_font_description(layout.get(), record(font).description.get());
    pango_layout_set_text(layout.get(), valid.data(), static_cast<int>(valid.size()));
    return layout;
}

bool TextLayouts::hasLetters() const
{
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    return pango_layout_get_unknown_glyphs_count(layout(letters, Font{}).get()) == 0;
}

double TextLayouts::width(PangoLayout* layout)
{
    int width = 0;
    pango_layout_get_size(layout, &width, nullptr);
    return static_cast<double>(width) / PANGO_SCALE;
}

const TextLayouts::FontRecord& TextLayouts::record(const Font& font) const
{
    const auto known = std::ranges::find(records, font, &FontRecord::font);
    if (known != records.end()) {
        return *known;
    }
    if (records.size() == maximumRecords) {
        records.clear();
    }
    PangoHandle<PangoFontDescription> description(pango_font_description_new());
    pango_font_description_set_family(description.get(), families.c_str());
    pango_font_description_set_weight(description.get(), pangoWeight(font.weight));
    pango_font_description_set_absolute_size(description.get(), font.size * PANGO_SCALE);
    const PangoHandle<PangoFontMetrics> metrics(pango_context_get_metrics(context.get(), description.get(), nullptr));
    const LineMetrics lineMetrics{static_cast<double>(pango_font_metrics_get_ascent(metrics.get())) / PANGO_SCALE,
                                  static_cast<double>(pango_font_metrics_get_descent(metrics.get())) / PANGO_SCALE};
    return records.emplace_back(font, std::move(description), lineMetrics);
}

} // namespace quorvel::x11
