#include "app/NumberInRange.h"

#include <fmt/format.h>

#include "base/FatalError.h"

namespace quorvel {

std::uint32_t numberInRange(std::string_view key, std::int64_t stored, std::uint32_t largest)
{
    if (stored < 0 || stored > largest) {
        fatalError(fmt::format("Setting \"{}\" holds {}, which is out of range", key, stored));
    }
    return static_cast<std::uint32_t>(stored);
}

} // namespace quorvel
