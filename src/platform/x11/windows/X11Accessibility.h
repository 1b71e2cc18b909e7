#pragma once

#include "platform/Accessibility.h"
#include "platform/x11/windows/WindowSnapshot.h"
#include "platform/x11/windows/X11AxElement.h"

namespace quorvel::x11 {

class Activation;
class ClientWindows;
class Placements;
class WindowManager;
class WindowWatcher;
class X11Screens;

// The elements are applications, by process, and the client windows of the window manager.
class X11Accessibility : public Accessibility {
public:
    X11Accessibility(ClientWindows& windows, WindowManager& windowManager, Activation& activation,
                     Placements& placements, WindowWatcher& watcher, X11Screens& screens);

    AxElementRef applicationElement(ProcessId process) override;
    std::expected<AxValue, AxError> copyAttribute(const AxElementRef& element, std::string_view name) override;
    std::expected<void, AxError> setAttribute(const AxElementRef& element, std::string_view name,
                                              const AxValue& value) override;
    std::expected<void, AxError> performAction(const AxElementRef& element, std::string_view name) override;
    std::expected<ProcessId, AxError> processId(const AxElementRef& element) override;
    std::expected<std::unique_ptr<AxObserver>, AxError>
    createObserver(ProcessId process, std::function<void(std::string_view name)> callback) override;

private:
    struct WindowTarget {
        xcb_window_t window;
        const WindowSnapshot& snapshot;
    };

    std::expected<WindowTarget, AxError> resolve(const X11AxElement& element);
    std::expected<AxValue, AxError> readApplication(ProcessId process, std::string_view name);
    std::expected<AxValue, AxError> readWindow(const WindowTarget& target, std::string_view name);
    std::expected<void, AxError> write(const WindowTarget& target, std::string_view name, const AxValue& value);

    ClientWindows& windows;
    WindowManager& windowManager;
    Activation& activation;
    Placements& placements;
    WindowWatcher& watcher;
    X11Screens& screens;
};

} // namespace quorvel::x11
