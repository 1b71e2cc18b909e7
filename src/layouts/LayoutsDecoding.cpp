#include "layouts/LayoutsDecoding.h"

#include <cstddef>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "base/Utf8.h"

namespace quorvel {

namespace {

using Json = nlohmann::json;

// An error text begins with the path below the value that was being read, so that each level only puts its own step in
// front of it.
template <class Value>
using Decoded = std::expected<Value, std::string>;

std::unexpected<std::string> failure(std::string_view step, std::string_view rest)
{
    return std::unexpected(std::string(step) + std::string(rest));
}

Decoded<const Json*> member(const Json& object, std::string_view key)
{
    if (!object.is_object()) {
        return failure("", " is not an object");
    }
    const auto found = object.find(key);
    if (found == object.end()) {
        return failure(".", std::string(key) + " is missing");
    }
    return &*found;
}

Decoded<double> number(const Json& object, std::string_view key)
{
    const auto value = member(object, key);
    if (!value) {
        return std::unexpected(value.error());
    }
    if (!(*value)->is_number()) {
        return failure(".", std::string(key) + " is not a number");
    }
    return (*value)->get<double>();
}

Decoded<std::string> text(const Json& object, std::string_view key)
{
    const auto value = member(object, key);
    if (!value) {
        return std::unexpected(value.error());
    }
    if (!(*value)->is_string()) {
        return failure(".", std::string(key) + " is not a string");
    }
    return (*value)->get<std::string>();
}

template <class Element>
Decoded<std::vector<Element>> array(const Json& object, std::string_view key, Decoded<Element> (*decode)(const Json&))
{
    const auto value = member(object, key);
    if (!value) {
        return std::unexpected(value.error());
    }
    if (!(*value)->is_array()) {
        return failure(".", std::string(key) + " is not an array");
    }
    std::vector<Element> elements;
    elements.reserve((*value)->size());
    for (const auto& item : **value) {
        auto element = decode(item);
        if (!element) {
            return failure("." + std::string(key) + "[" + std::to_string(elements.size()) + "]", element.error());
        }
        elements.push_back(*std::move(element));
    }
    return elements;
}

Decoded<WindowModel> windowModel(const Json& json)
{
    WindowModel window;
    for (const auto& [name, field] : windowModelFields) {
        const auto value = number(json, name);
        if (!value) {
            return std::unexpected(value.error());
        }
        window.*field = *value;
    }
    return window;
}

Decoded<LayoutSummary> layoutSummary(const Json& json)
{
    auto id = text(json, "id");
    if (!id) {
        return std::unexpected(id.error());
    }
    auto name = text(json, "name");
    if (!name) {
        return std::unexpected(name.error());
    }
    return LayoutSummary{*std::move(id), *std::move(name)};
}

Decoded<LayoutModel> layoutModel(const Json& json)
{
    auto summary = layoutSummary(json);
    if (!summary) {
        return std::unexpected(summary.error());
    }
    auto windows = array<WindowModel>(json, "windows", windowModel);
    if (!windows) {
        return std::unexpected(windows.error());
    }
    return LayoutModel{std::move(summary->id), std::move(summary->name), *std::move(windows)};
}

Decoded<LayoutsModel> layoutsModel(const Json& json)
{
    auto layouts = array<LayoutModel>(json, "layouts", layoutModel);
    if (!layouts) {
        return std::unexpected(layouts.error());
    }
    return LayoutsModel{*std::move(layouts)};
}

// What the parser says, without its own name in front and without the piece of the file behind it, which may be long.
std::string parserText(const Json::exception& exception)
{
    std::string_view text = exception.what();
    if (const auto end = text.find("] "); end != std::string_view::npos) {
        text.remove_prefix(end + 2);
    }
    text = text.substr(0, text.find("; last read"));
    constexpr std::size_t longest = 200;
    return validUtf8(text.substr(0, longest));
}

template <class Value>
Decoded<Value> decoded(std::string_view json, Decoded<Value> (*decode)(const Json&))
{
    try {
        auto value = decode(Json::parse(json));
        if (!value) {
            const bool isBelowRoot = value.error().starts_with('.');
            return isBelowRoot ? std::unexpected(value.error().substr(1)) : failure("the top level", value.error());
        }
        return value;
    } catch (const Json::exception& exception) {
        return std::unexpected(parserText(exception));
    }
}

} // namespace

std::expected<LayoutsModel, std::string> decodeLayoutsModel(std::string_view json)
{
    return decoded<LayoutsModel>(json, layoutsModel);
}

std::expected<LayoutSummary, std::string> decodeLayoutSummary(std::string_view json)
{
    return decoded<LayoutSummary>(json, layoutSummary);
}

std::string encodeLayoutSummary(const LayoutSummary& summary)
{
    return Json{{"id", validUtf8(summary.id)}, {"name", validUtf8(summary.name)}}.dump();
}

} // namespace quorvel
