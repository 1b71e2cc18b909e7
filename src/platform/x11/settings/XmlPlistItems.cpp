#include "platform/x11/settings/XmlPlistItems.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <memory>
#include <optional>
#include <system_error>

#include <fmt/format.h>
#include <glib.h>

namespace quorvel::x11 {

namespace {

constexpr std::string_view whitespace = " \t\r\n";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(whitespace);
    return first == std::string_view::npos ? std::string_view{}
                                           : text.substr(first, text.find_last_not_of(whitespace) - first + 1);
}

template <class Number, class... Format>
std::optional<Number> numberFrom(std::string_view text, Format... format)
{
    Number number{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, format...);
    const bool isWhole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

std::string integerMeaning(std::string_view text)
{
    constexpr int hexadecimal = 16;
    constexpr int decimal = 10;
    const bool isNegative = text.starts_with('-');
    std::string_view digits = isNegative || text.starts_with('+') ? text.substr(1) : text;
    const bool isHexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
    digits.remove_prefix(isHexadecimal ? 2 : 0);
    const auto magnitude = numberFrom<std::uint64_t>(digits, isHexadecimal ? hexadecimal : decimal);
    if (!magnitude) {
        return std::string(text);
    }
    return fmt::format("{}{}", isNegative && *magnitude != 0 ? "-" : "", *magnitude);
}

std::string realMeaning(std::string_view text)
{
    const auto number = numberFrom<double>(text.starts_with('+') ? text.substr(1) : text);
    return number ? fmt::format("{}", *number + 0.0) : std::string(text); // -0.0 counts as 0.0
}

std::string dataMeaning(std::string_view text)
{
    std::string result;
    for (const char character : text) {
        if (!whitespace.contains(character)) {
            result += character;
        }
    }
    return result;
}

// Two texts of a leaf have the same meaning if they stand for the same value. A text that stands for none is its own
// meaning.
std::string meaning(std::string_view element, std::string_view text)
{
    if (element == "string" || element == "key") {
        return std::string(text);
    }
    if (element == "data") {
        return dataMeaning(text);
    }
    text = trimmed(text);
    if (element == "integer") {
        return integerMeaning(text);
    }
    if (element == "real") {
        return realMeaning(text);
    }
    if (element == "date") {
        text.remove_prefix(std::min(text.find_first_not_of('0'), text.size())); // of the year
    }
    return std::string(text);
}

struct Collector {
    std::vector<XmlPlistItem> items;
    std::size_t depth = 0;
    bool isInLeaf = false;
    std::string leafText;
};

constexpr std::string_view envelope = "plist";

bool isContainer(std::string_view element)
{
    return element == "dict" || element == "array" || element == envelope;
}

void add(Collector& collector, GMarkupParseContext* context, std::string text)
{
    gint line = 0;
    g_markup_parse_context_get_position(context, &line, nullptr);
    collector.items.push_back({std::move(text), line});
}

// The envelope holds nothing of its own.
void addTag(Collector& collector, GMarkupParseContext* context, std::string_view name, std::string_view opening)
{
    if (name != envelope) {
        add(collector, context, fmt::format("{}{}>", opening, name));
    }
}

void fail(GError** error, const char* problem)
{
    g_set_error_literal(error, G_MARKUP_ERROR, G_MARKUP_ERROR_INVALID_CONTENT, problem);
}

Collector& collectorOf(gpointer userData)
{
    return *static_cast<Collector*>(userData);
}

void onStartElement(GMarkupParseContext* context, const gchar* name, const gchar**, const gchar**, gpointer userData,
                    GError** error)
{
    Collector& collector = collectorOf(userData);
    if (collector.isInLeaf) {
        fail(error, "an element inside a value");
        return;
    }
    if (collector.items.size() > 3 * maximumPlistValues) { // at most a key, a start and an end each
        fail(error, "too many values");
        return;
    }
    if (!isContainer(name)) {
        collector.isInLeaf = true;
        collector.leafText.clear();
        return;
    }
    if (++collector.depth > maximumPlistDepth) {
        fail(error, "nested too deeply");
        return;
    }
    addTag(collector, context, name, "<");
}

void onEndElement(GMarkupParseContext* context, const gchar* name, gpointer userData, GError**)
{
    Collector& collector = collectorOf(userData);
    if (!collector.isInLeaf) {
        --collector.depth;
        addTag(collector, context, name, "</");
        return;
    }
    collector.isInLeaf = false;
    add(collector, context, fmt::format("<{}>{}", name, meaning(name, collector.leafText)));
}

void onText(GMarkupParseContext* context, const gchar* text, gsize length, gpointer userData, GError**)
{
    Collector& collector = collectorOf(userData);
    if (collector.isInLeaf) {
        collector.leafText.append(text, length);
    } else if (const auto stray = trimmed({text, length}); !stray.empty()) {
        add(collector, context, std::string(stray));
    }
}

} // namespace

std::expected<std::vector<XmlPlistItem>, std::string> xmlPlistItems(std::string_view document)
{
    using ParseContext = std::unique_ptr<GMarkupParseContext, decltype(&g_markup_parse_context_free)>;
    using Error = std::unique_ptr<GError, decltype(&g_error_free)>;

    constexpr GMarkupParser parser{onStartElement, onEndElement, onText, nullptr, nullptr};
    Collector collector;
    const ParseContext context(g_markup_parse_context_new(&parser, G_MARKUP_TREAT_CDATA_AS_TEXT, &collector, nullptr),
                               &g_markup_parse_context_free);
    GError* rawError = nullptr;
    const bool isWellFormed = g_markup_parse_context_parse(context.get(), document.data(),
                                                           static_cast<gssize>(document.size()), &rawError) != 0 &&
                              g_markup_parse_context_end_parse(context.get(), &rawError) != 0;
    const Error error(rawError, &g_error_free);
    if (isWellFormed) {
        return std::move(collector.items);
    }
    // The parser's own messages follow the user's language and are not ours to word.
    const bool isOurs = g_error_matches(error.get(), G_MARKUP_ERROR, G_MARKUP_ERROR_INVALID_CONTENT) != 0;
    gint line = 0;
    g_markup_parse_context_get_position(context.get(), &line, nullptr);
    return std::unexpected(fmt::format("{} near line {}", isOurs ? error->message : "not well-formed XML", line));
}

} // namespace quorvel::x11
