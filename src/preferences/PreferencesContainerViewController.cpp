#include "preferences/PreferencesContainerViewController.h"

#include <string>

#include "base/FatalError.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"

namespace quorvel {

PreferencesContainerViewController::PreferencesContainerViewController(const Platform& platform,
                                                                       UpdaterController* updater)
    : general(platform, updater),
      shortcuts(platform),
      layoutAppearance(platform),
      switcherAppearance(platform),
      moveResizeAppearance(platform),
      layouts(platform),
      allTabs{
          {"General", "gearshape", &general, [this] { general.refresh(); }, {}},
          {"Shortcuts", "keyboard", &shortcuts, {}, [this] { shortcuts.stopRecording(); }},
          {"Layout Appearance", "paintbrush", &layoutAppearance, {}, {}},
          {"Window Switcher Appearance",
           "switch.2",
           &switcherAppearance,
           [this] { switcherAppearance.paneWillAppear(); },
           {}},
          {"Move/Resize Appearance", "arrow.up.left.and.arrow.down.right", &moveResizeAppearance, {}, {}},
          {"Layouts", "square.grid.2x2", &layouts, [this] { layouts.reload(); }, {}},
      },
      foreignChanges(platform.userDefaults.observeForeignChanges([this] { layouts.reload(); }))
{}

std::vector<PreferencesTab> PreferencesContainerViewController::tabs()
{
    std::vector<PreferencesTab> result;
    result.reserve(allTabs.size());
    for (const auto& tab : allTabs) {
        result.push_back({std::string(tab.title), std::string(tab.symbol), tab.pane});
    }
    return result;
}

void PreferencesContainerViewController::selectTab(std::size_t tab)
{
    if (tab >= allTabs.size()) {
        fatalError("There is no such tab in the preferences");
    }
    if (tab == selected) {
        return;
    }
    const bool wasSeen = isSeen;
    didDisappear();
    selected = tab;
    if (wasSeen) {
        willAppear();
    }
}

void PreferencesContainerViewController::willAppear()
{
    if (!isSeen && allTabs[selected].willAppear) {
        allTabs[selected].willAppear();
    }
    isSeen = true;
}

void PreferencesContainerViewController::didDisappear()
{
    if (isSeen && allTabs[selected].didDisappear) {
        allTabs[selected].didDisappear();
    }
    isSeen = false;
}

} // namespace quorvel
