#include "platform/x11/settings/PlistLeaf.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string>
#include <system_error>

#include <glib.h>

namespace quorvel::x11 {

namespace {

constexpr std::string_view whitespace = " \t\r\n";
constexpr std::string_view decimalDigits = "0123456789";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(whitespace);
    return first == std::string_view::npos ? std::string_view{}
                                           : text.substr(first, text.find_last_not_of(whitespace) - first + 1);
}

bool consistsOf(std::string_view text, std::string_view characters)
{
    return !text.empty() && text.find_first_not_of(characters) == std::string_view::npos;
}

std::optional<PlistNode> integerLeaf(std::string_view text)
{
    text = trimmed(text);
    const bool isNegative = text.starts_with('-');
    std::string_view digits = isNegative || text.starts_with('+') ? text.substr(1) : text;
    const bool isHexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
    if (isHexadecimal) {
        digits.remove_prefix(2);
    }
    if (!consistsOf(digits, isHexadecimal ? "0123456789abcdefABCDEF" : decimalDigits)) {
        return std::nullopt;
    }
    const std::string signedDigits = (isNegative ? "-" : "") + std::string(digits);
    std::int64_t number = 0;
    const auto result = std::from_chars(signedDigits.data(), signedDigits.data() + signedDigits.size(), number,
                                        isHexadecimal ? 16 : 10);
    if (result.ec == std::errc()) {
        return PlistNode{number};
    }
    return PlistNode{PlistForeign{"integer", std::string(text)}};
}

std::optional<PlistNode> realLeaf(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    double number = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size()) {
        return std::nullopt;
    }
    return PlistNode{number};
}

std::optional<PlistNode> dateLeaf(std::string_view text)
{
    text = trimmed(text);
    if (!consistsOf(text, "0123456789-:TZ")) {
        return std::nullopt;
    }
    return PlistNode{PlistForeign{"date", std::string(text)}};
}

std::optional<PlistNode> dataLeaf(std::string_view text)
{
    std::string base64;
    std::ranges::remove_copy_if(text, std::back_inserter(base64),
                                [](char character) { return whitespace.contains(character); });
    if (base64.empty()) {
        return PlistNode{PropertyData{}};
    }
    const std::string_view payload = std::string_view(base64).substr(0, base64.size() - (base64.ends_with("==")  ? 2
                                                                                         : base64.ends_with('=') ? 1
                                                                                                                 : 0));
    const bool isBase64 = base64.size() % 4 == 0 &&
                          consistsOf(payload, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
    if (!isBase64) {
        return std::nullopt;
    }
    gsize size = 0;
    g_base64_decode_inplace(base64.data(), &size);
    PropertyData data(size);
    std::ranges::transform(base64.substr(0, size), data.begin(),
                           [](char character) { return static_cast<std::byte>(character); });
    return PlistNode{std::move(data)};
}

} // namespace

std::optional<PlistNode> plistLeaf(std::string_view element, std::string_view text)
{
    if (element == "string") {
        return PlistNode{std::string(text)};
    }
    if (element == "integer") {
        return integerLeaf(text);
    }
    if (element == "real") {
        return realLeaf(text);
    }
    if (element == "date") {
        return dateLeaf(text);
    }
    if (element == "data") {
        return dataLeaf(text);
    }
    const bool isBoolean = element == "true" || element == "false";
    if (isBoolean && trimmed(text).empty()) {
        return PlistNode{element == "true"};
    }
    return std::nullopt;
}

} // namespace quorvel::x11
