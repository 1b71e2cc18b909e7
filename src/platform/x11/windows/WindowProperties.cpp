#include "platform/x11/windows/WindowProperties.h"

#include <algorithm>

namespace quorvel::x11 {

namespace {

constexpr std::size_t extentCount = 4;
constexpr std::uint32_t largestExtent = 0x7FFF; // as large as a window can be

// WM_NORMAL_HINTS: flags first; the increments are its tenth and eleventh values.
constexpr std::size_t widthIncrementIndex = 9;
constexpr std::size_t heightIncrementIndex = 10;
constexpr std::uint32_t resizeIncrementFlag = 1U << 6;

} // namespace

std::optional<Extents> extentsOf(std::span<const std::uint32_t> values)
{
    if (values.size() < extentCount ||
        std::ranges::any_of(values.first(extentCount), [](auto each) { return each > largestExtent; })) {
        return std::nullopt;
    }
    const auto value = [&](std::size_t index) { return static_cast<std::int32_t>(values[index]); };
    return Extents{value(0), value(1), value(2), value(3)};
}

Extents shadowOf(std::span<const std::uint32_t> values, Size client)
{
    const auto shadow = extentsOf(values).value_or(Extents{});
    const bool leavesSomething =
        shadow.left + shadow.right < client.width && shadow.top + shadow.bottom < client.height;
    return leavesSomething ? shadow : Extents{};
}

bool hasSizeIncrements(std::span<const std::uint32_t> hints)
{
    return hints.size() > heightIncrementIndex && (hints[0] & resizeIncrementFlag) != 0 &&
           (hints[widthIncrementIndex] > 1 || hints[heightIncrementIndex] > 1);
}

ClassNames classNamesOf(std::string_view text)
{
    const auto end = std::min(text.find('\0'), text.size());
    const auto rest = text.substr(std::min(end + 1, text.size()));
    return {std::string(text.substr(0, end)), std::string(rest.substr(0, rest.find('\0')))};
}

} // namespace quorvel::x11
