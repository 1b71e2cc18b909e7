#pragma once

#include <cstdint>
#include <string_view>

namespace quorvel {

class Settings;

// Settings of which only positive values count; the table's fallback stands in for any other, an absent one included.
double positiveReal(const Settings& settings, std::string_view key);
std::int64_t positiveInteger(const Settings& settings, std::string_view key);

} // namespace quorvel
