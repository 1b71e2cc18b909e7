#pragma once

#include <algorithm>
#include <optional>
#include <string>

#include "base/DrawList.h"
#include "platform/x11/painting/Painter.h"

namespace quorvel::x11 {

// A painter with the font that every test machine has, and readings of what it painted.
struct Painting {
    TextLayouts layouts{"DejaVu Sans"};
    Painter painter{layouts};

    PixelImage paint(PixelSize size, std::vector<DrawCommand> commands, double textScale = 1.0) const
    {
        PixelImage image(size);
        painter.paint(image, DrawList{std::move(commands)}, textScale);
        return image;
    }
};

inline unsigned alphaAt(const PixelImage& image, int x, int y)
{
    return alphaOf(image.at(x, y));
}

// The smallest rectangle that holds every pixel with any coverage.
inline std::optional<PixelRect> inkBounds(const PixelImage& image)
{
    int left = image.size.width;
    int top = image.size.height;
    int right = -1;
    int bottom = -1;
    for (int y = 0; y < image.size.height; ++y) {
        for (int x = 0; x < image.size.width; ++x) {
            if (alphaAt(image, x, y) > 0) {
                left = std::min(left, x);
                top = std::min(top, y);
                right = std::max(right, x);
                bottom = std::max(bottom, y);
            }
        }
    }
    if (right < left) {
        return std::nullopt;
    }
    return PixelRect{left, top, right - left + 1, bottom - top + 1};
}

// The sum of all coverage, in whole pixels.
inline double inkAmount(const PixelImage& image)
{
    double amount = 0.0;
    for (const Pixel pixel : image.pixels) {
        amount += alphaOf(pixel) / 255.0;
    }
    return amount;
}

inline TextCommand text(std::string characters, ViewRect box)
{
    TextCommand command;
    command.text = std::move(characters);
    command.box = box;
    command.font = {.size = 20.0, .weight = FontWeight::regular};
    command.color = Color::white();
    return command;
}

inline RoundedRectCommand filled(ViewRect rect, Color color, double radius = 0.0)
{
    RoundedRectCommand command;
    command.rect = rect;
    command.cornerRadius = radius;
    command.fill = color;
    return command;
}

inline RoundedRectCommand stroked(ViewRect rect, Color color, double width, double radius = 0.0)
{
    RoundedRectCommand command;
    command.rect = rect;
    command.cornerRadius = radius;
    command.stroke = Stroke{color, width};
    return command;
}

} // namespace quorvel::x11
