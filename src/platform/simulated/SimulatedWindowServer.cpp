#include "platform/simulated/SimulatedWindowServer.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/FatalError.h"

namespace quorvel {

SimulatedApplication& SimulatedWindowServer::launch(RunningApplication description)
{
    if (description.process == ownProcess || application(description.process) != nullptr) {
        fatalError("Process " + std::to_string(description.process) + " is running already");
    }
    frontmost = description.process;
    return *applications.emplace_back(std::make_unique<SimulatedApplication>(std::move(description)));
}

void SimulatedWindowServer::terminate(SimulatedApplication& application)
{
    for (auto* window : windows(application)) {
        close(*window);
    }
    application.running = false;
    if (frontmost == application.process()) {
        const auto next = onScreenWindows();
        frontmost = next.empty() ? std::nullopt : std::optional(next.front()->process());
    }
}

void SimulatedWindowServer::receiveKey(SimulatedApplication& application, const KeyEvent& event)
{
    application.keys.push_back(event);
}

SimulatedWindow& SimulatedWindowServer::openWindow(SimulatedApplication& application, std::string title,
                                                   const AxRect& frame)
{
    auto& window = *allWindows.emplace_back(
        std::make_unique<SimulatedWindow>(allWindows.size() + 1, application, std::move(title), frame));
    stacking.insert(stacking.begin(), &window);
    frontmost = application.process();
    return window;
}

void SimulatedWindowServer::close(SimulatedWindow& window)
{
    if (!window.open) {
        return;
    }
    window.open = false;
    std::erase(stacking, &window);
    listener(window, axNames::elementDestroyed);
}

void SimulatedWindowServer::move(SimulatedWindow& window, AxPoint position)
{
    if (window.rect.origin() == position) {
        return;
    }
    window.rect = AxRect::of(position, window.rect.size());
    listener(window, axNames::moved);
}

void SimulatedWindowServer::resize(SimulatedWindow& window, Size size)
{
    if (window.sizeLimits) {
        const auto& [smallest, largest] = *window.sizeLimits;
        size = {std::clamp(size.width, smallest.width, largest.width),
                std::clamp(size.height, smallest.height, largest.height)};
    }
    if (window.rect.size() == size) {
        return;
    }
    window.rect = AxRect::of(window.rect.origin(), size);
    listener(window, axNames::resized);
}

void SimulatedWindowServer::minimize(SimulatedWindow& window)
{
    window.minimized = true;
}

void SimulatedWindowServer::restore(SimulatedWindow& window)
{
    if (std::exchange(window.minimized, false)) {
        bringToFront(window);
    }
}

void SimulatedWindowServer::raise(SimulatedWindow& window)
{
    bringToFront(window);
}

void SimulatedWindowServer::activate(ProcessId process)
{
    const auto* target = application(process);
    if (target == nullptr && process != ownProcess) {
        return;
    }
    frontmost = process;
    if (target != nullptr) {
        if (auto* window = frontWindow(*target)) {
            bringToFront(*window);
        }
    }
}

SimulatedApplication* SimulatedWindowServer::application(ProcessId process) const
{
    const auto match = std::ranges::find_if(
        applications, [&](const auto& each) { return each->running && each->process() == process; });
    return match == applications.end() ? nullptr : match->get();
}

SimulatedWindow* SimulatedWindowServer::window(std::uint64_t number) const
{
    const bool exists = number >= 1 && number <= allWindows.size();
    return exists && allWindows[number - 1]->open ? allWindows[number - 1].get() : nullptr;
}

SimulatedWindow* SimulatedWindowServer::frontWindow(const SimulatedApplication& application) const
{
    const auto match = std::ranges::find_if(stacking, [&](const SimulatedWindow* each) {
        return each->isOnScreen() && &each->application == &application;
    });
    return match == stacking.end() ? nullptr : *match;
}

SimulatedWindow* SimulatedWindowServer::windowAt(AxPoint point) const
{
    const auto match = std::ranges::find_if(
        stacking, [&](const SimulatedWindow* each) { return each->isOnScreen() && each->rect.contains(point); });
    return match == stacking.end() ? nullptr : *match;
}

std::vector<SimulatedApplication*> SimulatedWindowServer::runningApplications() const
{
    std::vector<SimulatedApplication*> result;
    for (const auto& each : applications) {
        if (each->running) {
            result.push_back(each.get());
        }
    }
    return result;
}

std::vector<SimulatedWindow*> SimulatedWindowServer::windows(const SimulatedApplication& application) const
{
    std::vector<SimulatedWindow*> result;
    for (const bool minimized : {false, true}) {
        std::ranges::copy_if(stacking, std::back_inserter(result), [&](const SimulatedWindow* each) {
            return &each->application == &application && each->isMinimized() == minimized;
        });
    }
    return result;
}

std::vector<SimulatedWindow*> SimulatedWindowServer::onScreenWindows() const
{
    std::vector<SimulatedWindow*> result;
    std::ranges::copy_if(stacking, std::back_inserter(result),
                         [](const SimulatedWindow* each) { return each->isOnScreen(); });
    return result;
}

void SimulatedWindowServer::bringToFront(SimulatedWindow& window)
{
    const auto position = std::ranges::find(stacking, &window);
    if (position != stacking.end()) {
        std::rotate(stacking.begin(), position, std::next(position));
    }
}

} // namespace quorvel
