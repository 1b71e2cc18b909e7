// The feed that announces versions, the versions and the dates in it.

#include <algorithm>
#include <compare>

#include "system/FeedDate.h"
#include "system/UpdateFeed.h"
#include "system/VersionOrder.h"
#include "tests/fuzz/FuzzTarget.h"

namespace quorvel {

namespace {

bool isPageAddress(std::string_view text)
{
    return text.empty() || text.starts_with("http://") || text.starts_with("https://");
}

bool isPlain(std::string_view text)
{
    return std::ranges::none_of(text, [](unsigned char each) { return each < ' ' || each == 0x7F; });
}

void checkOrder(std::string_view left, std::string_view right)
{
    require(compareVersions(left, left) == std::weak_ordering::equivalent, "a version equals itself");
    require(compareVersions(left, right) == 0 <=> compareVersions(right, left), "the order has two sides");
}

} // namespace

void fuzz(std::span<const std::uint8_t> input)
{
    const auto text = textOf(input);
    checkOrder(text.substr(0, text.size() / 2), text.substr(text.size() / 2));
    static_cast<void>(feedDate(text));

    const auto items = parseUpdateFeed(text, "linux");
    if (!items) {
        require(!items.error().empty(), "a refusal has a reason");
        return;
    }
    for (const auto& item : *items) {
        require(!item.version.empty() && !item.shortVersion.empty(), "an item has a version");
        require(isPlain(item.version) && isPlain(item.shortVersion), "versions hold no control characters");
        require(isPageAddress(item.link) && isPageAddress(item.notesLink), "links lead to the web");
        require(isPlain(item.link) && isPlain(item.notesLink), "links hold no control characters");
    }
    const auto newest = newestItem(*items);
    require(newest.has_value() != items->empty(), "some item is the newest");
    require(std::ranges::all_of(*items,
                                [&](const auto& each) { return compareVersions(each.version, newest->version) <= 0; }),
            "no item is newer than the newest");
}

} // namespace quorvel
