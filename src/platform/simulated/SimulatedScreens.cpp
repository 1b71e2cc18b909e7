#include "platform/simulated/SimulatedScreens.h"

#include <algorithm>
#include <utility>

#include "base/FatalError.h"
#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

namespace {

double sharedArea(const ScreenRect& a, const ScreenRect& b)
{
    const auto shared = a.intersectionWith(b);
    return shared.isNull() ? 0.0 : shared.area();
}

} // namespace

SimulatedScreens::SimulatedScreens(Journal& journal, const SimulatedWindowServer& windowServer)
    : journal(journal), windowServer(windowServer)
{
    add({0.0, 0.0, 1440.0, 900.0}, {0.0, 0.0, 1440.0, 875.0});
}

std::vector<Screen> SimulatedScreens::screens()
{
    journal.record("Screens.screens()");
    return connected;
}

std::optional<Screen> SimulatedScreens::mainScreen()
{
    journal.record("Screens.mainScreen()");
    if (connected.empty()) {
        return std::nullopt;
    }
    const auto process = windowServer.frontmostProcess();
    const auto* application = process ? windowServer.application(*process) : nullptr;
    const auto* window = application != nullptr ? windowServer.frontWindow(*application) : nullptr;
    if (window == nullptr) {
        return connected.front();
    }
    return *std::ranges::max_element(
        connected, {}, [rect = flipped(window->frame())](const Screen& each) { return sharedArea(each.frame, rect); });
}

void SimulatedScreens::connect(std::vector<Screen> screens)
{
    connected = std::move(screens);
    for (auto& each : connected) {
        giveId(each);
    }
}

std::uint64_t SimulatedScreens::add(const ScreenRect& frame, const ScreenRect& visibleFrame)
{
    Screen screen{0, frame, visibleFrame};
    giveId(screen);
    connected.push_back(screen);
    return screen.id;
}

void SimulatedScreens::remove(std::uint64_t id)
{
    std::erase_if(connected, [&](const Screen& each) { return each.id == id; });
}

void SimulatedScreens::resize(std::uint64_t id, const ScreenRect& frame, const ScreenRect& visibleFrame)
{
    const auto screen = std::ranges::find(connected, id, &Screen::id);
    if (screen == connected.end()) {
        fatalError("No display has the id " + std::to_string(id));
    }
    screen->frame = frame;
    screen->visibleFrame = visibleFrame;
}

AxRect SimulatedScreens::flipped(const ScreenRect& rect) const
{
    return {rect.x, primaryHeight() - rect.y - rect.height, rect.width, rect.height};
}

ScreenRect SimulatedScreens::flipped(const AxRect& rect) const
{
    return {rect.x, primaryHeight() - rect.y - rect.height, rect.width, rect.height};
}

void SimulatedScreens::giveId(Screen& screen)
{
    if (screen.id == 0) {
        screen.id = nextId;
    }
    nextId = std::max(nextId, screen.id) + 1;
}

} // namespace quorvel
