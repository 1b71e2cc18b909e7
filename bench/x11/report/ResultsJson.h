#pragma once

#include <string>
#include <string_view>

#include "report/Results.h"

namespace quorvel::bench {

// Every measured time in milliseconds, and what follows from them.
std::string toJson(const Results& results);

// What toJson() wrote. Throws nlohmann::json::exception for anything else.
Results fromJson(std::string_view text);

} // namespace quorvel::bench
