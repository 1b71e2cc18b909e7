#include "platform/simulated/SimulatedPreferencesUi.h"

#include <algorithm>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedPreferencesWindow.h"

namespace quorvel {

SimulatedPreferencesUi::SimulatedPreferencesUi(Journal& journal, NotificationCenter& notificationCenter,
                                               SimulatedWindowServer& windowServer)
    : journal(journal), notificationCenter(notificationCenter), windowServer(windowServer)
{}

SimulatedPreferencesUi::~SimulatedPreferencesUi() = default;

std::unique_ptr<PreferencesWindow> SimulatedPreferencesUi::createWindow()
{
    journal.record("PreferencesUi.createWindow()");
    if (windowsRefused) {
        return nullptr;
    }
    auto window = std::make_unique<SimulatedPreferencesWindow>(*this);
    windows.push_back(window.get());
    ++created;
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
