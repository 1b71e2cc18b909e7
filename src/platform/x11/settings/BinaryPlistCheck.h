#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvel::x11 {

// What is wrong with a property list in binary form that the library would not notice: containers that stand for a
// tree too deep or too large for it, and values that it would read as others. It finds broken offsets by itself.
std::optional<std::string> binaryPlistProblem(std::string_view bytes);

} // namespace quorvel::x11
