#include "preferences/GeneralPreferencesView.h"

#include <string>
#include <utility>

#include "platform/Platform.h"
#include "preferences/ControlValues.h"
#include "preferences/PaneButtons.h"

namespace quorvel {

namespace {

constexpr std::string_view launchID = "startAtLogin";
constexpr std::string_view automaticChecksID = "automaticallyChecksForUpdates";
constexpr std::string_view checkID = "checkForUpdates";
constexpr std::string_view checkButtonID = "checkForUpdates.button";
constexpr std::string_view accessibilityID = "accessibility";
constexpr std::string_view accessibilityButtonID = "accessibility.openSettings";
constexpr std::string_view inputMonitoringID = "inputMonitoring";
constexpr std::string_view inputMonitoringButtonID = "inputMonitoring.openSettings";

enum class Availability { enabled, disabled };

Availability availability(bool isAvailable)
{
    return isAvailable ? Availability::enabled : Availability::disabled;
}

FormRow formRow(std::string_view id, std::string_view title, FormControl control, std::string help,
                Availability availability)
{
    return {
        .id = std::string(id),
        .title = std::string(title),
        .control = std::move(control),
        .help = std::move(help),
        .accessibleName = std::string(title),
        .isEnabled = availability == Availability::enabled,
    };
}

struct PermissionTexts {
    std::string_view id;
    std::string_view buttonID;
    std::string_view title;
    std::string_view help;
};

FormRow permissionRow(const PermissionTexts& texts, bool isGranted, Availability settings)
{
    auto button = titledButton(texts.buttonID, "Open Settings");
    button.accessibleName = "Open Settings for " + std::string(texts.title);
    button.isEnabled = settings == Availability::enabled;
    return formRow(texts.id, texts.title,
                   StatusControl{
                       .symbol = isGranted ? "checkmark.circle.fill" : "xmark.circle.fill",
                       .symbolDescription = isGranted ? "Granted" : "Not granted",
                       .tone = isGranted ? StatusTone::positive : StatusTone::negative,
                       .button = std::move(button),
                   },
                   std::string(texts.help), Availability::enabled);
}

} // namespace

GeneralPreferencesView::GeneralPreferencesView(const Platform& platform, UpdaterController* updater)
    : platform(platform),
      startupLaunchManager(platform.loginItem, Settings(platform.userDefaults)),
      updaterViewModel(updater),
      launchChanges(startupLaunchManager.observe([this] { changed.emit(); })),
      updaterChanges(updaterViewModel.observe([this] { changed.emit(); }))
{
    readPermissions();
}

Form GeneralPreferencesView::form() const
{
    return {
        .note = {},
        .groups = {startupGroup(), updatesGroup(), permissionsGroup()},
        .footnote = {},
        .buttons = {},
        .sheet = std::nullopt,
        .alert = std::nullopt,
    };
}

void GeneralPreferencesView::set(std::string_view id, const ControlValue& value)
{
    if (id == launchID) {
        startupLaunchManager.setEnabled(sentValue<bool>(id, value));
    } else if (id == automaticChecksID) {
        updaterViewModel.setAutomaticallyChecksForUpdates(sentValue<bool>(id, value));
    } else {
        reportUnknownControl(id);
    }
}

void GeneralPreferencesView::press(std::string_view id)
{
    if (id == checkButtonID) {
        updaterViewModel.checkForUpdates();
    } else if (id == accessibilityButtonID) {
        static_cast<void>(platform.permissions.openSettings(Permission::accessibility));
    } else if (id == inputMonitoringButtonID) {
        static_cast<void>(platform.permissions.openSettings(Permission::inputMonitoring));
    } else {
        reportUnknownControl(id);
    }
}

void GeneralPreferencesView::refresh()
{
    readPermissions();
    startupLaunchManager.refresh(); // tells of both
}

FormGroup GeneralPreferencesView::startupGroup() const
{
    return {.title = "Startup",
            .rows = {formRow(launchID, "Launch Quorvel at login", ToggleControl{startupLaunchManager.isEnabled()},
                             startupLaunchManager.explanation(), availability(startupLaunchManager.isAvailable()))}};
}

FormGroup GeneralPreferencesView::updatesGroup() const
{
    const auto isAvailable = availability(updaterViewModel.isAvailable());
    auto button = titledButton(checkButtonID, "Check for Updates...");
    button.isEnabled = updaterViewModel.isAvailable();
    return {.title = "Updates",
            .rows = {formRow(automaticChecksID, "Automatically check for updates",
                             ToggleControl{updaterViewModel.automaticallyChecksForUpdates()}, {}, isAvailable),
                     formRow(checkID, {}, ButtonControl{std::move(button)}, {}, isAvailable)}};
}

FormGroup GeneralPreferencesView::permissionsGroup() const
{
    const auto settingsOf = [this](Permission permission) {
        return availability(platform.permissions.hasSettings(permission));
    };
    return {.title = "Permissions",
            .rows = {permissionRow({accessibilityID, accessibilityButtonID, "Accessibility",
                                    "Global shortcuts and window management."},
                                   accessibilityGranted, settingsOf(Permission::accessibility)),
                     permissionRow({inputMonitoringID, inputMonitoringButtonID, "Input Monitoring",
                                    "Keyboard handling in move/resize mode."},
                                   inputMonitoringGranted, settingsOf(Permission::inputMonitoring))}};
}

void GeneralPreferencesView::readPermissions()
{
    accessibilityGranted = platform.permissions.isGranted(Permission::accessibility);
    inputMonitoringGranted = platform.permissions.isGranted(Permission::inputMonitoring);
}

} // namespace quorvel
