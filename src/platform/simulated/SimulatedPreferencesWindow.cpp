#include "platform/simulated/SimulatedPreferencesWindow.h"

#include <algorithm>
#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedPreferencesUi.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

SimulatedPreferencesWindow::SimulatedPreferencesWindow(SimulatedPreferencesUi& owner, PreferencesWindowModel& model)
    : model(model), owner(owner), contentSize(model.content().size)
{}

SimulatedPreferencesWindow::~SimulatedPreferencesWindow()
{
    close();
    std::erase(owner.windows, this);
}

void SimulatedPreferencesWindow::show()
{
    owner.journal.record("PreferencesWindow.show()");
    visible = true;
    centered = true;
    activate();
}

NotificationObject SimulatedPreferencesWindow::notificationObject() const
{
    return reinterpret_cast<NotificationObject>(this);
}

void SimulatedPreferencesWindow::close()
{
    if (!std::exchange(visible, false)) {
        return;
    }
    owner.notificationCenter.post(notificationNames::windowWillClose, notificationObject());
    model.windowWillClose();
}

void SimulatedPreferencesWindow::resize(const Size& size)
{
    const auto minimum = model.content().minimumSize;
    contentSize = {std::max(size.width, minimum.width), std::max(size.height, minimum.height)};
}

void SimulatedPreferencesWindow::activate()
{
    owner.windowServer.activate(SimulatedWindowServer::ownProcess);
    owner.mainQueue.async(weakly.guard([this] {
        if (visible) {
            model.windowDidBecomeActive();
        }
    }));
}

} // namespace quorvel
