#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "contract/ContractDesktop.h"
#include "contract/x11/ContractApplication.h"
#include "contract/x11/ContractKeyboard.h"
#include "contract/x11/ContractMenus.h"
#include "contract/x11/ContractUpdater.h"
#include "contract/x11/X11SessionVerbs.h"
#include "platform/LocalNotificationCenter.h"
#include "platform/StandardOutputLog.h"
#include "platform/x11/Connection.h"
#include "platform/x11/ConnectionSource.h"
#include "platform/x11/desktop/ToolkitModule.h"
#include "platform/x11/desktop/X11Alerts.h"
#include "platform/x11/desktop/X11Bundle.h"
#include "platform/x11/desktop/X11Dates.h"
#include "platform/x11/desktop/X11LoginItem.h"
#include "platform/x11/desktop/X11Permissions.h"
#include "platform/x11/desktop/X11PreferencesUi.h"
#include "platform/x11/desktop/X11StatusBar.h"
#include "platform/x11/desktop/X11SystemColors.h"
#include "platform/x11/keys/KeyAdapters.h"
#include "platform/x11/keys/Keyboard.h"
#include "platform/x11/overlays/OverlayGraphics.h"
#include "platform/x11/overlays/X11OverlayWindows.h"
#include "platform/x11/painting/TextLayouts.h"
#include "platform/x11/painting/X11TextMetrics.h"
#include "platform/x11/settings/PlistUserDefaults.h"
#include "platform/x11/windows/WindowAdapters.h"
#include "support/StrutPanel.h"
#include "support/SystemTray.h"
#include "support/TemporaryDirectory.h"
#include "support/TestDisplay.h"
#include "support/TestWindow.h"
#include "x11/windows/AdapterLoop.h"

namespace quorvel::contract {

// Xvfb with openbox. Accessibility coordinates are those of the root.
class X11ContractDesktop final : public ContractDesktop {
public:
    X11ContractDesktop();
    ~X11ContractDesktop() override;

    ContractPorts ports() override;
    bool can(Capability capability) const override;
    bool turn() override;
    void settle() override;
    void connectScreens(const std::vector<ContractScreen>& screens) override;
    ContractWindow openWindow(const std::string& application, const std::string& title, const AxRect& frame) override;
    AxRect frameOf(const ContractWindow& window) override;
    void closeWindow(const ContractWindow& window) override;
    void endApplication(ProcessId process) override;
    void moveWindow(const ContractWindow& window, const AxRect& frame) override;
    void minimizeWindow(const ContractWindow& window) override;
    void focusWindow(const ContractWindow& window) override;
    bool isMinimized(const ContractWindow& window) override;
    bool isFocused(const ContractWindow& window) override;
    void holdKey(KeyCode keyCode, std::uint64_t flags) override;
    void repeatKey(KeyCode keyCode) override;
    void releaseKey(KeyCode keyCode) override;
    std::vector<KeyCode> keysReceivedBy(const ContractWindow& window) override;
    void holdHotKeyElsewhere(std::uint32_t keyCode, std::uint32_t modifiers) override;
    void clickMouse(AxPoint point) override;
    std::vector<AxRect> ownWindowsOnScreen() override;
    bool chooseFromStatusMenu(std::string_view title) override;
    void addResource(std::string_view name, std::string_view extension, std::string_view content) override;
    void addUnreadableResource(std::string_view name, std::string_view extension) override;
    UserDefaults& reopenedUserDefaults() override;
    std::vector<std::string> logged(const std::function<void()>& work) override;
    void deny(Permission permission) override;

private:
    static xcb_window_t numberOf(const ContractWindow& window) { return static_cast<xcb_window_t>(window.id); }

    x11::ToolkitHost toolkitHost();
    void waitForWindowManager();
    bool isOwn(xcb_window_t window) const;
    bool hasTrayIcon();
    std::vector<std::filesystem::path> resourceDirectories() const;
    std::unique_ptr<x11::PlistUserDefaults> openUserDefaults();
    std::unique_ptr<Updater> openUpdater();

    xtest::TestDisplay display;
    xtest::TemporaryDirectory files;
    x11::AdapterLoop loop;

    std::unique_ptr<x11::Connection> connection;
    x11::ConnectionSource source;
    x11::WindowAdapters windows;
    std::unique_ptr<x11::Keyboard> keyboard;
    x11::KeyAdapters keys;
    std::unique_ptr<x11::OverlayGraphics> graphics;
    x11::TextLayouts textLayouts;
    x11::X11TextMetrics textMetrics;
    x11::X11OverlayWindows overlays;
    LocalNotificationCenter notificationCenter;
    x11::X11Bundle bundle;
    x11::X11Dates dates;
    StandardOutputLog log;
    x11::X11SystemColors systemColors;
    x11::X11Permissions permissions;
    ContractMenus menus;
    x11::X11StatusBar statusBar;
    std::unique_ptr<x11::PlistUserDefaults> userDefaults;
    std::unique_ptr<x11::PlistUserDefaults> laterUserDefaults;
    x11::ToolkitModule toolkit;
    x11::X11Alerts alerts;
    x11::X11LoginItem loginItem;
    std::unique_ptr<Updater> updater;
    x11::X11PreferencesUi preferencesUi;
    X11SessionVerbs session;

    ContractKeyboard person;
    std::map<std::string, std::unique_ptr<ContractApplication>> applications;
    std::vector<std::unique_ptr<xtest::StrutPanel>> panels;
    std::optional<xtest::SystemTray> tray;
    xtest::TestWindow probe; // never shown
};

} // namespace quorvel::contract
