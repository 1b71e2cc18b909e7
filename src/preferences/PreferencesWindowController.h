#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "platform/NotificationCenter.h"
#include "platform/PreferencesUi.h"

namespace quorvel {

struct Platform;

// The preferences window with its tabs; it announces its closing.
class PreferencesWindowController final : public PreferencesWindowModel {
public:
    // `platform` outlives the controller.
    explicit PreferencesWindowController(const Platform& platform) : platform(platform) {}

    // Makes the window if there is none yet, and shows it; nothing happens where it cannot be made.
    void showWindow();

    // The object of notifications about the window, if there is one.
    std::optional<NotificationObject> windowObject() const;

    PreferencesWindowContent content() const override;
    std::size_t selectedTab() const override { return selected; }
    void selectTab(std::size_t tab) override;
    void windowDidBecomeActive() override;
    void windowWillClose() override;

private:
    const Platform& platform;
    std::size_t selected = 0;
    std::unique_ptr<PreferencesWindow> window;
};

} // namespace quorvel
