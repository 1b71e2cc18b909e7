#include "platform/simulated/SimulatedAboutWindow.h"

#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedPreferencesUi.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

SimulatedAboutWindow::SimulatedAboutWindow(SimulatedPreferencesUi& owner, AboutContent content)
    : content(std::move(content)), owner(owner)
{}

SimulatedAboutWindow::~SimulatedAboutWindow()
{
    std::erase(owner.abouts, this);
}

void SimulatedAboutWindow::show()
{
    owner.journal.record("AboutWindow.show()");
    visible = true;
    owner.windowServer.activate(SimulatedWindowServer::ownProcess);
}

} // namespace quorvel
