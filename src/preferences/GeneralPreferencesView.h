#pragma once

#include "base/Signal.h"
#include "platform/FormModel.h"
#include "platform/Permissions.h"
#include "preferences/StartupLaunchManager.h"
#include "preferences/UpdaterViewModel.h"

namespace quorvel {

struct Platform;

// The pane for launching at login, updates and permissions.
class GeneralPreferencesView final : public FormModel {
public:
    // `updater` is null where this build does not update itself. Both outlive the pane.
    GeneralPreferencesView(const Platform& platform, UpdaterController* updater);

    Form form() const override;
    Subscription observe(std::function<void()> observer) override { return changed.observe(std::move(observer)); }
    void set(std::string_view id, const ControlValue& value) override;
    void press(std::string_view id) override;

    // Looks again at what others decide: the login item and the permissions. Asks nobody for anything.
    void refresh();

private:
    FormGroup startupGroup() const;
    FormGroup updatesGroup() const;
    FormGroup permissionsGroup() const;
    void readPermissions();

    const Platform& platform;
    StartupLaunchManager startupLaunchManager;
    UpdaterViewModel updaterViewModel;
    bool accessibilityGranted = false;
    bool inputMonitoringGranted = false;
    Signal<> changed;
    Subscription launchChanges;
    Subscription updaterChanges;
};

} // namespace quorvel
