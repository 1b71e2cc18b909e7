#include "app/ApplicationWindows.h"

#include <utility>

#include "platform/Platform.h"
#include "system/AxReading.h"
#include "system/WindowInfo.h"

namespace quorvel {

ApplicationWindows::Match ApplicationWindows::takeWindowAt(ProcessId process, const AxRect& bounds)
{
    Match match;
    for (auto& window : locatedWindows(process)) {
        if (!window.rect || !isSamePlace(*window.rect, bounds)) {
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
        return !quietAttribute<bool>(platform, window, axNames::minimized).value_or(false);
    });
    return windows;
}

std::string ApplicationWindows::title(const AxElementRef& window) const
{
    return window ? quietAttribute<std::string>(platform, window, axNames::title).value_or("") : "";
}

ApplicationWindows::Application& ApplicationWindows::application(ProcessId process)
{
    const auto [entry, isNew] = applications.try_emplace(process);
    if (isNew) {
        const auto element = platform.accessibility.applicationElement(process);
        if (auto elements = quietAttribute<std::vector<AxElementRef>>(platform, element, axNames::windows)) {
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
            owner.located->push_back({element, quietRect(platform, element)});
        }
    }
    return *owner.located;
}

} // namespace quorvel
