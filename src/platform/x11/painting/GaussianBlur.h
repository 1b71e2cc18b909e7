#pragma once

#include <cstdint>
#include <vector>

namespace quorvel::x11 {

// A plane of coverage values, 0…255, without padding between its rows.
struct CoverageMask {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> values;
};

// How far a blur of that standard deviation spreads coverage, in whole pixels.
int blurExtent(double standardDeviation);

// Blurs as a Gaussian of that standard deviation in pixels would. What the mask does not cover counts as empty.
void blur(CoverageMask& mask, double standardDeviation);

} // namespace quorvel::x11
