#pragma once

#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"

namespace quorvel {

// A version that a feed announces.
struct UpdateFeedItem {
    std::string version;      // what the items of a feed are ordered by; may be the number of a build
    std::string shortVersion; // what a person reads, and this program calls its own
    std::optional<Date> date;
    std::string link;      // the download page; it and the next one are HTTP or HTTPS addresses or empty. An item
                           // without one has its enclosure's address, or else the channel's page.
    std::string notesLink; // the page with the release notes

    bool operator==(const UpdateFeedItem&) const = default;
};

// The items of an appcast (RSS 2.0) that this program may offer, in the order of the document: those that have a
// version and are meant neither for another system than `system` nor for subscribers of a channel. Elements and
// attributes are known by their names without prefix. The error is the end of a sentence for people.
//
// The document comes from outside: declarations of entities are refused, and texts that are too long or hold control
// characters count as absent.
std::expected<std::vector<UpdateFeedItem>, std::string> parseUpdateFeed(std::string_view document,
                                                                        std::string_view system);

// The item with the highest version, the first of equals; nothing for no items.
std::optional<UpdateFeedItem> newestItem(std::span<const UpdateFeedItem> items);

} // namespace quorvel
