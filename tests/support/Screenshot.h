#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "support/PixelRect.h"
#include "support/XClient.h"

namespace quorvel::xtest {

// The pixels of the display, or of a part of it, at one moment.
class Screenshot {
public:
    explicit Screenshot(XClient& client);
    Screenshot(XClient& client, const PixelRect& part);

    bool operator==(const Screenshot&) const = default;

    int width() const { return area.width; }
    int height() const { return area.height; }

    // 0xRRGGBB at root coordinates; throws HarnessError outside the picture.
    std::uint32_t pixel(int x, int y) const;

    void writePng(const std::filesystem::path& file) const;

private:
    PixelRect area;
    std::vector<std::uint32_t> pixels;
};

} // namespace quorvel::xtest
