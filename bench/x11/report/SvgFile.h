#pragma once

#include <filesystem>

#include "platform/x11/painting/TextLayouts.h"
#include "report/SpeedChart.h"

namespace quorvel::bench {

// Writes a chart's fills and texts as a scalable picture in which letters are outlines, so that it looks the same
// whichever fonts a reader has. Throws std::runtime_error when that is not possible.
void writeSvg(const std::filesystem::path& file, const Chart& chart, const x11::TextLayouts& layouts);

} // namespace quorvel::bench
