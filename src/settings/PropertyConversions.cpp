#include "settings/PropertyConversions.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string_view>

#include <fmt/format.h>

namespace quorvel {

namespace {

template <class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::string_view withoutLeadingSpace(std::string_view text)
{
    const auto begin = text.find_first_not_of(" \t\n\v\f\r");
    return begin == std::string_view::npos ? std::string_view() : text.substr(begin);
}

std::size_t signLength(std::string_view text)
{
    return text.starts_with('+') || text.starts_with('-') ? 1 : 0;
}

// The offset behind the digits that begin at `offset`.
std::size_t digitsEnd(std::string_view text, std::size_t offset)
{
    while (offset < text.size() && isDigit(text[offset])) {
        ++offset;
    }
    return offset;
}

std::int64_t integerFromText(std::string_view text)
{
    text = withoutLeadingSpace(text);
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(signLength(text));
    std::int64_t magnitude = 0;
    const auto result = std::from_chars(text.data(), text.data() + digitsEnd(text, 0), magnitude);
    using Limits = std::numeric_limits<std::int64_t>;
    if (result.ec == std::errc::result_out_of_range) {
        return isNegative ? Limits::min() : Limits::max();
    }
    return isNegative ? -magnitude : magnitude;
}

// The part at the beginning of the text that may be a decimal number: sign, digits, fraction, exponent.
std::string_view decimalPrefix(std::string_view text)
{
    std::size_t end = digitsEnd(text, signLength(text));
    if (end < text.size() && text[end] == '.') {
        end = digitsEnd(text, end + 1);
    }
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        const auto exponent = end + 1 + signLength(text.substr(end + 1));
        const auto exponentEnd = digitsEnd(text, exponent);
        end = exponentEnd > exponent ? exponentEnd : end;
    }
    return text.substr(0, end);
}

double realFromText(std::string_view text)
{
    // A stream of the classic locale: the decimal point stays a point whatever locale the toolkit sets.
    std::istringstream stream{std::string(decimalPrefix(withoutLeadingSpace(text)))};
    stream.imbue(std::locale::classic());
    double value = 0.0;
    stream >> value; // 0 where there are no digits
    return value;
}

bool booleanFromText(std::string_view text)
{
    text = withoutLeadingSpace(text);
    text.remove_prefix(signLength(text));
    const auto first = text.find_first_not_of('0');
    return first != std::string_view::npos && std::string_view("YyTt123456789").contains(text[first]);
}

std::int64_t truncated(double value)
{
    using Limits = std::numeric_limits<std::int64_t>;
    // 2^63, the least double above the range.
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= limit) {
        return Limits::max();
    }
    return value < -limit ? Limits::min() : static_cast<std::int64_t>(value);
}

} // namespace

std::int64_t integerFrom(const PropertyValue& value)
{
    return std::visit(Overloaded{
                          [](bool boolean) -> std::int64_t { return boolean ? 1 : 0; },
                          [](std::int64_t integer) { return integer; },
                          [](double real) { return truncated(real); },
                          [](const std::string& text) { return integerFromText(text); },
                          [](const auto&) -> std::int64_t { return 0; },
                      },
                      value.value);
}

double realFrom(const PropertyValue& value)
{
    return std::visit(Overloaded{
                          [](bool boolean) { return boolean ? 1.0 : 0.0; },
                          [](std::int64_t integer) { return static_cast<double>(integer); },
                          [](double real) { return real; },
                          [](const std::string& text) { return realFromText(text); },
                          [](const auto&) { return 0.0; },
                      },
                      value.value);
}

bool booleanFrom(const PropertyValue& value)
{
    return std::visit(Overloaded{
                          [](bool boolean) { return boolean; },
                          [](std::int64_t integer) { return integer != 0; },
                          [](double real) { return real != 0.0; },
                          [](const std::string& text) { return booleanFromText(text); },
                          [](const auto&) { return false; },
                      },
                      value.value);
}

std::optional<std::string> stringFrom(const PropertyValue& value)
{
    using Result = std::optional<std::string>;
    return std::visit(Overloaded{
                          [](bool boolean) -> Result { return boolean ? "1" : "0"; },
                          [](std::int64_t integer) -> Result { return fmt::format("{}", integer); },
                          [](double real) -> Result { return fmt::format("{}", real); },
                          [](const std::string& text) -> Result { return text; },
                          [](const auto&) -> Result { return std::nullopt; },
                      },
                      value.value);
}

bool isNumber(const PropertyValue& value)
{
    return std::holds_alternative<bool>(value.value) || std::holds_alternative<std::int64_t>(value.value) ||
           std::holds_alternative<double>(value.value);
}

std::optional<std::vector<std::string>> stringArrayFrom(const PropertyValue& value)
{
    const auto* array = std::get_if<PropertyArray>(&value.value);
    if (array == nullptr) {
        return std::nullopt;
    }
    std::vector<std::string> strings;
    strings.reserve(array->size());
    for (const auto& element : *array) {
        const auto* text = std::get_if<std::string>(&element.value);
        if (text == nullptr) {
            return std::nullopt;
        }
        strings.push_back(*text);
    }
    return strings;
}

std::optional<std::map<std::string, std::string>> stringDictionaryFrom(const PropertyValue& value)
{
    const auto* dictionary = std::get_if<PropertyDictionary>(&value.value);
    if (dictionary == nullptr) {
        return std::nullopt;
    }
    std::map<std::string, std::string> strings;
    for (const auto& [key, element] : *dictionary) {
        const auto* text = std::get_if<std::string>(&element.value);
        if (text == nullptr) {
            return std::nullopt;
        }
        strings.emplace(key, *text);
    }
    return strings;
}

} // namespace quorvel
