#include "main/X11Program.h"

#include <csignal>
#include <filesystem>
#include <string>
#include <utility>

#include <fmt/format.h>

#include "platform/x11/UnixSignals.h"
#include "platform/x11/desktop/DesktopFont.h"
#include "settings/ForeignChanges.h"

namespace quorvel {

namespace {

void reportProblem(std::string_view line)
{
    fmt::print(stderr, "{}\n", line);
}

// Also where the file has been replaced by that of a newer version since.
std::string programFile()
{
    constexpr std::string_view replaced = " (deleted)";
    std::string file = std::filesystem::read_symlink("/proc/self/exe").string();
    if (file.ends_with(replaced)) {
        file.resize(file.size() - replaced.size());
    }
    return file;
}

// Starts this program anew; the new one waits until this one has ended.
std::vector<std::string> relaunchCommand()
{
    return {programFile(), "--replace"};
}

} // namespace

X11Program::X11Program(x11::GlibMainLoop& loop, X11Display opened)
    : loop(loop),
      display(std::move(opened)),
      userDefaults(x11::SettingsFile(x11::SettingsFile::defaultPath()), reportProblem),
      notificationCenter(loop),
      bundle(x11::X11Bundle::standardDirectories()),
      windows(*display.connection, loop, {relaunchCommand(), [this] { quit(); }}),
      keys(*display.connection, *display.keyboard, loop),
      textLayouts(x11::desktopFontFamilies(*display.connection)),
      textMetrics(textLayouts),
      overlayWindows(*display.connection, loop, windows.precedence, windows.screens, *display.keyboard,
                     windows.typingPause, *display.graphics, textLayouts),
      systemColors(x11::X11SystemColors::plasmaSettingsFile()),
      permissions(*display.connection),
      desktopStyles(*display.connection),
      toolkit(x11::ToolkitModule::standardFile(), {}, toolkitHost()),
      statusBar(*display.connection, bundle, toolkit),
      alerts(bundle, toolkit),
      loginItem(x11::AutostartPlaces::standard(programFile())),
      feedUpdates(FeedUpdates::make({loop, alerts, windows.workspace, dates, bundle}, reportProblem)),
      preferencesUi(toolkit, notificationCenter),
      platform{
          .log = log,
          .mainQueue = loop,
          .userDefaults = userDefaults,
          .notificationCenter = notificationCenter,
          .bundle = bundle,
          .dates = dates,
          .accessibility = windows.accessibility,
          .hotKeys = keys.hotKeys,
          .eventTaps = keys.eventTaps,
          .windowList = windows.windowList,
          .workspace = windows.workspace,
          .screens = windows.screens,
          .keyboardLayout = keys.keyboardLayout,
          .eventMonitors = keys.eventMonitors,
          .overlayWindows = overlayWindows,
          .textMetrics = textMetrics,
          .systemColors = systemColors,
          .statusBar = statusBar,
          .permissions = permissions,
          .alerts = alerts,
          .preferencesUi = &preferencesUi,
          .updater = feedUpdates ? &feedUpdates->updater() : nullptr,
          .loginItem = &loginItem,
          .focusesExactWindow = true,
      },
      hotKeyNews(keys.hotKeys.observeHeld([this] { display.claim->announce(keys.hotKeys.held()); })),
      endingSignals(subscribeToEndingSignals()),
      app(platform),
      settingsWatcher(x11::SettingsFile(x11::SettingsFile::defaultPath()), [this] { settingsMayHaveChanged(); }),
      windowManagerChanges(windows.windowManager.observe([this] { windowManagerHasChanged(); }))
{
    constexpr int serverLostStatus = 1;
    display.connection->setLostHandler([this] {
        toolkit.endInnerLoops();
        this->loop.quit(serverLostStatus);
    });
    display.claim->setLostHandler([this] { quit(); });
}

X11Program::~X11Program() = default;

int X11Program::run()
{
    settingsMayHaveChanged(); // while the program started, before anybody watched the file
    app.appDelegate().applicationDidFinishLaunching();
    const int status = loop.run();
    app.appDelegate().applicationWillTerminate();
    return status;
}

std::vector<Subscription> X11Program::subscribeToEndingSignals()
{
    std::vector<Subscription> signals;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        signals.push_back(x11::onUnixSignal(number, [this] { quit(); }));
    }
    return signals;
}

x11::ToolkitHost X11Program::toolkitHost()
{
    return {
        .imageFile = [this](std::string_view name, int pixels) { return bundle.imageFile(name, pixels); },
        .activate = [this](std::uint32_t window) { windows.windowManager.activate(window); },
        .keyDown = [this](std::uint8_t keycode,
                          std::uint16_t state) { return keys.eventMonitors.reportLocalKeyDown(keycode, state); },
        .textLayouts = textLayouts,
        .style = [this] { return desktopStyles.current(); },
        .observeStyle = [this](std::function<void()> changed) { return desktopStyles.observe(std::move(changed)); },
    };
}

void X11Program::settingsMayHaveChanged()
{
    handleForeignChanges(userDefaults.reload(), userDefaults, notificationCenter, log);
}

void X11Program::windowManagerHasChanged()
{
    const bool isRunning = windows.windowManager.identity() != 0;
    log.line(isRunning ? "Window manager has started" : "Window manager is gone; windows may stay where they are");
}

} // namespace quorvel
