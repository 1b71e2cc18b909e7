#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/DrawList.h"
#include "platform/x11/painting/CairoHandles.h"

namespace quorvel::x11 {

// Sets single lines of text in one family of fonts. A point is a pixel here; whoever wants larger pixels scales the
// size of the font.
class TextLayouts {
public:
    // Families in order of preference, separated by commas, as fontconfig knows them.
    explicit TextLayouts(const std::string& families);

    struct LineMetrics {
        double ascent = 0.0;
        double descent = 0.0;
    };

    // The extents of the font itself, whatever a text's characters are.
    LineMetrics lineMetrics(const Font& font) const;

    // Invalid UTF-8 is set with replacement characters.
    GObjectHandle<PangoLayout> layout(std::string_view text, const Font& font) const;

    // Whether there is a font that has the letters of labels.
    bool hasLetters() const;

    // The advance width, in pixels.
    static double width(PangoLayout* layout);

private:
    struct FontRecord {
        Font font;
        PangoHandle<PangoFontDescription> description;
        LineMetrics metrics;
    };

    const FontRecord& record(const Font& font) const;

    std::string families;
    GObjectHandle<PangoFontMap> fontMap;
    GObjectHandle<PangoContext> context;
    mutable std::vector<FontRecord> records;
};

} // namespace quorvel::x11
