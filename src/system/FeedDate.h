#pragma once

#include <optional>
#include <string_view>

#include "base/Date.h"

namespace quorvel {

// The moment of a date as feeds write it, "Sat, 21 Nov 2026 14:00:00 +0100" or with "GMT"; nothing for another text.
std::optional<Date> feedDate(std::string_view text);

} // namespace quorvel
