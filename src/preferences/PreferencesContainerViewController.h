#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "platform/PreferencesWindowModel.h"
#include "preferences/AppearancePreferencesView.h"
#include "preferences/GeneralPreferencesView.h"
#include "preferences/LayoutsPreferencesViewController.h"
#include "preferences/MoveResizeAppearanceView.h"
#include "preferences/ShortcutPreferencesView.h"
#include "preferences/WindowSwitcherAppearanceView.h"

namespace quorvel {

struct Platform;
class UpdaterController;

// The tabs of the preferences, of which one is in front.
class PreferencesContainerViewController {
public:
    // `updater` is null where this build does not update itself. Both outlive the tabs.
    PreferencesContainerViewController(const Platform& platform, UpdaterController* updater);
    PreferencesContainerViewController(const PreferencesContainerViewController&) = delete;
    PreferencesContainerViewController& operator=(const PreferencesContainerViewController&) = delete;

    std::vector<PreferencesTab> tabs();

    std::size_t selectedTab() const { return selected; }
    void selectTab(std::size_t tab);

    // The window with the tabs comes to be seen, or goes.
    void willAppear();
    void didDisappear();

    void windowDidBecomeActive() { general.refresh(); }

private:
    // A pane, and what it does when it comes to be seen and when it goes; either may be empty.
    struct Tab {
        std::string_view title;
        std::string_view symbol;
        std::variant<FormModel*, LayoutsPaneModel*> pane;
        std::function<void()> willAppear;
        std::function<void()> didDisappear;
    };

    GeneralPreferencesView general;
    ShortcutPreferencesView shortcuts;
    AppearancePreferencesView layoutAppearance;
    WindowSwitcherAppearanceView switcherAppearance;
    MoveResizeAppearanceView moveResizeAppearance;
    LayoutsPreferencesViewController layouts;
    std::vector<Tab> allTabs;
    std::size_t selected = 0;
    bool isSeen = false;
    Subscription foreignChanges;
};

} // namespace quorvel
