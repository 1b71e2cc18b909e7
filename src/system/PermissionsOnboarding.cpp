#include "system/PermissionsOnboarding.h"

#include <chrono>
#include <utility>

#include "platform/Alerts.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"

namespace quorvel {

namespace {

Alert alert(std::string messageText, std::string informativeText, std::string yes)
{
    return {
        .style = AlertStyle::informational,
        .messageText = std::move(messageText),
        .informativeText = std::move(informativeText),
        .iconName = "ColorLogoTransparent",
        .buttons = {std::move(yes), "Later"},
    };
}

Alert accessibilityAlert()
{
    return alert(
        "Step 1 of 2 — Accessibility",
        "Quorvel needs Accessibility to move, resize and focus your windows and to run global shortcuts.\n\n"
        "Click “Open System Settings” and enable Quorvel under Accessibility. The status updates automatically "
        "when you’re done.",
        "Open System Settings");
}

Alert inputMonitoringAlert()
{
    return alert("Step 2 of 2 — Input Monitoring",
                 "Quorvel needs Input Monitoring for keyboard handling in move/resize mode.\n\n"
                 "Click “Open System Settings” and enable Quorvel under Input Monitoring. The status updates "
                 "automatically when you’re done.",
                 "Open System Settings");
}

Alert restartAlert()
{
    return alert("Restart Quorvel", "Input Monitoring is enabled. Quorvel needs to restart to start using it.",
                 "Restart Now");
}

enum class Answer { yes, later };

Answer ask(const Platform& platform, const Alert& alert)
{
    platform.workspace.activateSelf();
    return platform.alerts.runModal(alert) == 0 ? Answer::yes : Answer::later;
}

} // namespace

PermissionsOnboarding::PermissionsOnboarding(const Platform& platform) : platform(platform) {}

void PermissionsOnboarding::setOnAllGranted(std::function<void()> handler)
{
    onAllGranted = std::move(handler);
}

void PermissionsOnboarding::run()
{
    if (platform.permissions.isGranted(Permission::accessibility)) {
        continueWithInputMonitoring();
    } else if (ask(platform, accessibilityAlert()) == Answer::yes) {
        waitFor(Permission::accessibility, &PermissionsOnboarding::continueWithInputMonitoring);
    } else {
        postpone();
    }
}

void PermissionsOnboarding::continueWithInputMonitoring()
{
    if (platform.permissions.isGranted(Permission::inputMonitoring)) {
        stopPolling();
        if (const auto handler = std::exchange(onAllGranted, nullptr)) {
            handler();
        }
    } else if (ask(platform, inputMonitoringAlert()) == Answer::yes) {
        waitFor(Permission::inputMonitoring, &PermissionsOnboarding::offerRestart);
    } else {
        postpone();
    }
}

void PermissionsOnboarding::offerRestart()
{
    if (ask(platform, restartAlert()) == Answer::later) {
        postpone();
        return;
    }
    // Ends this process whether or not the new one came up, and whether or not this object is still there.
    platform.workspace.relaunch(
        [&platform = platform] { platform.mainQueue.async([&platform] { platform.workspace.terminate(); }); });
}

// Enters the program into the system's list, shows a person where to switch it on, and looks every second whether that
// has happened.
void PermissionsOnboarding::waitFor(Permission permission, Step next)
{
    platform.permissions.request(permission);
    // Where the system has no such place, a person may still find the switch: waiting goes on.
    static_cast<void>(platform.permissions.openSettings(permission));
    pollTimer = platform.mainQueue.repeat(std::chrono::seconds(1),
                                          weakly.guard([this, permission, next] { poll(permission, next); }));
}

void PermissionsOnboarding::poll(Permission permission, Step next)
{
    if (platform.permissions.isGranted(permission)) {
        stopPolling();
        (this->*next)();
    }
}

void PermissionsOnboarding::stopPolling()
{
    pollTimer.reset();
}

void PermissionsOnboarding::postpone()
{
    stopPolling();
    onAllGranted = nullptr;
}

} // namespace quorvel
