#pragma once

#include <compare>
#include <string_view>

namespace quorvel {

// Which of two versions is the newer one. Numbers are compared as numbers of any length, "1.10" goes after "1.9";
// missing ones count as 0. Letters mark what comes before a release: "1.0b2" before "1.0rc1" before "1.0". A leading
// "v" and what follows a "+" do not count.
std::weak_ordering compareVersions(std::string_view left, std::string_view right);

} // namespace quorvel
