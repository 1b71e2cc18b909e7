#include "app/FocusCandidates.h"

#include <map>
#include <string>
#include <utility>

#include "app/ApplicationWindows.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "system/OnScreenWindows.h"

namespace quorvel {

namespace {

std::string nameOf(const RunningApplication& application)
{
    return application.localizedName.value_or("Unknown");
}

std::vector<FocusWindowInfo> visibleWindows(const Platform& platform, ApplicationWindows& windows)
{
    std::map<ProcessId, std::string> names;
    std::vector<FocusWindowInfo> visible;
    for (const auto& [pid, bounds] : onScreenWindows(platform)) {
        auto [name, isNew] = names.try_emplace(pid);
        if (isNew) {
            name->second = nameOf(platform.workspace.runningApplication(pid).value_or(RunningApplication()));
        }
        auto match = windows.takeWindowAt(pid, bounds);
        visible.push_back({
            .pid = pid,
            .bounds = bounds,
            .appName = name->second,
            .windowTitle = windows.title(match.window),
            .axWindow = std::move(match.window),
            .hasTwin = match.hasTwin,
        });
    }
    return visible;
}

std::vector<MinimizedWindowInfo> minimizedWindows(const Platform& platform, ApplicationWindows& windows)
{
    const auto ownProcess = platform.workspace.ownProcess();
    std::vector<MinimizedWindowInfo> minimized;
    for (const auto& application : platform.workspace.runningApplications()) {
        if (application.activationPolicy != ActivationPolicy::regular || application.process == ownProcess) {
            continue;
        }
        for (const auto& window : windows.minimizedWindows(application.process)) {
            minimized.push_back({application.process, window, nameOf(application), windows.title(window)});
        }
    }
    return minimized;
}

} // namespace

FocusCandidates focusCandidates(const Platform& platform)
{
    ApplicationWindows windows(platform);
    auto visible = visibleWindows(platform, windows);
    return {std::move(visible), minimizedWindows(platform, windows)};
}

} // namespace quorvel
