#include "platform/simulated/SimulatedPreferencesUi.h"

#include <algorithm>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedAboutWindow.h"
#include "platform/simulated/SimulatedPreferencesWindow.h"

namespace quorvel {

SimulatedPreferencesUi::SimulatedPreferencesUi(Journal& journal, SimulatedMainQueue& mainQueue,
                                               NotificationCenter& notificationCenter,
                                               SimulatedWindowServer& windowServer)
    : journal(journal), mainQueue(mainQueue), notificationCenter(notificationCenter), windowServer(windowServer)
{}

SimulatedPreferencesUi::~SimulatedPreferencesUi() = default;

std::unique_ptr<PreferencesWindow> SimulatedPreferencesUi::createWindow(PreferencesWindowModel& model)
{
    journal.record("PreferencesUi.createWindow()");
    if (windowsRefused) {
        return nullptr;
    }
    auto window = std::make_unique<SimulatedPreferencesWindow>(*this, model);
    windows.push_back(window.get());
    ++created;
    return window;
}

std::unique_ptr<AboutWindow> SimulatedPreferencesUi::createAboutWindow(const AboutContent& content)
{
    journal.record("PreferencesUi.createAboutWindow()");
    if (windowsRefused) {
        return nullptr;
    }
    auto window = std::make_unique<SimulatedAboutWindow>(*this, content);
    abouts.push_back(window.get());
    return window;
}

bool SimulatedPreferencesUi::isWindowVisible() const
{
    return std::ranges::any_of(windows, [](const auto* each) { return each->isVisible(); });
}

void SimulatedPreferencesUi::closeWindows()
{
    for (auto* each : windows) {
        each->close();
    }
}

} // namespace quorvel
