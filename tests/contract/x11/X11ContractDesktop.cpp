#include "contract/x11/X11ContractDesktop.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include <gtest/gtest.h>
#include <unistd.h>

#include "base/FatalError.h"
#include "support/CapturedOutput.h"
#include "support/Patience.h"

namespace quorvel::contract {

namespace {

using xtest::PixelRect;

constexpr std::uint32_t sourceIsPager = 2;

// All four values, by the frame's upper left corner.
constexpr std::uint32_t moveResizeFlags = 1U | 0xFU << 8U | sourceIsPager << 12U;

PixelRect pixels(const AxRect& rect)
{
    const auto whole = [](double value) { return static_cast<int>(std::lround(value)); };
    return {whole(rect.x), whole(rect.y), whole(rect.width), whole(rect.height)};
}

template <class Value>
Value valueOf(std::expected<Value, std::string> result)
{
    if (!result) {
        throw xtest::HarnessError(result.error());
    }
    return *std::move(result);
}

} // namespace

X11ContractDesktop::X11ContractDesktop()
    : loop(display.client),
      connection(valueOf(x11::Connection::open(display.server.display().c_str()))),
      source(*connection),
      windows(*connection, loop.mainLoop(), {{"/bin/true"}, [] {}}),
      keyboard(valueOf(x11::Keyboard::open(*connection, loop.mainLoop()))),
      keys(*connection, *keyboard, loop.mainLoop()),
      graphics(valueOf(x11::OverlayGraphics::create(*connection))),
      textLayouts("DejaVu Sans"),
      textMetrics(textLayouts),
      overlays(*connection, loop.mainLoop(), windows.precedence, windows.screens, *keyboard, windows.typingPause,
               *graphics, textLayouts),
      notificationCenter(loop.mainLoop()),
      bundle(resourceDirectories()),
      systemColors(files.path() / "kdeglobals"),
      permissions(*connection),
      menus(loop.mainLoop()),
      statusBar(*connection, bundle, menus),
      userDefaults(openUserDefaults()),
      toolkit(x11::ToolkitModule::standardFile(), display.server.display(), toolkitHost()),
      alerts(bundle, toolkit),
      loginItem({files.path() / "autostart", {}, "/bin/true"}),
      updater(openUpdater()),
      preferencesUi(toolkit, notificationCenter),
      session(display, loop.mainLoop(), files.path() / "autostart", [this] { return openUpdater(); }),
      person(display.server, display.keyboard, *keyboard),
      probe(display.server, {})
{
    display.startWindowManager(xtest::WindowManager::openbox);
}

X11ContractDesktop::~X11ContractDesktop() = default;

ContractPorts X11ContractDesktop::ports()
{
    return {.log = &log,
            .mainQueue = &loop.mainLoop(),
            .userDefaults = userDefaults.get(),
            .notificationCenter = &notificationCenter,
            .bundle = &bundle,
            .dates = &dates,
            .accessibility = &windows.accessibility,
            .hotKeys = &keys.hotKeys,
            .eventTaps = &keys.eventTaps,
            .windowList = &windows.windowList,
            .workspace = &windows.workspace,
            .screens = &windows.screens,
            .keyboardLayout = &keys.keyboardLayout,
            .eventMonitors = &keys.eventMonitors,
            .overlayWindows = &overlays,
            .textMetrics = &textMetrics,
            .systemColors = &systemColors,
            .statusBar = &statusBar,
            .permissions = &permissions,
            .alerts = &alerts,
            .preferencesUi = &preferencesUi,
            .loginItem = &loginItem,
            .updater = updater.get(),
            .session = &session};
}

// Without a style, so that the toolkit looks as it likes.
x11::ToolkitHost X11ContractDesktop::toolkitHost()
{
    return {.imageFile = [this](std::string_view name, int size) { return bundle.imageFile(name, size); },
            .activate = [this](std::uint32_t window) { windows.windowManager.activate(window); },
            .keyDown = [this](std::uint8_t keycode,
                              std::uint16_t state) { return keys.eventMonitors.reportLocalKeyDown(keycode, state); },
            .textLayouts = textLayouts};
}

bool X11ContractDesktop::can(Capability capability) const
{
    switch (capability) {
    case Capability::denyPermissions:
        return false;
    case Capability::keepKeysOfATap:
        return true;
    case Capability::showStatusItems:
        return xtest::SystemTray::isInstalled();
    }
    return false;
}

bool X11ContractDesktop::turn()
{
    return loop.turn();
}

void X11ContractDesktop::settle()
{
    for (int round = 0; round < 2; ++round) { // what has been caused, and what that causes
        loop.drain();
        connection->sync();
        waitForWindowManager();
        connection->sync();
        loop.drain();
        loop.waitFor("windows to come to rest", [this] { return !windows.placements.isBusy(); });
    }
}

// It takes messages one after the other; the answer to the last one comes after it has dealt with all others.
void X11ContractDesktop::waitForWindowManager()
{
    auto& client = display.client;
    const auto extents = client.atom("_NET_FRAME_EXTENTS");
    bool hasAnswered = false;
    xtest::XClient asking(display.server);
    asking.observeEvents([&](const xcb_generic_event_t& event) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        hasAnswered = hasAnswered || ((event.response_type & 0x7F) == XCB_PROPERTY_NOTIFY &&
                                      change.window == probe.id() && change.atom == extents);
    });
    asking.sendToWindowManager(probe.id(), "_NET_REQUEST_FRAME_EXTENTS", {});
    asking.waitFor("the window manager's answer", [&] { return hasAnswered; });
}

void X11ContractDesktop::connectScreens(const std::vector<ContractScreen>& screens)
{
    std::vector<xtest::Monitor> monitors;
    monitors.reserve(screens.size());
    for (const auto& screen : screens) {
        monitors.push_back({"M" + std::to_string(monitors.size()), pixels(screen.bounds),
                            monitors.empty() ? xtest::MonitorRole::primary : xtest::MonitorRole::secondary});
    }
    display.monitors.arrange(monitors);
    panels.clear();
    for (const auto& screen : screens) {
        if (screen.reservedAtTop > 0.0) {
            panels.push_back(std::make_unique<xtest::StrutPanel>(
                display.server, pixels(screen.bounds), xtest::Side::top, static_cast<int>(screen.reservedAtTop)));
        }
    }
}

ContractWindow X11ContractDesktop::openWindow(const std::string& application, const std::string& title,
                                              const AxRect& frame)
{
    auto& running = applications[application];
    if (!running) {
        running = std::make_unique<ContractApplication>(display.server, application);
    }
    const ContractWindow window{static_cast<ProcessId>(running->process()), running->open(title)};
    display.client.waitFor("a window to be managed", [&] {
        return std::ranges::count(display.client.managedWindows(), numberOf(window)) > 0 &&
               display.client.isViewable(numberOf(window));
    });
    person.listenTo(numberOf(window));
    moveWindow(window, frame);
    focusWindow(window);
    return window;
}

AxRect X11ContractDesktop::frameOf(const ContractWindow& window)
{
    const auto outer = display.client.outerRect(numberOf(window));
    return outer ? outer->inPoints() : AxRect::null();
}

void X11ContractDesktop::closeWindow(const ContractWindow& window)
{
    for (const auto& [name, application] : applications) {
        if (application->process() == window.process) {
            application->close(numberOf(window));
        }
    }
    display.client.waitFor("a closed window to be forgotten",
                           [&] { return std::ranges::count(display.client.managedWindows(), numberOf(window)) == 0; });
}

void X11ContractDesktop::endApplication(ProcessId process)
{
    const auto entry =
        std::ranges::find_if(applications, [&](const auto& each) { return each.second->process() == process; });
    entry->second->end();
    applications.erase(entry);
    display.client.waitFor("the windows of an ended application to go", [&] {
        return std::ranges::none_of(display.client.managedWindows(),
                                    [&](xcb_window_t window) { return display.client.processOf(window) == process; });
    });
}

void X11ContractDesktop::moveWindow(const ContractWindow& window, const AxRect& frame)
{
    const auto number = numberOf(window);
    const auto wanted = pixels(frame);
    const auto extents = display.client.frameExtents(number);
    display.client.sendToWindowManager(number, "_NET_MOVERESIZE_WINDOW",
                                       {moveResizeFlags, static_cast<std::uint32_t>(wanted.x),
                                        static_cast<std::uint32_t>(wanted.y),
                                        static_cast<std::uint32_t>(wanted.width - extents.left - extents.right),
                                        static_cast<std::uint32_t>(wanted.height - extents.top - extents.bottom)});
    display.client.waitFor("a window to be moved", [&] { return display.client.outerRect(number) == wanted; });
}

void X11ContractDesktop::minimizeWindow(const ContractWindow& window)
{
    constexpr std::uint32_t iconic = 3;
    display.client.sendToWindowManager(numberOf(window), "WM_CHANGE_STATE", {iconic, 0, 0, 0, 0});
    display.client.waitFor("a window to be minimized", [&] { return isMinimized(window); });
}

void X11ContractDesktop::focusWindow(const ContractWindow& window)
{
    display.client.activate(numberOf(window));
    display.client.waitFor("a window to get the keyboard", [&] { return isFocused(window); });
}

bool X11ContractDesktop::isMinimized(const ContractWindow& window)
{
    return display.client.hasState(numberOf(window), "_NET_WM_STATE_HIDDEN");
}

bool X11ContractDesktop::isFocused(const ContractWindow& window)
{
    auto* const link = display.client.connection();
    const xtest::XReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(link, xcb_get_input_focus(link), nullptr));
    return display.client.activeWindow() == numberOf(window) && focus && focus->focus == numberOf(window);
}

void X11ContractDesktop::holdKey(KeyCode keyCode, std::uint64_t flags)
{
    connection->sync();
    person.hold(keyCode, flags);
}

// The server repeats keys by its clock only.
void X11ContractDesktop::repeatKey(KeyCode keyCode)
{
    settle(); // what the key did before
    bool hasRepeated = false;
    const auto watching =
        connection->addHandler<xcb_key_press_event_t>(XCB_KEY_PRESS, [&](const xcb_key_press_event_t& event) {
            hasRepeated = hasRepeated || keyboard->mapping().keyCode(event.detail) == keyCode;
        });
    loop.waitFor("a key that a port has taken to repeat", [&] { return hasRepeated; });
}

void X11ContractDesktop::releaseKey(KeyCode keyCode)
{
    connection->sync();
    person.release(keyCode);
}

std::vector<KeyCode> X11ContractDesktop::keysReceivedBy(const ContractWindow& window)
{
    return person.keysReceivedBy(numberOf(window));
}

void X11ContractDesktop::holdHotKeyElsewhere(std::uint32_t keyCode, std::uint32_t modifiers)
{
    person.takeHotKeyElsewhere(keyCode, modifiers);
}

void X11ContractDesktop::clickMouse(AxPoint point)
{
    connection->sync();
    display.keyboard.click(static_cast<int>(point.x), static_cast<int>(point.y));
}

std::vector<AxRect> X11ContractDesktop::ownWindowsOnScreen()
{
    connection->sync();
    std::vector<AxRect> frames;
    for (const auto window : display.client.children(display.client.root())) {
        if (isOwn(window) && display.client.isViewable(window)) {
            frames.insert(frames.begin(), display.client.clientRect(window)->inPoints());
        }
    }
    return frames;
}

bool X11ContractDesktop::isOwn(xcb_window_t window) const
{
    const auto& setup = *xcb_get_setup(connection->xcb());
    return (window & ~setup.resource_id_mask) == setup.resource_id_base;
}

UserDefaults& X11ContractDesktop::reopenedUserDefaults()
{
    laterUserDefaults = openUserDefaults();
    return *laterUserDefaults;
}

std::unique_ptr<x11::PlistUserDefaults> X11ContractDesktop::openUserDefaults()
{
    return std::make_unique<x11::PlistUserDefaults>(x11::SettingsFile(files.path() / "settings.plist"),
                                                    [](std::string_view line) { ADD_FAILURE() << line; });
}

std::unique_ptr<Updater> X11ContractDesktop::openUpdater()
{
    return std::make_unique<ContractUpdater>(ContractUpdater::Ports{loop.mainLoop(), alerts, windows.workspace, dates},
                                             files.path() / "updates.plist");
}

std::vector<std::string> X11ContractDesktop::logged(const std::function<void()>& work)
{
    xtest::CapturedOutput output;
    work();
    return output.pieces();
}

// There are no permissions to take away.
void X11ContractDesktop::deny(Permission /*permission*/)
{
    fatalError("X11 knows no permissions");
}

bool X11ContractDesktop::chooseFromStatusMenu(std::string_view title)
{
    auto& client = display.client;
    if (!tray) {
        const auto& screen = client.screen();
        tray.emplace(display.server, client, PixelRect{0, 0, screen.width_in_pixels, screen.height_in_pixels});
    }
    settle(); // who has an item has made a window for it, which the tray then takes in
    if (!hasTrayIcon()) {
        return false;
    }
    std::optional<PixelRect> place;
    loop.waitFor("the icon in the tray", [&] { return (place = tray->iconOf(getpid())).has_value(); });
    display.keyboard.click(place->x + place->width / 2, place->y + place->height / 2);
    loop.waitFor("the menu of the status item", [this] { return menus.isOpen(); });
    return menus.choose(title);
}

bool X11ContractDesktop::hasTrayIcon()
{
    auto& client = display.client;
    auto windows = client.children(client.root());
    for (std::size_t index = 0; index < windows.size(); ++index) {
        if (isOwn(windows[index]) && client.hasProperty(windows[index], "_XEMBED_INFO")) {
            return true;
        }
        std::ranges::copy(client.children(windows[index]), std::back_inserter(windows));
    }
    return false;
}

// The test's own resources, then those of the program.
std::vector<std::filesystem::path> X11ContractDesktop::resourceDirectories() const
{
    auto directories = x11::X11Bundle::standardDirectories();
    directories.insert(directories.begin(), files.path() / "resources");
    return directories;
}

void X11ContractDesktop::addResource(std::string_view name, std::string_view extension, std::string_view content)
{
    files.write(std::filesystem::path("resources") / (std::string(name) + "." + std::string(extension)), content);
}

void X11ContractDesktop::addUnreadableResource(std::string_view name, std::string_view extension)
{
    std::filesystem::create_directories(files.path() / "resources" /
                                        (std::string(name) + "." + std::string(extension)));
}

std::unique_ptr<ContractDesktop> makeContractDesktop()
{
    return std::make_unique<X11ContractDesktop>();
}

} // namespace quorvel::contract
