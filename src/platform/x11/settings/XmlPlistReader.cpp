#include "platform/x11/settings/XmlPlistReader.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <glib.h>

#include "platform/x11/settings/PlistLeaf.h"

namespace quorvel::x11 {

namespace {

struct OpenContainer {
    PlistNode node; // an array or a dictionary
    std::optional<std::string> key;
};

// Builds the tree from the parser's events. Containers that are still open lie on a stack, not in call frames.
class PlistBuilder {
public:
    // Each returns what is wrong, or nothing.
    std::optional<std::string> startElement(std::string_view name);
    std::optional<std::string> endElement(std::string_view name);
    std::optional<std::string> addText(std::string_view text);

    std::optional<PlistNode> takeRoot() { return std::exchange(root, std::nullopt); }

private:
    std::optional<std::string> openContainer(PlistNode container);
    std::optional<std::string> addKey();
    std::optional<std::string> addValue(PlistNode node);

    std::vector<OpenContainer> containers;
    std::optional<std::string> leaf; // the leaf element that is open
    std::string leafText;
    std::optional<PlistNode> root;
    bool isInsidePlist = false;
};

std::optional<std::string> PlistBuilder::startElement(std::string_view name)
{
    if (leaf) {
        return fmt::format("<{}> inside <{}>", name, *leaf);
    }
    if (name == "plist") {
        if (isInsidePlist || root) {
            return "a second <plist>";
        }
        isInsidePlist = true;
        return std::nullopt;
    }
    if (!isInsidePlist) {
        return fmt::format("<{}> outside <plist>", name);
    }
    if (name == "dict") {
        return openContainer(PlistNode{PlistDictionary{}});
    }
    if (name == "array") {
        return openContainer(PlistNode{PlistArray{}});
    }
    leaf = std::string(name);
    leafText.clear();
    return std::nullopt;
}

std::optional<std::string> PlistBuilder::openContainer(PlistNode container)
{
    if (containers.size() == maximumPlistDepth) {
        return "nested too deeply";
    }
    containers.push_back({std::move(container), std::nullopt});
    return std::nullopt;
}

std::optional<std::string> PlistBuilder::endElement(std::string_view name)
{
    if (leaf) {
        leaf.reset();
        if (name == "key") {
            return addKey();
        }
        auto value = plistLeaf(name, leafText);
        return value ? addValue(std::move(*value)) : fmt::format("a <{}> that cannot be read", name);
    }
    if (name == "plist") {
        isInsidePlist = false;
        return root ? std::nullopt : std::optional<std::string>("an empty <plist>");
    }
    OpenContainer closed = std::move(containers.back());
    containers.pop_back();
    if (closed.key) {
        return "a <key> without a value";
    }
    return addValue(std::move(closed.node));
}

std::optional<std::string> PlistBuilder::addKey()
{
    const bool isInDictionary =
        !containers.empty() && std::holds_alternative<PlistDictionary>(containers.back().node.value);
    if (!isInDictionary || containers.back().key) {
        return "a <key> where a value belongs";
    }
    containers.back().key = std::exchange(leafText, {});
    return std::nullopt;
}

std::optional<std::string> PlistBuilder::addValue(PlistNode node)
{
    if (containers.empty()) {
        if (root) {
            return "a second outermost value";
        }
        root = std::move(node);
        return std::nullopt;
    }
    OpenContainer& container = containers.back();
    if (auto* array = std::get_if<PlistArray>(&container.node.value)) {
        array->push_back(std::move(node));
        return std::nullopt;
    }
    if (!container.key) {
        return "a value without a <key>";
    }
    std::get<PlistDictionary>(container.node.value).insert_or_assign(std::move(*container.key), std::move(node));
    container.key.reset();
    return std::nullopt;
}

std::optional<std::string> PlistBuilder::addText(std::string_view text)
{
    const auto isForbidden = [](unsigned char character) {
        return character < 0x20 && character != '\t' && character != '\n' && character != '\r';
    };
    if (std::ranges::any_of(text, isForbidden)) {
        return "a character that XML does not allow";
    }
    if (leaf) {
        leafText += text;
        return std::nullopt;
    }
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos
               ? std::nullopt
               : std::optional<std::string>("text between elements");
}

PlistBuilder& builderOf(gpointer userData)
{
    return *static_cast<PlistBuilder*>(userData);
}

void fail(GError** error, const std::optional<std::string>& problem)
{
    if (problem) {
        g_set_error_literal(error, G_MARKUP_ERROR, G_MARKUP_ERROR_INVALID_CONTENT, problem->c_str());
    }
}

void onStartElement(GMarkupParseContext*, const gchar* name, const gchar**, const gchar**, gpointer userData,
                    GError** error)
{
    fail(error, builderOf(userData).startElement(name));
}

void onEndElement(GMarkupParseContext*, const gchar* name, gpointer userData, GError** error)
{
    fail(error, builderOf(userData).endElement(name));
}

void onText(GMarkupParseContext*, const gchar* text, gsize length, gpointer userData, GError** error)
{
    fail(error, builderOf(userData).addText({text, length}));
}

using ParseContext = std::unique_ptr<GMarkupParseContext, decltype(&g_markup_parse_context_free)>;
using Error = std::unique_ptr<GError, decltype(&g_error_free)>;

} // namespace

std::expected<PlistNode, std::string> readXmlPlist(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    constexpr GMarkupParser parser{onStartElement, onEndElement, onText, nullptr, nullptr};
    PlistBuilder builder;
    const ParseContext context(g_markup_parse_context_new(&parser, G_MARKUP_TREAT_CDATA_AS_TEXT, &builder, nullptr),
                               &g_markup_parse_context_free);
    GError* rawError = nullptr;
    const bool isComplete =
        g_markup_parse_context_parse(context.get(), text.data(), static_cast<gssize>(text.size()), &rawError) != 0 &&
        g_markup_parse_context_end_parse(context.get(), &rawError) != 0;
    const Error error(rawError, &g_error_free);
    if (isComplete) {
        if (auto root = builder.takeRoot()) {
            return std::move(*root);
        }
        return std::unexpected("no <plist>");
    }
    // The parser's own messages follow the user's language and are not ours to word.
    const bool isOurs = g_error_matches(error.get(), G_MARKUP_ERROR, G_MARKUP_ERROR_INVALID_CONTENT) != 0;
    gint line = 0;
    g_markup_parse_context_get_position(context.get(), &line, nullptr);
    return std::unexpected(fmt::format("{} near line {}", isOurs ? error->message : "not well-formed XML", line));
}

} // namespace quorvel::x11
