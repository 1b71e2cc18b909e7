#include "platform/x11/painting/GaussianBlur.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

namespace quorvel::x11 {

namespace {

constexpr int passes = 3;

// Three box filters in a row come close to a Gaussian. A box of whole pixels has only certain variances; weighing the
// two pixels just outside it gives every variance, so that the blur grows smoothly with its radius:
//
//        ┌───────────────┐ 1
//    edge│               │edge
//   ─────┘               └─────
//         2 * radius + 1
struct Box {
    int radius = 0;
    float edge = 0.0F;
    float scale = 1.0F; // one over the sum of all weights
};

Box boxOfDeviation(double standardDeviation)
{
    const double variance = standardDeviation * standardDeviation / passes;
    const double radius = std::floor((std::sqrt(12.0 * variance + 1.0) - 1.0) / 2.0);
    const double width = 2.0 * radius + 1.0;
    const double edge =
        width * (radius * (radius + 1.0) - 3.0 * variance) / (6.0 * (variance - (radius + 1.0) * (radius + 1.0)));
    return {static_cast<int>(radius), static_cast<float>(edge), static_cast<float>(1.0 / (width + 2.0 * edge))};
}

void filterLine(std::span<const float> in, std::span<float> out, const Box& box)
{
    const auto count = static_cast<int>(in.size());
    const auto value = [&](int index) {
        return index >= 0 && index < count ? in[static_cast<std::size_t>(index)] : 0.0F;
    };
    float sum = 0.0F;
    for (int index = 0; index < box.radius; ++index) {
        sum += value(index);
    }
    for (int index = 0; index < count; ++index) {
        sum += value(index + box.radius);
        const float outside = value(index - box.radius - 1) + value(index + box.radius + 1);
        out[static_cast<std::size_t>(index)] = (sum + box.edge * outside) * box.scale;
        sum -= value(index - box.radius);
    }
}

// Filters every row and writes it as a column, so that a second call does the columns.
void filterTransposed(std::vector<float>& plane, int width, int height, const Box& box)
{
    std::vector<float> result(plane.size());
    std::vector<float> line(static_cast<std::size_t>(width));
    std::vector<float> filtered(line.size());
    for (int y = 0; y < height; ++y) {
        const auto row = plane.begin() + static_cast<std::ptrdiff_t>(y) * width;
        std::copy(row, row + width, line.begin());
        for (int pass = 0; pass < passes; ++pass) {
            filterLine(line, filtered, box);
            line.swap(filtered);
        }
        for (int x = 0; x < width; ++x) {
            result[static_cast<std::size_t>(x) * static_cast<std::size_t>(height) + static_cast<std::size_t>(y)] =
                line[static_cast<std::size_t>(x)];
        }
    }
    plane = std::move(result);
}

} // namespace

int blurExtent(double standardDeviation)
{
    return standardDeviation > 0.0 ? passes * (boxOfDeviation(standardDeviation).radius + 1) : 0;
}

void blur(CoverageMask& mask, double standardDeviation)
{
    if (standardDeviation <= 0.0) {
        return;
    }
    const Box box = boxOfDeviation(standardDeviation);
    std::vector<float> plane(mask.values.begin(), mask.values.end());
    filterTransposed(plane, mask.width, mask.height, box);
    filterTransposed(plane, mask.height, mask.width, box);
    std::ranges::transform(plane, mask.values.begin(), [](float value) {
        return static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L));
    });
}

} // namespace quorvel::x11
