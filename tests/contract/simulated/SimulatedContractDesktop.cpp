#include "contract/simulated/SimulatedContractDesktop.h"

#include <algorithm>

namespace quorvel::contract {

SimulatedContractDesktop::SimulatedContractDesktop() = default;

SimulatedContractDesktop::~SimulatedContractDesktop() = default;

ContractPorts SimulatedContractDesktop::ports()
{
    return {.log = &desktop.log,
            .mainQueue = &desktop.mainQueue,
            .userDefaults = &desktop.userDefaults,
            .notificationCenter = &desktop.notificationCenter,
            .bundle = &desktop.bundle,
            .dates = &desktop.dates,
            .accessibility = &desktop.accessibility,
            .hotKeys = &desktop.hotKeys,
            .eventTaps = &desktop.eventTaps,
            .windowList = &desktop.windowList,
            .workspace = &desktop.workspace,
            .screens = &desktop.screens,
            .keyboardLayout = &desktop.keyboardLayout,
            .eventMonitors = &desktop.eventMonitors,
            .overlayWindows = &desktop.overlayWindows,
            .textMetrics = &desktop.textMetrics,
            .systemColors = &desktop.systemColors,
            .statusBar = &desktop.statusBar,
            .permissions = &desktop.permissions,
            .alerts = &desktop.alerts,
            .preferencesUi = &desktop.preferencesUi,
            .loginItem = &desktop.loginItem,
            .updater = &desktop.updater,
            .session = &session};
}

bool SimulatedContractDesktop::can(Capability capability) const
{
    switch (capability) {
    case Capability::denyPermissions:
    case Capability::keepKeysOfATap:
    case Capability::showStatusItems:
        return true;
    }
    return false;
}

bool SimulatedContractDesktop::turn()
{
    return desktop.mainQueue.turn() > 0 || desktop.mainQueue.advanceToNext();
}

void SimulatedContractDesktop::settle()
{
    desktop.drain();
}

void SimulatedContractDesktop::connectScreens(const std::vector<ContractScreen>& screens)
{
    const double height = screens.front().bounds.height;
    std::vector<Screen> arrangement;
    for (const auto& [bounds, reservedAtTop] : screens) {
        const ScreenRect frame{bounds.x, height - bounds.y - bounds.height, bounds.width, bounds.height};
        arrangement.push_back(
            {arrangement.size() + 1, frame, {frame.x, frame.y, frame.width, frame.height - reservedAtTop}});
    }
    desktop.screens.connect(std::move(arrangement));
}

ContractWindow SimulatedContractDesktop::openWindow(const std::string& application, const std::string& title,
                                                    const AxRect& frame)
{
    auto& running = applications[application];
    if (running == nullptr) {
        running = &desktop.launch(application);
    }
    auto& window = desktop.openWindow(*running, title, frame);
    windows.emplace(window.number, &window);
    return {window.process(), window.number};
}

AxRect SimulatedContractDesktop::frameOf(const ContractWindow& window)
{
    return find(window).frame();
}

void SimulatedContractDesktop::closeWindow(const ContractWindow& window)
{
    desktop.closeWindow(find(window));
}

void SimulatedContractDesktop::endApplication(ProcessId process)
{
    const auto entry =
        std::ranges::find_if(applications, [&](const auto& each) { return each.second->process() == process; });
    desktop.terminate(*entry->second);
    applications.erase(entry);
}

void SimulatedContractDesktop::moveWindow(const ContractWindow& window, const AxRect& frame)
{
    desktop.moveWindow(find(window), frame);
}

void SimulatedContractDesktop::minimizeWindow(const ContractWindow& window)
{
    desktop.minimize(find(window));
}

void SimulatedContractDesktop::focusWindow(const ContractWindow& window)
{
    desktop.focus(find(window));
}

bool SimulatedContractDesktop::isMinimized(const ContractWindow& window)
{
    return find(window).isMinimized();
}

bool SimulatedContractDesktop::isFocused(const ContractWindow& window)
{
    const auto& wanted = find(window);
    return desktop.windowServer.frontmostProcess() == wanted.process() &&
           desktop.windowServer.frontWindow(wanted.application) == &wanted;
}

void SimulatedContractDesktop::holdKey(KeyCode keyCode, std::uint64_t flags)
{
    desktop.hold(keyCode, flags);
}

void SimulatedContractDesktop::repeatKey(KeyCode keyCode)
{
    desktop.repeatKey(keyCode);
}

void SimulatedContractDesktop::releaseKey(KeyCode keyCode)
{
    desktop.releaseKey(keyCode);
}

std::vector<KeyCode> SimulatedContractDesktop::keysReceivedBy(const ContractWindow& window)
{
    std::vector<KeyCode> result;
    for (const auto& event : find(window).application.receivedKeys()) {
        result.push_back(event.keyCode);
    }
    return result;
}

void SimulatedContractDesktop::holdHotKeyElsewhere(std::uint32_t keyCode, std::uint32_t modifiers)
{
    desktop.hotKeys.holdElsewhere({keyCode, modifiers});
}

void SimulatedContractDesktop::clickMouse(AxPoint point)
{
    desktop.clickMouse(point);
}

std::vector<AxRect> SimulatedContractDesktop::ownWindowsOnScreen()
{
    std::vector<AxRect> result;
    for (const auto& each : desktop.overlayWindows.visible()) {
        result.push_back(desktop.screens.flipped(each->frame));
    }
    return result;
}

bool SimulatedContractDesktop::chooseFromStatusMenu(std::string_view title)
{
    return desktop.statusBar.choose(title);
}

void SimulatedContractDesktop::addResource(std::string_view name, std::string_view extension, std::string_view content)
{
    desktop.bundle.addResource(name, extension, std::string(content));
}

void SimulatedContractDesktop::addUnreadableResource(std::string_view name, std::string_view extension)
{
    desktop.bundle.addUnreadableResource(name, extension, "The file cannot be opened");
}

UserDefaults& SimulatedContractDesktop::reopenedUserDefaults()
{
    return desktop.userDefaults;
}

std::vector<std::string> SimulatedContractDesktop::logged(const std::function<void()>& work)
{
    const auto before = desktop.log.lines().size();
    work();
    std::vector<std::string> pieces(desktop.log.lines().begin() + static_cast<std::ptrdiff_t>(before),
                                    desktop.log.lines().end());
    std::ranges::for_each(pieces, [](std::string& line) { line += '\n'; });
    return pieces;
}

void SimulatedContractDesktop::deny(Permission permission)
{
    desktop.permissions.deny(permission);
}

SimulatedWindow& SimulatedContractDesktop::find(const ContractWindow& window)
{
    return *windows.at(window.id);
}

} // namespace quorvel::contract
