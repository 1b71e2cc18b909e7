#pragma once

namespace quorvel {

// An sRGB colour; components and alpha lie in 0…1, not premultiplied.
struct Color {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    static constexpr Color clear() { return {0.0, 0.0, 0.0, 0.0}; }
    static constexpr Color black() { return {0.0, 0.0, 0.0, 1.0}; }
    static constexpr Color white() { return {1.0, 1.0, 1.0, 1.0}; }
    static constexpr Color bytes(int red, int green, int blue, int alpha = 255)
    {
        return {red / 255.0, green / 255.0, blue / 255.0, alpha / 255.0};
    }

    constexpr Color withAlpha(double newAlpha) const { return {red, green, blue, newAlpha}; }

    bool operator==(const Color&) const = default;
};

} // namespace quorvel
