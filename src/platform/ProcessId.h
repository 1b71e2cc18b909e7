#pragma once

#include <cstdint>

namespace quorvel {

using ProcessId = std::int32_t;

} // namespace quorvel
