#include "system/UpdateFeed.h"

#include <algorithm>
#include <memory>
#include <type_traits>
#include <utility>

#include <expat.h>
#include <fmt/format.h>

#include "system/FeedDate.h"
#include "system/VersionOrder.h"

namespace quorvel {

namespace {

constexpr std::size_t longestText = 2000;
constexpr std::size_t longestVersion = 64;

std::string_view localName(std::string_view name)
{
    return name.substr(name.rfind(':') + 1);
}

// Without the white space around it; empty where it cannot be shown.
std::string presentable(std::string_view text, std::size_t longest)
{
    constexpr std::string_view whitespace = " \t\r\n";
    const auto first = text.find_first_not_of(whitespace);
    if (first == std::string_view::npos) {
        return {};
    }
    text = text.substr(first, text.find_last_not_of(whitespace) - first + 1);
    const bool hasControls =
        std::ranges::any_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x20; });
    return hasControls || text.size() > longest ? std::string() : std::string(text);
}

std::string webAddress(std::string_view text)
{
    std::string address = presentable(text, longestText);
    const bool isWeb = address.starts_with("https://") || address.starts_with("http://");
    return isWeb && !address.contains(' ') ? address : std::string();
}

// An item while its elements come in.
struct OpenItem {
    UpdateFeedItem item;
    std::string enclosureAddress;
    bool isForOthers = false;
    bool isForAnotherSystem = false; // so far no enclosure is for this one
    bool isForThisSystem = false;
};

struct Reader {
    XML_Parser parser = nullptr;
    std::string_view system;
    std::vector<std::string> path; // local names of the open elements
    std::string text;              // of the innermost one
    std::optional<OpenItem> open;
    std::vector<UpdateFeedItem> items;
    std::string channelLink;
    bool isFeed = false;
};

Reader& readerOf(void* userData)
{
    return *static_cast<Reader*>(userData);
}

bool isAt(const Reader& reader, std::initializer_list<std::string_view> path)
{
    return std::ranges::equal(reader.path, path);
}

void readEnclosure(OpenItem& open, std::string_view system, const XML_Char** attributes)
{
    std::string address;
    bool isForAnotherSystem = false;
    for (; *attributes != nullptr; attributes += 2) {
        const std::string_view name = localName(attributes[0]);
        const std::string_view value = attributes[1];
        if (name == "version" && open.item.version.empty()) {
            open.item.version = presentable(value, longestVersion);
        } else if (name == "shortVersionString" && open.item.shortVersion.empty()) {
            open.item.shortVersion = presentable(value, longestVersion);
        } else if (name == "url") {
            address = webAddress(value);
        } else if (name == "os") {
            isForAnotherSystem = value != system;
            (isForAnotherSystem ? open.isForAnotherSystem : open.isForThisSystem) = true;
        }
    }
    if (!isForAnotherSystem && open.enclosureAddress.empty()) {
        open.enclosureAddress = std::move(address);
    }
}

void onStartElement(void* userData, const XML_Char* name, const XML_Char** attributes)
{
    Reader& reader = readerOf(userData);
    reader.path.emplace_back(localName(name));
    reader.text.clear();
    if (isAt(reader, {"rss", "channel"})) {
        reader.isFeed = true;
    } else if (isAt(reader, {"rss", "channel", "item"})) {
        reader.open.emplace();
    } else if (isAt(reader, {"rss", "channel", "item", "enclosure"})) {
        readEnclosure(*reader.open, reader.system, attributes);
    }
}

// The element is a child of an item.
void readField(OpenItem& open, std::string_view name, std::string_view text)
{
    if (name == "version") {
        open.item.version = presentable(text, longestVersion);
    } else if (name == "shortVersionString") {
        open.item.shortVersion = presentable(text, longestVersion);
    } else if (name == "pubDate") {
        open.item.date = feedDate(text);
    } else if (name == "link") {
        open.item.link = webAddress(text);
    } else if (name == "releaseNotesLink") {
        open.item.notesLink = webAddress(text);
    } else if (name == "channel") {
        open.isForOthers = true;
    }
}

void closeItem(Reader& reader)
{
    OpenItem open = *std::exchange(reader.open, std::nullopt);
    const bool isOurs = !open.isForOthers && (open.isForThisSystem || !open.isForAnotherSystem);
    if (open.item.version.empty()) {
        open.item.version = open.item.shortVersion;
    }
    if (open.item.shortVersion.empty()) {
        open.item.shortVersion = open.item.version;
    }
    if (open.item.link.empty()) {
        open.item.link = open.enclosureAddress;
    }
    if (isOurs && !open.item.version.empty()) {
        reader.items.push_back(std::move(open.item));
    }
}

void onEndElement(void* userData, const XML_Char*)
{
    constexpr std::size_t depthOfFields = 4;
    Reader& reader = readerOf(userData);
    if (isAt(reader, {"rss", "channel", "item"})) {
        closeItem(reader);
    } else if (reader.open && reader.path.size() == depthOfFields) {
        readField(*reader.open, reader.path.back(), reader.text);
    } else if (isAt(reader, {"rss", "channel", "link"}) && reader.channelLink.empty()) {
        reader.channelLink = webAddress(reader.text);
    }
    reader.path.pop_back();
    reader.text.clear();
}

void onText(void* userData, const XML_Char* text, int length)
{
    readerOf(userData).text.append(text, static_cast<std::size_t>(length));
}

// Feeds declare nothing, and entities that stand for entities fill the memory.
void onDeclaration(void* userData, const XML_Char*, const XML_Char*, const XML_Char*, int)
{
    XML_StopParser(readerOf(userData).parser, XML_FALSE);
}

} // namespace

std::expected<std::vector<UpdateFeedItem>, std::string> parseUpdateFeed(std::string_view document,
                                                                        std::string_view system)
{
    using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)>;

    const Parser parser(XML_ParserCreate(nullptr), &XML_ParserFree);
    Reader reader;
    reader.parser = parser.get();
    reader.system = system;
    XML_SetUserData(parser.get(), &reader);
    XML_SetElementHandler(parser.get(), onStartElement, onEndElement);
    XML_SetCharacterDataHandler(parser.get(), onText);
    XML_SetStartDoctypeDeclHandler(parser.get(), onDeclaration);
    if (XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE) != XML_STATUS_OK) {
        const auto error = XML_GetErrorCode(parser.get());
        return std::unexpected(fmt::format("the update feed is damaged ({} in line {})",
                                           error == XML_ERROR_ABORTED ? "declarations" : XML_ErrorString(error),
                                           XML_GetCurrentLineNumber(parser.get())));
    }
    if (!reader.isFeed) {
        return std::unexpected("what the server sent is not an update feed");
    }
    for (auto& item : reader.items) {
        if (item.link.empty()) {
            item.link = reader.channelLink;
        }
    }
    return std::move(reader.items);
}

std::optional<UpdateFeedItem> newestItem(std::span<const UpdateFeedItem> items)
{
    const auto newest = std::ranges::max_element(
        items, [](const auto& left, const auto& right) { return compareVersions(left.version, right.version) < 0; });
    return newest == items.end() ? std::nullopt : std::optional(*newest);
}

} // namespace quorvel
