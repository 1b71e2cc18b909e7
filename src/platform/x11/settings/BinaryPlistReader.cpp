#include "platform/x11/settings/BinaryPlistReader.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <glib.h>

namespace quorvel::x11 {

namespace {

// Objects may be shared, so a small file can stand for a huge tree.
constexpr std::size_t maximumNodeCount = 100'000;

using Node = std::expected<PlistNode, std::string>;

std::string dateText(double secondsSince2001)
{
    using namespace std::chrono;
    constexpr sys_days epoch = year{2001} / January / 1;
    const auto time = epoch + seconds(std::llround(secondsSince2001));
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", int(date.year()), unsigned(date.month()),
                       unsigned(date.day()), clock.hours().count(), clock.minutes().count(), clock.seconds().count());
}

// The file, from its end: a trailer with the sizes, a table with each object's offset, and the objects, which name
// others by their place in the table. Every number is big-endian.
class BinaryPlistReader {
public:
    explicit BinaryPlistReader(std::string_view bytes) : bytes(bytes) {}

    Node read();

private:
    // What follows an object's marker byte: where its content begins, and the count of its bytes, characters or
    // elements.
    struct Extent {
        std::size_t start = 0;
        std::size_t count = 0;
    };

    std::optional<std::uint64_t> number(std::size_t offset, std::size_t size) const;
    std::optional<Extent> extent(std::size_t offset, std::size_t elementSize) const;
    Node object(std::uint64_t index, std::size_t depth);
    Node simple(unsigned low) const;
    Node integer(std::size_t start, std::size_t size) const;
    Node real(std::size_t start, std::size_t size) const;
    Node date(std::size_t start) const;
    Node text(std::size_t offset) const;
    Node utf16Text(std::size_t offset) const;
    Node data(std::size_t offset) const;
    Node array(std::size_t offset, std::size_t depth);
    Node dictionary(std::size_t offset, std::size_t depth);
    Node reference(std::size_t offset, std::size_t depth);

    static std::unexpected<std::string> damaged(std::string_view what) { return std::unexpected(std::string(what)); }

    std::string_view bytes;
    std::size_t offsetSize = 0;
    std::size_t referenceSize = 0;
    std::uint64_t objectCount = 0;
    std::uint64_t tableOffset = 0;
    std::size_t nodeCount = 0;
};

Node BinaryPlistReader::read()
{
    constexpr std::size_t trailerSize = 32;
    constexpr std::size_t headerSize = 8;
    if (bytes.size() < headerSize + trailerSize) {
        return damaged("cut short");
    }
    const std::size_t trailer = bytes.size() - trailerSize;
    offsetSize = *number(trailer + 6, 1);
    referenceSize = *number(trailer + 7, 1);
    objectCount = *number(trailer + 8, 8);
    const std::uint64_t top = *number(trailer + 16, 8);
    tableOffset = *number(trailer + 24, 8);
    const bool isSound = offsetSize >= 1 && offsetSize <= 8 && referenceSize >= 1 && referenceSize <= 8 &&
                         tableOffset < trailer && objectCount <= (trailer - tableOffset) / offsetSize;
    return isSound ? object(top, 0) : damaged("the trailer does not fit the file");
}

// `size` bytes as one number; nothing beyond the file's end.
std::optional<std::uint64_t> BinaryPlistReader::number(std::size_t offset, std::size_t size) const
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

std::optional<BinaryPlistReader::Extent> BinaryPlistReader::extent(std::size_t offset, std::size_t elementSize) const
{
    const std::size_t low = *number(offset, 1) & 0xFU;
    Extent result{offset + 1, low};
    if (low == 0xFU) { // the count follows as an integer object
        const auto marker = number(offset + 1, 1);
        if (!marker || *marker >> 4U != 1U) {
            return std::nullopt;
        }
        const std::size_t size = std::size_t{1} << (*marker & 0xFU);
        const auto count = number(offset + 2, size);
        if (!count) {
            return std::nullopt;
        }
        result = {offset + 2 + size, *count};
    }
    const bool fits = result.start <= bytes.size() && result.count <= (bytes.size() - result.start) / elementSize;
    return fits ? std::optional(result) : std::nullopt;
}

Node BinaryPlistReader::object(std::uint64_t index, std::size_t depth)
{
    if (depth > maximumPlistDepth) {
        return damaged("nested too deeply");
    }
    if (++nodeCount > maximumNodeCount) {
        return damaged("too many values");
    }
    if (index >= objectCount) {
        return damaged("a reference to an object that does not exist");
    }
    const auto offset = *number(tableOffset + index * offsetSize, offsetSize);
    const auto marker = offset < tableOffset ? number(offset, 1) : std::nullopt;
    if (!marker) {
        return damaged("an object outside the file");
    }
    const auto low = static_cast<unsigned>(*marker & 0xFU);
    switch (*marker >> 4U) {
    case 0x0:
        return simple(low);
    case 0x1:
        return integer(offset + 1, std::size_t{1} << low);
    case 0x2:
        return real(offset + 1, std::size_t{1} << low);
    case 0x3:
        return date(offset + 1);
    case 0x4:
        return data(offset);
    case 0x5:
        return text(offset);
    case 0x6:
        return utf16Text(offset);
    case 0xA:
        return array(offset, depth);
    case 0xD:
        return dictionary(offset, depth);
    default:
        return damaged(fmt::format("an object of the unknown kind {:#04x}", *marker));
    }
}

Node BinaryPlistReader::simple(unsigned low) const
{
    constexpr unsigned falseMarker = 0x8;
    constexpr unsigned trueMarker = 0x9;
    if (low != falseMarker && low != trueMarker) {
        return damaged("a value of no type");
    }
    return PlistNode{low == trueMarker};
}

Node BinaryPlistReader::integer(std::size_t start, std::size_t size) const
{
    if (size == 16) { // written for unsigned numbers beyond the signed range
        const auto high = number(start, 8);
        const auto low = number(start + 8, 8);
        if (!high || !low || *high != 0) {
            return damaged("an integer that cannot be read");
        }
        return PlistNode{PlistForeign{"integer", fmt::format("{}", *low)}};
    }
    const auto value = number(start, size);
    // Only eight bytes carry a sign; shorter ones are unsigned.
    return value ? Node(PlistNode{static_cast<std::int64_t>(*value)}) : damaged("an integer that cannot be read");
}

Node BinaryPlistReader::real(std::size_t start, std::size_t size) const
{
    const auto value = number(start, size);
    if (value && size == sizeof(float)) {
        return PlistNode{static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(*value)))};
    }
    if (value && size == sizeof(double)) {
        return PlistNode{std::bit_cast<double>(*value)};
    }
    return damaged("a real number that cannot be read");
}

Node BinaryPlistReader::date(std::size_t start) const
{
    constexpr double tenThousandYears = 3.2e11; // seconds
    const auto value = number(start, sizeof(double));
    const double seconds = value ? std::bit_cast<double>(*value) : tenThousandYears;
    if (!(std::abs(seconds) < tenThousandYears)) {
        return damaged("a date that cannot be read");
    }
    return PlistNode{PlistForeign{"date", dateText(seconds)}};
}

Node BinaryPlistReader::data(std::size_t offset) const
{
    const auto where = extent(offset, 1);
    if (!where) {
        return damaged("data beyond the end of the file");
    }
    PropertyData data(where->count);
    std::ranges::transform(bytes.substr(where->start, where->count), data.begin(),
                           [](char byte) { return static_cast<std::byte>(byte); });
    return PlistNode{std::move(data)};
}

Node BinaryPlistReader::text(std::size_t offset) const
{
    const auto where = extent(offset, 1);
    if (!where) {
        return damaged("a text beyond the end of the file");
    }
    const std::string_view text = bytes.substr(where->start, where->count);
    const bool isAscii =
        std::ranges::all_of(text, [](char character) { return static_cast<signed char>(character) >= 0; });
    return isAscii ? Node(PlistNode{std::string(text)}) : damaged("a text with characters beyond ASCII");
}

Node BinaryPlistReader::utf16Text(std::size_t offset) const
{
    const auto where = extent(offset, 2);
    if (!where) {
        return damaged("a text beyond the end of the file");
    }
    std::vector<gunichar2> units(where->count + 1); // never empty
    for (std::size_t index = 0; index < where->count; ++index) {
        units[index] = static_cast<gunichar2>(*number(where->start + 2 * index, 2));
    }
    glong length = 0;
    const std::unique_ptr<gchar, decltype(&g_free)> utf8(
        g_utf16_to_utf8(units.data(), static_cast<glong>(where->count), nullptr, &length, nullptr), &g_free);
    if (!utf8) {
        return damaged("a text that is not UTF-16");
    }
    return PlistNode{std::string(utf8.get(), static_cast<std::size_t>(length))};
}

Node BinaryPlistReader::array(std::size_t offset, std::size_t depth)
{
    const auto where = extent(offset, referenceSize);
    if (!where) {
        return damaged("an array beyond the end of the file");
    }
    PlistArray nodes;
    for (std::size_t index = 0; index < where->count; ++index) {
        auto node = reference(where->start + index * referenceSize, depth);
        if (!node) {
            return node;
        }
        nodes.push_back(std::move(*node));
    }
    return PlistNode{std::move(nodes)};
}

Node BinaryPlistReader::dictionary(std::size_t offset, std::size_t depth)
{
    const auto where = extent(offset, 2 * referenceSize);
    if (!where) {
        return damaged("a dictionary beyond the end of the file");
    }
    PlistDictionary nodes;
    for (std::size_t index = 0; index < where->count; ++index) {
        auto key = reference(where->start + index * referenceSize, depth);
        auto value = reference(where->start + (where->count + index) * referenceSize, depth);
        if (!key || !value) {
            return key ? value : key;
        }
        auto* name = std::get_if<std::string>(&key->value);
        if (name == nullptr) {
            return damaged("a key that is not a text");
        }
        nodes.insert_or_assign(std::move(*name), std::move(*value));
    }
    return PlistNode{std::move(nodes)};
}

Node BinaryPlistReader::reference(std::size_t offset, std::size_t depth)
{
    return object(*number(offset, referenceSize), depth + 1);
}

} // namespace

std::expected<PlistNode, std::string> readBinaryPlist(std::string_view bytes)
{
    return BinaryPlistReader(bytes).read();
}

} // namespace quorvel::x11
