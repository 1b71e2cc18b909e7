#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/Color.h"
#include "base/Geometry.h"

namespace quorvel {

enum class FontWeight { regular, semibold, bold };

// The system's user-interface font; size in points.
struct Font {
    double size = 13.0;
    FontWeight weight = FontWeight::regular;

    bool operator==(const Font&) const = default;
};

struct Stroke {
    Color color;
    double width = 1.0;

    bool operator==(const Stroke&) const = default;
};

// A blurred copy of a shape underneath it, without offset. `blurRadius` in points.
struct Shadow {
    Color color;
    double blurRadius = 0.0;

    bool operator==(const Shadow&) const = default;
};

enum class CornerStyle { circular, continuous };

// How a shape is shown where windows cannot blend with the desktop behind them. `open` shapes lose their fill there,
// so that the desktop stays visible through them; `solid` ones get an opaque fill, so that text on them stays readable.
enum class Backing { open, solid };

// A rounded rectangle: shadow, then fill, then stroke. The stroke is centred on the outline of `rect`.
struct RoundedRectCommand {
    ViewRect rect;
    double cornerRadius = 0.0;
    CornerStyle cornerStyle = CornerStyle::circular;
    Backing backing = Backing::open;
    std::optional<Color> fill;
    std::optional<Stroke> stroke;
    std::optional<Shadow> shadow;

    bool operator==(const RoundedRectCommand&) const = default;
};

enum class TextAlignment { leading, center, trailing };

// One line of text in a box: aligned horizontally as told, centred vertically, cut with an ellipsis where the box is
// too narrow. Invalid UTF-8 is shown with replacement characters.
struct TextCommand {
    std::string text;
    Font font;
    Color color;
    ViewRect box;
    TextAlignment alignment = TextAlignment::center;
    std::optional<Shadow> shadow;

    bool operator==(const TextCommand&) const = default;
};

using DrawCommand = std::variant<RoundedRectCommand, TextCommand>;

// What a view shows, back to front, in the view's own coordinates.
struct DrawList {
    std::vector<DrawCommand> commands;

    bool operator==(const DrawList&) const = default;
};

} // namespace quorvel
