#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "platform/NotificationCenter.h"
#include "platform/PreferencesUi.h"
#include "preferences/PreferencesContainerViewController.h"

namespace quorvel {

struct Platform;
class UpdaterController;

// The preferences window with its tabs; it announces its closing.
class PreferencesWindowController final : public PreferencesWindowModel {
public:
    // `updater` is null where this build does not update itself. Both outlive the controller.
    PreferencesWindowController(const Platform& platform, UpdaterController* updater);

    // Makes the window if there is none yet, and shows it; nothing happens where it cannot be made.
    void showWindow();

    // The object of notifications about the window, if there is one.
    std::optional<NotificationObject> windowObject() const;

    PreferencesWindowContent content() override;
    std::size_t selectedTab() const override { return container.selectedTab(); }
    void selectTab(std::size_t tab) override;
    void windowDidBecomeActive() override;
    void windowWillClose() override;

private:
    const Platform& platform;
    PreferencesContainerViewController container;
    std::unique_ptr<PreferencesWindow> window; // goes first, and tells of its end
};

} // namespace quorvel
