#pragma once

#include "platform/TextMetrics.h"
#include "platform/x11/painting/TextLayouts.h"

namespace quorvel::x11 {

// Measures with the fonts that the painter draws with.
class X11TextMetrics final : public TextMetrics {
public:
    explicit X11TextMetrics(const TextLayouts& layouts) : layouts(layouts) {}

    Size measure(std::string_view text, const Font& font) const override;

private:
    const TextLayouts& layouts;
};

} // namespace quorvel::x11
