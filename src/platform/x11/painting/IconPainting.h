#pragma once

#include <filesystem>
#include <optional>

#include "base/Color.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

// The colour of text that can be read on that background; a transparent one counts as dark, as most panels are.
Color readableColor(const PixelImage& background);

// Draws the PNG file over the image, as large as fits and centred; its shape in one colour, if one is given. A file
// that cannot be read draws nothing.
void paintIcon(PixelImage& image, const std::filesystem::path& file, const std::optional<Color>& color);

} // namespace quorvel::x11
