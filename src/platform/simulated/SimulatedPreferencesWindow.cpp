#include "platform/simulated/SimulatedPreferencesWindow.h"

#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedPreferencesUi.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

SimulatedPreferencesWindow::~SimulatedPreferencesWindow()
{
    close();
    std::erase(owner.windows, this);
}

void SimulatedPreferencesWindow::show()
{
    owner.journal.record("PreferencesWindow.show()");
    visible = true;
    owner.windowServer.activate(SimulatedWindowServer::ownProcess);
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
    owner.notificationCenter.post(notificationNames::preferencesWillClose, noNotificationObject);
}

} // namespace quorvel
