#include "contract/simulated/SimulatedSessionVerbs.h"

#include <algorithm>

#include "platform/simulated/SimulatedAboutWindow.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "platform/simulated/SimulatedPreferencesWindow.h"

namespace quorvel::contract {

namespace {

SimulatedPreferencesWindow* preferencesTitled(const SimulatedDesktop& desktop, std::string_view title)
{
    const auto& windows = desktop.preferencesUi.preferencesWindows();
    const auto found = std::ranges::find_if(windows, [&](auto* each) { return each->model.content().title == title; });
    return found == windows.end() ? nullptr : *found;
}

SimulatedAboutWindow* aboutTitled(const SimulatedDesktop& desktop, std::string_view title)
{
    const auto& windows = desktop.preferencesUi.aboutWindows();
    const auto found = std::ranges::find_if(windows, [&](auto* each) { return each->content.windowTitle == title; });
    return found == windows.end() ? nullptr : *found;
}

} // namespace

bool SimulatedSessionVerbs::isShown(std::string_view title)
{
    const auto* const preferences = preferencesTitled(desktop, title);
    const auto* const about = aboutTitled(desktop, title);
    return (preferences != nullptr && preferences->isVisible()) || (about != nullptr && about->isVisible());
}

Size SimulatedSessionVerbs::contentSize(std::string_view title)
{
    return preferencesTitled(desktop, title)->size();
}

void SimulatedSessionVerbs::resize(std::string_view title, const Size& contentSize)
{
    preferencesTitled(desktop, title)->resize(contentSize);
}

void SimulatedSessionVerbs::focusShellWindow(std::string_view title)
{
    preferencesTitled(desktop, title)->activate();
}

void SimulatedSessionVerbs::closeShellWindow(std::string_view title)
{
    if (auto* const preferences = preferencesTitled(desktop, title)) {
        preferences->close();
    } else {
        aboutTitled(desktop, title)->close();
    }
}

// An alert that nobody has an answer for is closed.
void SimulatedSessionVerbs::answerNextAlert(AlertAnswer answer)
{
    if (answer == AlertAnswer::defaultButton) {
        desktop.alerts.chooseDefault();
    }
}

void SimulatedSessionVerbs::removeLoginItem()
{
    desktop.loginItem.setStatus(LoginItemStatus::notRegistered);
}

Updater& SimulatedSessionVerbs::reopenedUpdater()
{
    return desktop.updater;
}

} // namespace quorvel::contract
