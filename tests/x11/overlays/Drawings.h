#pragma once

#include <string>

#include "base/DrawList.h"

namespace quorvel::x11 {

// A frame of a layout: a ring along the edge, a fill, and a label box of 60 by 40 points in the middle.
struct FrameDrawing {
    Color border = Color::bytes(255, 255, 0);
    Color fill = Color::clear();
    Color labelFill = Color::clear();
    std::string label = "A";

    DrawList of(Size size) const
    {
        RoundedRectCommand background;
        background.rect = {0.0, 0.0, size.width, size.height};
        background.cornerRadius = 8.0;
        background.cornerStyle = CornerStyle::continuous;
        background.fill = fill;
        auto ring = background;
        ring.rect = background.rect.insetBy(1.0, 1.0);
        ring.fill.reset();
        ring.stroke = Stroke{border, 2.0};
        RoundedRectCommand box;
        box.rect = {size.width / 2.0 - 30.0, size.height / 2.0 - 20.0, 60.0, 40.0};
        box.cornerRadius = 6.0;
        box.backing = Backing::solid;
        box.fill = labelFill;
        TextCommand text;
        text.text = label;
        text.font = {28.0, FontWeight::bold};
        text.color = border;
        text.box = box.rect;
        return {{background, ring, box, text}};
    }
};

inline DrawList filledWith(const Color& color, Size size)
{
    RoundedRectCommand command;
    command.rect = {0.0, 0.0, size.width, size.height};
    command.backing = Backing::solid;
    command.fill = color;
    return {{command}};
}

} // namespace quorvel::x11
