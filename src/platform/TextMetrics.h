#pragma once

#include <string_view>

#include "base/DrawList.h"

namespace quorvel {

class TextMetrics {
public:
    TextMetrics() = default;
    TextMetrics(const TextMetrics&) = delete;
    TextMetrics& operator=(const TextMetrics&) = delete;
    virtual ~TextMetrics() = default;

    // The advance width and line height of one line of text, in points, rounded up to whole points.
    virtual Size measure(std::string_view text, const Font& font) const = 0;
};

} // namespace quorvel
