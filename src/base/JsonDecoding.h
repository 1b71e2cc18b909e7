#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

// Reading JSON strictly: a key is there and has its type, or the document is refused.
namespace quorvel::jsonDecoding {

using Json = nlohmann::json;

// An error is a text that begins with the path below the value that was being read, so that each level only puts its
// own step in front of it: ".name is missing" becomes "[2].name is missing".
template <class Value>
using Decoded = std::expected<Value, std::string>;

// The member of that name; an error if `object` is none or lacks it.
Decoded<const Json*> member(const Json& object, std::string_view key);

// An integer counts as a number; a number without fraction counts as an integer if 64 bits hold it.
Decoded<double> number(const Json& object, std::string_view key);
Decoded<std::int64_t> integer(const Json& object, std::string_view key);
Decoded<bool> boolean(const Json& object, std::string_view key);
Decoded<std::string> text(const Json& object, std::string_view key);

// Every element of an array, by `decode`.
template <class Element>
Decoded<std::vector<Element>> elements(const Json& array, Decoded<Element> (*decode)(const Json&))
{
    if (!array.is_array()) {
        return std::unexpected(" is not an array");
    }
    std::vector<Element> result;
    result.reserve(array.size());
    for (const auto& item : array) {
        auto element = decode(item);
        if (!element) {
            return std::unexpected("[" + std::to_string(result.size()) + "]" + element.error());
        }
        result.push_back(*std::move(element));
    }
    return result;
}

// The error of a whole document, fit for a log line, from that of its root.
std::string documentError(std::string_view rootError);

// What the parser says, without its own name in front and without the piece of the document behind it, which may be
// long.
std::string parserError(const Json::exception& exception);

// Parses a document and reads its root by `decode`. The error is fit for a log line.
template <class Value>
Decoded<Value> document(std::string_view json, Decoded<Value> (*decode)(const Json&))
{
    try {
        auto value = decode(Json::parse(json));
        if (!value) {
            return std::unexpected(documentError(value.error()));
        }
        return value;
    } catch (const Json::exception& exception) {
        return std::unexpected(parserError(exception));
    }
}

} // namespace quorvel::jsonDecoding
