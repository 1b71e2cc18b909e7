#include "platform/simulated/JournalText.h"

#include <concepts>
#include <type_traits>
#include <variant>

#include <fmt/format.h>

#include "base/LogText.h"
#include "platform/simulated/SimulatedAxElement.h"

namespace quorvel {

namespace {

std::string quoted(std::string_view text)
{
    return fmt::format("\"{}\"", text);
}

template <class Range, class Describe>
std::string joined(const Range& range, Describe describe)
{
    std::string text;
    for (const auto& each : range) {
        text += (text.empty() ? "" : ", ") + describe(each);
    }
    return text;
}

struct PropertyText {
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return logText(value); }
    std::string operator()(const std::string& value) const { return quoted(value); }
    std::string operator()(const PropertyData& value) const { return fmt::format("{} bytes", value.size()); }
    std::string operator()(const PropertyArray& value) const
    {
        return "[" + joined(value, [](const PropertyValue& each) { return journalText(each); }) + "]";
    }
    std::string operator()(const PropertyDictionary& value) const
    {
        return "{" +
               joined(value, [](const auto& each) { return quoted(each.first) + ": " + journalText(each.second); }) +
               "}";
    }
};

struct AxText {
    std::string operator()(std::monostate) const { return "something else"; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(const std::string& value) const { return quoted(value); }
    std::string operator()(const AxPoint& value) const { return logText(value); }
    std::string operator()(const Size& value) const { return logText(value); }
    std::string operator()(const AxElementRef& value) const { return journalText(value); }
    std::string operator()(const std::vector<AxElementRef>& value) const
    {
        return "[" + joined(value, [](const AxElementRef& each) { return journalText(each); }) + "]";
    }
};

} // namespace

std::string journalText(const PropertyValue& value)
{
    return std::visit(PropertyText{}, value.value);
}

std::string journalText(const AxValue& value)
{
    return std::visit(AxText{}, value);
}

std::string journalText(const AxElementRef& element)
{
    const auto* named = dynamic_cast<const SimulatedAxElement*>(element.get());
    if (named == nullptr) {
        return "no element";
    }
    return fmt::format("{} {}", named->kind == SimulatedElementKind::window ? "window" : "application", named->id);
}

} // namespace quorvel
