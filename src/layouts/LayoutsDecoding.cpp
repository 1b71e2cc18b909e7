#include "layouts/LayoutsDecoding.h"

#include <utility>
#include <vector>

#include "base/JsonDecoding.h"
#include "base/Utf8.h"

namespace quorvel {

namespace {

using jsonDecoding::Decoded;
using jsonDecoding::Json;

// The array of that name, its elements read by `decode`.
template <class Element>
Decoded<std::vector<Element>> array(const Json& object, std::string_view key, Decoded<Element> (*decode)(const Json&))
{
    const auto value = jsonDecoding::member(object, key);
    if (!value) {
        return std::unexpected(value.error());
    }
    auto elements = jsonDecoding::elements<Element>(**value, decode);
    if (!elements) {
        return std::unexpected("." + std::string(key) + elements.error());
    }
    return elements;
}

Decoded<WindowModel> windowModel(const Json& json)
{
    WindowModel window;
    for (const auto& [name, field] : windowModelFields) {
        const auto value = jsonDecoding::number(json, name);
        if (!value) {
            return std::unexpected(value.error());
        }
        window.*field = *value;
    }
    return window;
}

Decoded<LayoutSummary> layoutSummary(const Json& json)
{
    auto id = jsonDecoding::text(json, "id");
    if (!id) {
        return std::unexpected(id.error());
    }
    auto name = jsonDecoding::text(json, "name");
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

} // namespace

std::expected<LayoutsModel, std::string> decodeLayoutsModel(std::string_view json)
{
    return jsonDecoding::document<LayoutsModel>(json, layoutsModel);
}

std::expected<LayoutSummary, std::string> decodeLayoutSummary(std::string_view json)
{
    return jsonDecoding::document<LayoutSummary>(json, layoutSummary);
}

std::string encodeLayoutSummary(const LayoutSummary& summary)
{
    return jsonDecoding::Json{{"id", validUtf8(summary.id)}, {"name", validUtf8(summary.name)}}.dump();
}

} // namespace quorvel
