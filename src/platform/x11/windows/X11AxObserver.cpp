#include "platform/x11/windows/X11AxObserver.h"

#include <optional>
#include <utility>

#include "platform/x11/windows/ClientWindows.h"
#include "platform/x11/windows/WindowWatcher.h"
#include "platform/x11/windows/X11AxElement.h"

namespace quorvel::x11 {

namespace {

std::optional<WindowChange> changeNamed(std::string_view name)
{
    if (name == axNames::moved) {
        return WindowChange::moved;
    }
    if (name == axNames::resized) {
        return WindowChange::resized;
    }
    if (name == axNames::elementDestroyed) {
        return WindowChange::destroyed;
    }
    return std::nullopt;
}

} // namespace

X11AxObserver::X11AxObserver(ClientWindows& windows, WindowWatcher& watcher,
                             std::function<void(std::string_view name)> callback)
    : windows(windows), watcher(watcher), delivery(std::make_shared<Delivery>(std::move(callback)))
{}

std::expected<void, AxError> X11AxObserver::addNotification(const AxElementRef& element, std::string_view name)
{
    const auto* const named = dynamic_cast<const X11AxElement*>(element.get());
    if (named == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    const auto awaited = changeNamed(name);
    if (!awaited || named->window() == XCB_NONE) {
        return std::unexpected(axErrors::notificationUnsupported);
    }
    if (windows.find(named->window(), named->process()) == nullptr) {
        return std::unexpected(axErrors::invalidElement);
    }
    std::string text(name);
    auto listener = [delivery = delivery, awaited = *awaited, text](WindowChange change) {
        if (delivery->isStarted && change == awaited) {
            delivery->callback(text);
        }
    };
    registrations.push_back({element, std::move(text), watcher.watch(named->window(), std::move(listener))});
    return {};
}

std::expected<void, AxError> X11AxObserver::removeNotification(const AxElementRef& element, std::string_view name)
{
    if (dynamic_cast<const X11AxElement*>(element.get()) == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    const auto removed = std::erase_if(registrations, [&](const Registration& registration) {
        return registration.name == name && registration.element->isEqual(*element);
    });
    if (removed == 0) {
        return std::unexpected(axErrors::notificationUnsupported);
    }
    return {};
}

void X11AxObserver::startDelivery()
{
    delivery->isStarted = true;
}

} // namespace quorvel::x11
