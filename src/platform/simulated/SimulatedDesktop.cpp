#include "platform/simulated/SimulatedDesktop.h"

#include <algorithm>
#include <utility>

namespace quorvel {

SimulatedDesktop::SimulatedDesktop()
    : windowServer([this](const SimulatedWindow& window, std::string_view notification) {
          accessibility.notify(window, notification);
      }),
      keyboard(
          {mainQueue, keyboardLayout, hotKeys, eventTaps, eventMonitors, overlayWindows, preferencesUi, windowServer})
{}

SimulatedDesktop::~SimulatedDesktop()
{
    mainQueue.discard(); // waiting work may own windows, which need their ports to go
}

Platform SimulatedDesktop::platform()
{
    return {.log = log,
            .mainQueue = mainQueue,
            .userDefaults = userDefaults,
            .notificationCenter = notificationCenter,
            .bundle = bundle,
            .dates = dates,
            .accessibility = accessibility,
            .hotKeys = hotKeys,
            .eventTaps = eventTaps,
            .windowList = windowList,
            .workspace = workspace,
            .screens = screens,
            .keyboardLayout = keyboardLayout,
            .eventMonitors = eventMonitors,
            .overlayWindows = overlayWindows,
            .textMetrics = textMetrics,
            .systemColors = systemColors,
            .statusBar = statusBar,
            .permissions = permissions,
            .alerts = alerts,
            .preferencesUi = &preferencesUi,
            .updater = &updater,
            .loginItem = &loginItem};
}

SimulatedApplication& SimulatedDesktop::launch(std::string name)
{
    while (windowServer.application(nextProcess) != nullptr) {
        ++nextProcess;
    }
    return launch(RunningApplication{nextProcess++, std::move(name), ActivationPolicy::regular});
}

SimulatedWindow& SimulatedDesktop::openWindow(SimulatedApplication& application, std::string title, const AxRect& frame)
{
    return windowServer.openWindow(application, std::move(title), frame);
}

void SimulatedDesktop::moveWindow(SimulatedWindow& window, const AxRect& frame)
{
    windowServer.move(window, frame.origin());
    windowServer.resize(window, frame.size());
}

void SimulatedDesktop::focus(SimulatedWindow& window)
{
    windowServer.raise(window);
    windowServer.activate(window.process());
}

void SimulatedDesktop::press(KeyCode keyCode, std::uint64_t flags, std::optional<std::string> characters)
{
    hold(keyCode, flags, std::move(characters));
    releaseKey(keyCode);
}

void SimulatedDesktop::hold(KeyCode keyCode, std::uint64_t flags, std::optional<std::string> characters)
{
    keyboard.hold(keyCode, flags, std::move(characters));
}

void SimulatedDesktop::clickMouse(AxPoint point)
{
    const bool hitsOwnWindow = std::ranges::any_of(overlayWindows.visible(), [&](const auto& each) {
        return !each->description.ignoresMouseEvents && screens.flipped(each->frame).contains(point);
    });
    if (hitsOwnWindow) {
        return;
    }
    if (auto* window = windowServer.windowAt(point)) {
        focus(*window);
    }
    mainQueue.async([this] { eventMonitors.mouseDown(); });
}

} // namespace quorvel
