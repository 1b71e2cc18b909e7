#pragma once

#include "contract/macos/BundleFolder.h"
#include "contract/macos/MacSessionVerbs.h"
#include "contract/simulated/SimulatedContractDesktop.h"
#include "macos/compat/Pool.h"
#include "macos/fakes/FakeDesktop.h"
#include "platform/StandardOutputLog.h"
#include "platform/macos/desktop/MacAlerts.h"
#include "platform/macos/desktop/MacBundle.h"
#include "platform/macos/desktop/MacDates.h"
#include "platform/macos/desktop/MacLoginItem.h"
#include "platform/macos/desktop/MacMainQueue.h"
#include "platform/macos/desktop/MacNotificationCenter.h"
#include "platform/macos/desktop/MacPermissions.h"
#include "platform/macos/desktop/MacScreens.h"
#include "platform/macos/desktop/MacStatusBar.h"
#include "platform/macos/desktop/MacSystemColors.h"
#include "platform/macos/desktop/MacUpdater.h"
#include "platform/macos/desktop/MacUserDefaults.h"
#include "platform/macos/keys/MacEventMonitors.h"
#include "platform/macos/keys/MacEventTaps.h"
#include "platform/macos/keys/MacHotKeys.h"
#include "platform/macos/keys/MacKeyboardLayout.h"
#include "platform/macos/overlays/MacOverlayWindows.h"
#include "platform/macos/overlays/MacTextMetrics.h"
#include "platform/macos/preferences/MacPreferencesUi.h"
#include "platform/macos/windows/MacAccessibility.h"
#include "platform/macos/windows/MacWindowList.h"
#include "platform/macos/windows/MacWorkspace.h"

namespace quorvel::contract {

// The macOS adapters on the desktop in memory.
class MacContractDesktop final : public SimulatedContractDesktop {
public:
    MacContractDesktop();
    ~MacContractDesktop() override;

    ContractPorts ports() override;
    bool can(Capability capability) const override;
    bool turn() override;
    void settle() override;
    bool chooseFromStatusMenu(std::string_view title) override;
    UserDefaults& reopenedUserDefaults() override;
    std::vector<std::string> logged(const std::function<void()>& work) override;
    void addResource(std::string_view name, std::string_view extension, std::string_view content) override;
    void addUnreadableResource(std::string_view name, std::string_view extension) override;

private:
    fakes::FakeDesktop fake{desktop};
    fakes::Pool pool; // windows in it go before the desktop that they are on
    BundleFolder bundleFolder;
    macos::MacBundle bundle{bundleFolder.bundle()};
    macos::MacLoginItem loginItem;
    std::unique_ptr<macos::MacUpdater> updater = macos::MacUpdater::make();
    macos::MacMainQueue mainQueue;
    macos::MacAccessibility accessibility{mainQueue};
    macos::MacScreens screens;
    macos::MacDates dates;
    macos::MacNotificationCenter notificationCenter{mainQueue};
    macos::MacUserDefaults userDefaults{mainQueue};
    std::unique_ptr<macos::MacUserDefaults> reopened;
    macos::MacOverlayWindows overlayWindows;
    macos::MacStatusBar statusBar{bundleFolder.bundle()};
    macos::MacAlerts alerts{bundleFolder.bundle()};
    macos::MacSystemColors systemColors;
    macos::MacTextMetrics textMetrics;
    macos::MacWindowList windowList;
    macos::MacWorkspace workspace{mainQueue};
    macos::MacHotKeys hotKeys;
    macos::MacEventTaps eventTaps;
    macos::MacEventMonitors eventMonitors;
    macos::MacKeyboardLayout keyboardLayout;
    macos::MacPermissions permissions{workspace};
    macos::MacPreferencesUi preferencesUi{mainQueue};
    MacSessionVerbs session{desktop};
    StandardOutputLog log;
};

} // namespace quorvel::contract
