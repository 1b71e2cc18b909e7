#include "app/WindowMinimizing.h"

#include <string>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "system/AxReading.h"
#include "system/WindowElementModel.h"
#include "system/WindowInfo.h"

namespace quorvel {

namespace {

AxElementRef windowAt(const Platform& platform, const std::vector<AxElementRef>& windows, const AxRect& rect,
                      const AxElement& preferred)
{
    AxElementRef first;
    for (const auto& window : windows) {
        const auto present = quietRect(platform, window);
        if (!present || !isSamePlace(*present, rect)) {
            continue;
        }
        if (window->isEqual(preferred)) {
            return window;
        }
        if (!first) {
            first = window;
        }
    }
    return first;
}

bool abandon(const Platform& platform, const std::string& line)
{
    platform.log.line(line);
    return false;
}

} // namespace

bool minimizeWindow(const Platform& platform, const WindowElementModel& window)
{
    const auto rect = window.windowRect();
    if (!rect) {
        return abandon(platform, "Failed to get current window rect for minimization");
    }
    const auto& own = window.axWindowElement();
    const auto process = own ? platform.accessibility.processId(own) : std::unexpected(axErrors::invalidElement);
    if (!process) {
        return abandon(platform, "Failed to find PID for current window");
    }
    const auto application = platform.accessibility.applicationElement(*process);
    const auto windows = quietAttribute<std::vector<AxElementRef>>(platform, application, axNames::windows);
    if (!windows) {
        return abandon(platform, "Failed to get windows for PID " + std::to_string(*process));
    }
    const auto found = windowAt(platform, *windows, *rect, *own);
    if (!found) {
        return abandon(platform, "Failed to find matching AX window element");
    }
    const auto written = platform.accessibility.setAttribute(found, axNames::minimized, true);
    return written || abandon(platform, "Failed to minimize window: " + std::to_string(written.error().code));
}

} // namespace quorvel
