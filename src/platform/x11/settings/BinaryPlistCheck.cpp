#include "platform/x11/settings/BinaryPlistCheck.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <glib.h>

#include "platform/x11/settings/XmlPlistItems.h"

namespace quorvel::x11 {

namespace {

using Problem = std::optional<std::string>;

const Problem broken = "objects that do not fit the file";

// Walks the tree that the file stands for. The file's last 32 bytes say where a table with each object's offset is;
// containers name their elements by the place in that table. All numbers are big-endian.
class BinaryPlistWalk {
public:
    explicit BinaryPlistWalk(std::string_view bytes) : bytes(bytes) {}

    Problem problem();

private:
    // What follows an object's marker byte.
    struct Extent {
        std::size_t start = 0;
        std::size_t count = 0; // bytes, characters or elements
    };

    std::optional<std::uint64_t> number(std::size_t offset, std::size_t size) const;
    std::optional<Extent> extent(std::size_t offset, std::size_t elementSize) const;
    Problem problemOf(std::uint64_t object, std::size_t depth);
    Problem problemOfElements(std::size_t offset, std::size_t referencesEach, std::size_t depth);
    Problem problemOfAscii(std::size_t offset) const;
    Problem problemOfUtf16(std::size_t offset) const;

    std::string_view bytes;
    std::size_t offsetSize = 0;
    std::size_t referenceSize = 0;
    std::uint64_t tableOffset = 0;
    std::size_t valueCount = 0;
};

Problem BinaryPlistWalk::problem()
{
    constexpr std::size_t trailerSize = 32;
    if (bytes.size() < trailerSize) {
        return "cut short";
    }
    const std::size_t trailer = bytes.size() - trailerSize;
    offsetSize = *number(trailer + 6, 1);
    referenceSize = *number(trailer + 7, 1);
    tableOffset = *number(trailer + 24, 8);
    const bool isSound =
        offsetSize > 0 && offsetSize <= 8 && referenceSize > 0 && referenceSize <= 8 && tableOffset < trailer;
    return isSound ? problemOf(*number(trailer + 16, 8), 0) : broken;
}

std::optional<std::uint64_t> BinaryPlistWalk::number(std::size_t offset, std::size_t size) const
{
    if (offset > bytes.size() || size > bytes.size() - offset || size > sizeof(std::uint64_t)) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    for (const char byte : bytes.substr(offset, size)) {
        value = value << 8U | static_cast<unsigned char>(byte);
    }
    return value;
}

std::optional<BinaryPlistWalk::Extent> BinaryPlistWalk::extent(std::size_t offset, std::size_t elementSize) const
{
    constexpr std::uint64_t countFollows = 0xF; // as an integer object
    Extent result{offset + 1, *number(offset, 1) & countFollows};
    if (result.count == countFollows) {
        const auto marker = number(offset + 1, 1).value_or(0);
        const std::size_t size = std::size_t{1} << (marker & 0xFU);
        const auto count = number(offset + 2, size);
        if (!count) {
            return std::nullopt;
        }
        result = {offset + 2 + size, *count};
    }
    const bool fits = result.start <= bytes.size() && result.count <= (bytes.size() - result.start) / elementSize;
    return fits ? std::optional(result) : std::nullopt;
}

Problem BinaryPlistWalk::problemOf(std::uint64_t object, std::size_t depth)
{
    if (depth > maximumPlistDepth) {
        return "nested too deeply";
    }
    if (++valueCount > maximumPlistValues) {
        return "too many values";
    }
    const bool isInTable = object < (bytes.size() - tableOffset) / offsetSize;
    const auto offset = isInTable ? number(tableOffset + object * offsetSize, offsetSize) : std::nullopt;
    const auto marker = offset ? number(*offset, 1) : std::nullopt;
    if (!marker) {
        return broken;
    }
    switch (*marker >> 4U) {
    case 0x1: // integer: of 16 bytes the library keeps the lower eight
        return *marker == 0x14 && number(*offset + 1, 8) != std::uint64_t{0} ? Problem("an integer beyond 64 bits")
                                                                             : std::nullopt;
    case 0x5:
        return problemOfAscii(*offset);
    case 0x6:
        return problemOfUtf16(*offset);
    case 0xA:
        return problemOfElements(*offset, 1, depth);
    case 0xC: // a set, which would become an array
        return "an object of an unknown kind";
    case 0xD:
        return problemOfElements(*offset, 2, depth);
    default:
        return std::nullopt;
    }
}

Problem BinaryPlistWalk::problemOfElements(std::size_t offset, std::size_t referencesEach, std::size_t depth)
{
    const auto where = extent(offset, referencesEach * referenceSize);
    if (!where) {
        return broken;
    }
    for (std::size_t index = 0; index < referencesEach * where->count; ++index) {
        if (auto problem = problemOf(*number(where->start + index * referenceSize, referenceSize), depth + 1)) {
            return problem;
        }
    }
    return std::nullopt;
}

Problem BinaryPlistWalk::problemOfAscii(std::size_t offset) const
{
    const auto where = extent(offset, 1);
    if (!where) {
        return broken;
    }
    const auto isAscii = [](char character) { return static_cast<signed char>(character) > 0; };
    return std::ranges::all_of(bytes.substr(where->start, where->count), isAscii) ? std::nullopt
                                                                                  : Problem("a text that is not ASCII");
}

Problem BinaryPlistWalk::problemOfUtf16(std::size_t offset) const
{
    const auto where = extent(offset, 2);
    if (!where) {
        return broken;
    }
    std::vector<gunichar2> units;
    units.reserve(where->count);
    for (std::size_t index = 0; index < where->count; ++index) {
        units.push_back(static_cast<gunichar2>(*number(where->start + 2 * index, 2)));
    }
    gchar* const text =
        units.empty() ? nullptr
                      : g_utf16_to_utf8(units.data(), static_cast<glong>(units.size()), nullptr, nullptr, nullptr);
    const bool isText = text != nullptr && std::ranges::find(units, gunichar2{0}) == units.end();
    g_free(text);
    return isText ? std::nullopt : Problem("a text that is not UTF-16");
}

} // namespace

std::optional<std::string> binaryPlistProblem(std::string_view bytes)
{
    return BinaryPlistWalk(bytes).problem();
}

} // namespace quorvel::x11
