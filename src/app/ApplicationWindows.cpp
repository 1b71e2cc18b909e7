#include "app/ApplicationWindows.h"

#include <utility>
#include <variant>

#include "platform/Platform.h"

namespace quorvel {

ApplicationWindows::Match ApplicationWindows::takeWindowAt(ProcessId process, const AxRect& bounds)
{
    constexpr double tolerance = 2.0;
    Match match;
    for (auto& window : locatedWindows(process)) {
        if (!window.rect || !nearlyEqual(*window.rect, bounds, tolerance)) {
            continue;
        }
        if (!window.isTaken) {
            window.isTaken = true;
            match.window = window.element;
            break;
        }
        match.hasTwin = true;
        match.window = match.window ? match.window : window.element;
    }
    return match;
}

std::vector<AxElementRef> ApplicationWindows::minimizedWindows(ProcessId process)
{
    auto windows = application(process).elements;
    std::erase_if(windows, [this](const AxElementRef& window) {
        return !read<bool>(window, axNames::minimized).value_or(false);
    });
    return windows;
}

std::string ApplicationWindows::title(const AxElementRef& window) const
{
    return window ? read<std::string>(window, axNames::title).value_or("") : "";
}

ApplicationWindows::Application& ApplicationWindows::application(ProcessId process)
{
    const auto [entry, isNew] = applications.try_emplace(process);
    if (isNew) {
        const auto element = platform.accessibility.applicationElement(process);
        if (auto elements = read<std::vector<AxElementRef>>(element, axNames::windows)) {
            entry->second.elements = *std::move(elements);
        }
    }
    return entry->second;
}

std::vector<ApplicationWindows::Window>& ApplicationWindows::locatedWindows(ProcessId process)
{
    auto& owner = application(process);
    if (!owner.located) {
        owner.located.emplace();
        for (const auto& element : owner.elements) {
            const auto position = read<AxPoint>(element, axNames::position);
            const auto size = read<Size>(element, axNames::size);
            auto& window = owner.located->emplace_back();
            window.element = element;
            if (position && size) {
                window.rect = AxRect::of(*position, *size);
            }
        }
    }
    return *owner.located;
}

template <class Value>
std::optional<Value> ApplicationWindows::read(const AxElementRef& element, std::string_view name) const
{
    auto value = platform.accessibility.copyAttribute(element, name);
    if (!value) {
        return std::nullopt;
    }
    auto* const typed = std::get_if<Value>(&*value);
    return typed != nullptr ? std::optional<Value>(std::move(*typed)) : std::nullopt;
}

} // namespace quorvel
