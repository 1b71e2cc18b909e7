#pragma once

#include <cstddef>
#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::x11 {

// Deeper or larger files count as damaged: the library would end the program, or keep it busy for minutes.
inline constexpr std::size_t maximumPlistDepth = 128;
inline constexpr std::size_t maximumPlistValues = 20'000;

// One tag or leaf of a property list in XML. Items with the same text mean the same: "1e1" and "10.0" as a <real>.
struct XmlPlistItem {
    std::string text;
    int line = 0;
};

// What an XML document says, in its order, whether or not it is a property list. The error says what is wrong and
// where.
std::expected<std::vector<XmlPlistItem>, std::string> xmlPlistItems(std::string_view document);

} // namespace quorvel::x11
