#include "platform/x11/windows/X11Accessibility.h"

#include <utility>

#include "platform/x11/screens/X11Screens.h"
#include "platform/x11/windows/Activation.h"
#include "platform/x11/windows/ClientWindows.h"
#include "platform/x11/windows/Placements.h"
#include "platform/x11/windows/WindowManager.h"
#include "platform/x11/windows/WindowWatcher.h"
#include "platform/x11/windows/X11AxObserver.h"

namespace quorvel::x11 {

namespace {

// What a person calls a window, in the numbering of roles; panels and desktops are none.
std::string_view roleOf(WindowKind kind)
{
    switch (kind) {
    case WindowKind::normal:
    case WindowKind::dialog:
    case WindowKind::utility:
        return axNames::windowRole;
    case WindowKind::dock:
    case WindowKind::desktop:
    case WindowKind::other:
        break;
    }
    return "AXUnknown";
}

const X11AxElement* elementOf(const AxElementRef& element)
{
    return dynamic_cast<const X11AxElement*>(element.get());
}

} // namespace

X11Accessibility::X11Accessibility(ClientWindows& windows, WindowManager& windowManager, Activation& activation,
                                   Placements& placements, WindowWatcher& watcher, X11Screens& screens)
    : windows(windows),
      windowManager(windowManager),
      activation(activation),
      placements(placements),
      watcher(watcher),
      screens(screens)
{}

AxElementRef X11Accessibility::applicationElement(ProcessId process)
{
    return std::make_shared<X11AxElement>(process);
}

std::expected<AxValue, AxError> X11Accessibility::copyAttribute(const AxElementRef& element, std::string_view name)
{
    const auto* const named = elementOf(element);
    if (named == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    if (named->window() == XCB_NONE) {
        return readApplication(named->process(), name);
    }
    const auto target = resolve(*named);
    return target ? readWindow(*target, name) : std::unexpected(target.error());
}

std::expected<void, AxError> X11Accessibility::setAttribute(const AxElementRef& element, std::string_view name,
                                                            const AxValue& value)
{
    const auto* const named = elementOf(element);
    if (named == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    if (named->window() == XCB_NONE) {
        return std::unexpected(axErrors::attributeUnsupported);
    }
    const auto target = resolve(*named);
    return target ? write(*target, name, value) : std::unexpected(target.error());
}

std::expected<void, AxError> X11Accessibility::performAction(const AxElementRef& element, std::string_view name)
{
    const auto* const named = elementOf(element);
    if (named == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    if (named->window() == XCB_NONE || name != axNames::raise) {
        return std::unexpected(axErrors::actionUnsupported);
    }
    const auto target = resolve(*named);
    if (!target) {
        return std::unexpected(target.error());
    }
    activation.raise(target->window);
    return {};
}

std::expected<ProcessId, AxError> X11Accessibility::processId(const AxElementRef& element)
{
    const auto* const named = elementOf(element);
    if (named == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    if (named->window() == XCB_NONE) {
        return named->process();
    }
    const auto target = resolve(*named);
    return target ? std::expected<ProcessId, AxError>(named->process()) : std::unexpected(target.error());
}

std::expected<std::unique_ptr<AxObserver>, AxError>
X11Accessibility::createObserver(ProcessId /*process*/, std::function<void(std::string_view name)> callback)
{
    return std::make_unique<X11AxObserver>(windows, watcher, std::move(callback));
}

std::expected<X11Accessibility::WindowTarget, AxError> X11Accessibility::resolve(const X11AxElement& element)
{
    const auto* const snapshot = windows.find(element.window(), element.process());
    if (snapshot == nullptr) {
        return std::unexpected(axErrors::invalidElement);
    }
    return WindowTarget{element.window(), *snapshot};
}

std::expected<AxValue, AxError> X11Accessibility::readApplication(ProcessId process, std::string_view name)
{
    if (name == axNames::focusedWindow) {
        const auto active = windows.activeWindow();
        const auto* const snapshot = active != XCB_NONE ? windows.find(active) : nullptr;
        if (snapshot != nullptr && snapshot->identity.process == process) {
            return std::make_shared<X11AxElement>(process, active);
        }
        const auto own = windows.windowsOf(process);
        if (own.empty()) {
            return std::unexpected(axErrors::noValue);
        }
        return std::make_shared<X11AxElement>(process, own.front());
    }
    if (name == axNames::windows) {
        std::vector<AxElementRef> elements;
        for (const auto window : windows.windowsOf(process)) {
            elements.push_back(std::make_shared<X11AxElement>(process, window));
        }
        return elements;
    }
    return std::unexpected(axErrors::attributeUnsupported);
}

std::expected<AxValue, AxError> X11Accessibility::readWindow(const WindowTarget& target, std::string_view name)
{
    const auto& snapshot = target.snapshot;
    if (name == axNames::role) {
        return std::string(roleOf(snapshot.identity.kind));
    }
    if (name == axNames::title) {
        return snapshot.title;
    }
    if (name == axNames::position) {
        return screens.coordinates().axPoint(placements.outer(target.window, snapshot).origin());
    }
    if (name == axNames::size) {
        return placements.outer(target.window, snapshot).size();
    }
    if (name == axNames::minimized) {
        return snapshot.isHidden;
    }
    return std::unexpected(axErrors::attributeUnsupported);
}

std::expected<void, AxError> X11Accessibility::write(const WindowTarget& target, std::string_view name,
                                                     const AxValue& value)
{
    const auto* const position = std::get_if<AxPoint>(&value);
    const auto* const size = std::get_if<Size>(&value);
    const auto* const minimized = std::get_if<bool>(&value);
    if (name == axNames::position && position != nullptr) {
        placements.setOrigin(target.window, target.snapshot, screens.coordinates().rootPoint(*position));
    } else if (name == axNames::size && size != nullptr) {
        placements.setSize(target.window, target.snapshot, *size);
    } else if (name == axNames::minimized && minimized != nullptr) {
        if (*minimized) {
            windowManager.minimize(target.window);
        } else if (target.snapshot.isHidden) {
            activation.raise(target.window);
        }
    } else {
        const bool isSettable = name == axNames::position || name == axNames::size || name == axNames::minimized;
        return std::unexpected(isSettable ? axErrors::illegalArgument : axErrors::attributeUnsupported);
    }
    return {};
}

} // namespace quorvel::x11
