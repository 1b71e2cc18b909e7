#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/DrawList.h"
#include "base/LabelPosition.h"
#include "settings/AppearanceSettings.h"

namespace quorvel {

class TextMetrics;

struct LabelLine {
    std::string text;
    Font font;
    Color color;
    std::optional<Shadow> shadow;
};

// What a label box is drawn with where a stored colour cannot be read.
struct LabelFallbackColors {
    Color text;
    Color background;
    Color border;
};

// A letter on a box, with further lines under it where there are any; each line is centred.
//
//   ╭──────────────────╮
//   │        A         │ letter
//   │      Safari      │ details
//   │    Start page    │
//   ╰──────────────────╯
struct LabelBox {
    LabelLine letter;
    std::vector<LabelLine> details;
    Color backgroundColor;
    Stroke border;
    double cornerRadius = 0.0;
    std::optional<Shadow> shadow;

    // The box with the letter alone.
    static LabelBox withLetter(std::string letter, const OverlayAppearance& appearance,
                               const LabelFallbackColors& fallbackColors);

    // Draws the box at an anchor of `area`, on whole points. Lines that do not fit the width are cut.
    void appendTo(DrawList& list, const ViewRect& area, LabelPosition anchor, const TextMetrics& metrics) const;
};

} // namespace quorvel
