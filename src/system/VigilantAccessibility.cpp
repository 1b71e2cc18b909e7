#include "system/VigilantAccessibility.h"

#include <utility>

#include "platform/Alerts.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Permissions.h"
#include "platform/Workspace.h"

namespace quorvel {

namespace {

Alert contradiction()
{
    return {
        .style = AlertStyle::warning,
        .messageText = "Accessibility does not work",
        .informativeText = "The system lists Quorvel under Accessibility as enabled, and yet refuses what Quorvel asks "
                           "of other applications. This happens after Quorvel has been replaced by another version.\n\n"
                           "Click “Open System Settings”, select Quorvel under Accessibility, remove it with the minus "
                           "button, add it again with the plus button, and restart Quorvel.",
        .iconName = "ColorLogoTransparent",
        .buttons = {"Open System Settings", "Later"},
    };
}

} // namespace

AxElementRef VigilantAccessibility::applicationElement(ProcessId process)
{
    return services.accessibility.applicationElement(process);
}

std::expected<AxValue, AxError> VigilantAccessibility::copyAttribute(const AxElementRef& element, std::string_view name)
{
    return seen(services.accessibility.copyAttribute(element, name));
}

std::expected<void, AxError> VigilantAccessibility::setAttribute(const AxElementRef& element, std::string_view name,
                                                                 const AxValue& value)
{
    return seen(services.accessibility.setAttribute(element, name, value));
}

std::expected<void, AxError> VigilantAccessibility::performAction(const AxElementRef& element, std::string_view name)
{
    return seen(services.accessibility.performAction(element, name));
}

std::expected<ProcessId, AxError> VigilantAccessibility::processId(const AxElementRef& element)
{
    return seen(services.accessibility.processId(element));
}

std::expected<std::unique_ptr<AxObserver>, AxError>
VigilantAccessibility::createObserver(ProcessId process, std::function<void(std::string_view name)> callback)
{
    return seen(services.accessibility.createObserver(process, std::move(callback)));
}

template <class T>
std::expected<T, AxError> VigilantAccessibility::seen(std::expected<T, AxError> result)
{
    const bool isRefused = !result && result.error() == axErrors::apiDisabled;
    if (isRefused && !hasReported && services.permissions.isGranted(Permission::accessibility)) {
        hasReported = true;
        services.mainQueue.async(weakly.guard([this] { report(); })); // whoever called goes on first
    }
    return result;
}

void VigilantAccessibility::report()
{
    services.log.line("Accessibility is refused although the system lists Quorvel as enabled; remove Quorvel from the "
                      "list under Privacy & Security, Accessibility, add it again and restart it");
    services.workspace.activateSelf();
    if (services.alerts.runModal(contradiction()) == 0) {
        static_cast<void>(services.permissions.openSettings(Permission::accessibility));
    }
}

} // namespace quorvel
