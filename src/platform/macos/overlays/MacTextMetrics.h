#pragma once

#include "platform/TextMetrics.h"

namespace quorvel::macos {

// Measures with the fonts that draw lists are painted with.
class MacTextMetrics final : public TextMetrics {
public:
    Size measure(std::string_view text, const Font& font) const override;
};

} // namespace quorvel::macos
