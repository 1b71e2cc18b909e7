#include "platform/x11/probe/X11DesktopProbe.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <fmt/format.h>

#include "platform/x11/Connection.h"
#include "platform/x11/Contains.h"
#include "platform/x11/InstanceClaim.h"
#include "platform/x11/Properties.h"
#include "platform/x11/Selections.h"
#include "platform/x11/desktop/LoadableModule.h"
#include "platform/x11/desktop/ToolkitUi.h"
#include "platform/x11/keys/HotKeyCombinations.h"
#include "platform/x11/keys/Keyboard.h"
#include "platform/x11/painting/TextLayouts.h"
#include "platform/x11/probe/GrabTrial.h"
#include "platform/x11/probe/XkbNames.h"

namespace quorvel::x11 {

namespace {

constexpr KeyCode commandKeys[] = {55, 54}; // left, right

struct Hint {
    std::string_view name;
    WindowManagerFeature feature;
};

constexpr Hint hints[] = {
    {"_NET_CLIENT_LIST_STACKING", WindowManagerFeature::listsWindows},
    {"_NET_ACTIVE_WINDOW", WindowManagerFeature::tellsActiveWindow},
    {"_NET_MOVERESIZE_WINDOW", WindowManagerFeature::placesWindows},
    {"_NET_WM_STATE_MAXIMIZED_VERT", WindowManagerFeature::leavesFullscreen},
    {"_NET_FRAME_EXTENTS", WindowManagerFeature::tellsFrames},
    {"_NET_CURRENT_DESKTOP", WindowManagerFeature::switchesDesktops},
    {"_NET_WM_STATE_HIDDEN", WindowManagerFeature::tellsHidden},
};

ModuleState moduleState(const std::filesystem::path& file)
{
    const auto entry = moduleFunction(file, toolkitEntryName);
    return {entry ? std::string() : entry.error()};
}

} // namespace

X11DesktopProbe::X11DesktopProbe(Connection& connection, const Keyboard& keyboard, MainQueue& mainQueue,
                                 std::filesystem::path toolkit)
    : connection(connection),
      keyboard(keyboard),
      toolkit(std::move(toolkit)),
      rootProperties(connection),
      windowManager(connection, mainQueue, rootProperties),
      screens(connection, mainQueue, rootProperties)
{}

DesktopFacts X11DesktopProbe::facts()
{
    const char* const display = std::getenv("DISPLAY");
    return {
        .display = display != nullptr ? display : "",
        .monitors = monitorFacts(),
        .windowManager = windowManagerFacts(),
        .keyboard = keyboardFacts(),
        .hasCompositor = hasOwner("_NET_WM_CM"),
        .hasTray = hasOwner("_NET_SYSTEM_TRAY"),
        .hasFonts = TextLayouts("sans-serif").hasLetters(),
        .isProgramRunning = InstanceClaim::announcedHotKeys(connection).has_value(),
        .toolkit = moduleState(toolkit),
    };
}

HotKeyHolder X11DesktopProbe::hotKeyHolder(std::uint32_t keyCode, std::uint32_t modifiers)
{
    const auto announced = InstanceClaim::announcedHotKeys(connection);
    if (announced && contains(*announced, HeldHotKey{keyCode, modifiers})) {
        return HotKeyHolder::runningProgram;
    }
    const auto combinations = hotKeyCombinations(keyboard.mapping(), static_cast<KeyCode>(keyCode), modifiers);
    if (combinations.empty()) {
        return HotKeyHolder::noSuchKey;
    }
    return isAnyHeldByOthers(connection, combinations) ? HotKeyHolder::anotherProgram : HotKeyHolder::nobody;
}

bool X11DesktopProbe::isCommandKeyHeld()
{
    return std::ranges::any_of(commandKeys, [this](KeyCode key) {
        return isAnyHeldByOthers(connection, hotKeyCombinations(keyboard.mapping(), key, 0));
    });
}

std::optional<WindowManagerFacts> X11DesktopProbe::windowManagerFacts()
{
    if (windowManager.identity() == 0) {
        return std::nullopt;
    }
    WindowManagerFacts facts;
    facts.name =
        text(requestProperty(connection.xcb(), rootProperties.supportingWmCheck.value(), connection.atoms().netWmName)
                 .take()
                 .get());
    for (const auto& [name, feature] : hints) {
        if (windowManager.supports(connection.atom(name))) {
            facts.features.push_back(feature);
        }
    }
    return facts;
}

std::vector<MonitorFacts> X11DesktopProbe::monitorFacts()
{
    const auto& coordinates = screens.coordinates();
    std::vector<MonitorFacts> result;
    for (const auto& [monitor, workArea] : screens.monitors()) {
        result.push_back({nameOf(monitor), coordinates.axRect(monitor.area), coordinates.axRect(workArea)});
    }
    return result;
}

// The id of a monitor is the atom of its name; where RandR is missing it is the root window.
std::string X11DesktopProbe::nameOf(const Monitor& monitor) const
{
    if (monitor.id == connection.root()) {
        return {};
    }
    PendingReply<xcb_get_atom_name_reply> pending(
        connection.xcb(), xcb_get_atom_name(connection.xcb(), static_cast<xcb_atom_t>(monitor.id)));
    const auto reply = pending.take();
    return reply ? std::string(xcb_get_atom_name_name(reply.get()),
                               static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get())))
                 : std::string();
}

KeyboardFacts X11DesktopProbe::keyboardFacts() const
{
    const auto rules = requestProperty(connection.xcb(), connection.root(), connection.atom("_XKB_RULES_NAMES")).take();
    return {xkbLayoutNames(text(rules.get())), keyboard.layoutNumber()};
}

bool X11DesktopProbe::hasOwner(std::string_view selection)
{
    return selectionOwner(connection, connection.atom(fmt::format("{}_S{}", selection, connection.screenNumber()))) !=
           XCB_NONE;
}

} // namespace quorvel::x11
