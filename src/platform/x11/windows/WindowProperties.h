#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/x11/RootGeometry.h"

namespace quorvel::x11 {

// What stands in properties of windows. Any client can write anything into them, so what cannot be is passed over.

// Of a property with left, right, top and bottom. Nothing for one that is too short or reaches further than windows do.
std::optional<Extents> extentsOf(std::span<const std::uint32_t> values);

// The same of a shadow within a client of that size; none where it would leave nothing of the client.
Extents shadowOf(std::span<const std::uint32_t> values, Size client);

// Whether WM_NORMAL_HINTS ask for sizes in steps of more than one pixel.
bool hasSizeIncrements(std::span<const std::uint32_t> hints);

// The two texts of WM_CLASS, each with a zero at its end.
struct ClassNames {
    std::string instance;
    std::string className;

    bool operator==(const ClassNames&) const = default;
};

ClassNames classNamesOf(std::string_view text);

} // namespace quorvel::x11
