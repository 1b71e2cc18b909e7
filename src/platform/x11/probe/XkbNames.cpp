#include "platform/x11/probe/XkbNames.h"

#include <cstddef>

#include <fmt/format.h>

namespace quorvel::x11 {

namespace {

std::vector<std::string_view> parts(std::string_view text, char separator)
{
    std::vector<std::string_view> result;
    while (true) {
        const auto end = text.find(separator);
        result.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return result;
        }
        text.remove_prefix(end + 1);
    }
}

} // namespace

std::vector<std::string> xkbLayoutNames(std::string_view property)
{
    constexpr std::size_t layoutsField = 2;
    constexpr std::size_t variantsField = 3;
    const auto fields = parts(property, '\0');
    if (fields.size() <= layoutsField || fields[layoutsField].empty()) {
        return {};
    }
    const auto variants =
        fields.size() > variantsField ? parts(fields[variantsField], ',') : std::vector<std::string_view>();
    std::vector<std::string> names;
    for (const auto layout : parts(fields[layoutsField], ',')) {
        const auto variant = names.size() < variants.size() ? variants[names.size()] : std::string_view();
        names.push_back(variant.empty() ? std::string(layout) : fmt::format("{} ({})", layout, variant));
    }
    return names;
}

} // namespace quorvel::x11
