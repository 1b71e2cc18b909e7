#include "tests/unit/app/ModeWalker.h"

#include <array>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "app/MainController.h"
#include "tests/unit/app/AppScreens.h"
#include "tests/unit/app/Leftovers.h"
#include "tests/unit/layouts/CatalogueFixture.h"

namespace quorvel {

namespace {

struct Keystroke {
    KeyCode keyCode;
    std::uint64_t flags;
};

constexpr auto commandShift = eventFlags::command | eventFlags::shift;

constexpr std::array hotKeys{
    Keystroke{31, commandShift},
    Keystroke{15, eventFlags::command | eventFlags::option},
    Keystroke{3, commandShift},
};

constexpr std::array<KeyCode, 8> modeKeys{keyCodes::leftArrow, keyCodes::rightArrow, keyCodes::upArrow,
                                          keyCodes::downArrow, keyCodes::tab,        46,
                                          keyCodes::escape,    keyCodes::rightArrow};

constexpr std::array<KeyCode, 6> letters{0, 11, 8, 2, 18, 20}; // A to D, and two digits

constexpr std::array<std::string_view, 15> kindNames{"hotKey",
                                                     "modeKey",
                                                     "letter",
                                                     "burst",
                                                     "click",
                                                     "exit",
                                                     "togglePreferences",
                                                     "changeScreens",
                                                     "openWindow",
                                                     "closeWindow",
                                                     "minimizeOrRestore",
                                                     "moveWindow",
                                                     "focusWindow",
                                                     "changeSetting",
                                                     "wait"};
static_assert(kindNames.size() == walkStepKinds);

template <class Array>
const auto& pick(const Array& choices, std::uint32_t choice)
{
    return choices[choice % choices.size()];
}

double lessThan(std::uint32_t limit, std::uint32_t choice)
{
    return static_cast<double>(choice % limit);
}

SimulatedBundle& furnished(SimulatedBundle& bundle)
{
    bundle.addResource("layouts", "json", std::string(sevenLayouts));
    return bundle;
}

} // namespace

std::string textOf(const WalkStep& step)
{
    return fmt::format("{} {}", kindNames.at(static_cast<std::size_t>(step.kind)), step.choice);
}

ModeWalker::Visits& ModeWalker::Visits::operator+=(const Visits& other)
{
    overlay += other.overlay;
    moveResize += other.moveResize;
    focusSwitcher += other.focusSwitcher;
    preferences += other.preferences;
    snaps += other.snaps;
    exits += other.exits;
    return *this;
}

ModeWalker::ModeWalker()
    : platform((furnished(desktop.bundle), desktop.platform())), app(platform, "https://guide.example/")
{
    desktop.journal.pause();
    app.appDelegate().applicationDidFinishLaunching();
    for (std::uint32_t number = 0; number < 3; ++number) {
        applications.push_back(&desktop.launch(fmt::format("Application {}", number)));
        openWindow(number);
    }
    desktop.drain();
}

std::optional<std::string> ModeWalker::walk(const std::vector<WalkStep>& steps)
{
    for (const auto& step : steps) {
        take(step);
        desktop.drain();
        desktop.log.clear();
        count();
        if (auto found = step.kind == WalkStep::Kind::exit ? problemAfterExit() : problem()) {
            return found;
        }
    }
    leave();
    return problemAfterExit();
}

void ModeWalker::take(const WalkStep& step)
{
    auto* const window = anyWindow(step.choice);
    switch (step.kind) {
    case WalkStep::Kind::hotKey:
        pressHotKey(step.choice);
        break;
    case WalkStep::Kind::modeKey:
        pressModeKey(step.choice);
        break;
    case WalkStep::Kind::letter:
        pressLetter(step.choice);
        break;
    case WalkStep::Kind::burst:
        pressModeKey(step.choice);
        pressHotKey(step.choice / 7);
        pressModeKey(step.choice / 11);
        pressLetter(step.choice / 13);
        break;
    case WalkStep::Kind::click:
        desktop.clickMouse({lessThan(2000, step.choice), lessThan(1000, step.choice / 2000)});
        break;
    case WalkStep::Kind::exit:
        leave();
        break;
    case WalkStep::Kind::togglePreferences:
        togglePreferences();
        break;
    case WalkStep::Kind::changeScreens:
        connectScreens(step.choice);
        break;
    case WalkStep::Kind::openWindow:
        openWindow(step.choice);
        break;
    case WalkStep::Kind::closeWindow:
        if (window != nullptr) {
            desktop.closeWindow(*window);
        }
        break;
    case WalkStep::Kind::minimizeOrRestore:
        if (window != nullptr) {
            window->isMinimized() ? desktop.restore(*window) : desktop.minimize(*window);
        }
        break;
    case WalkStep::Kind::moveWindow:
        if (window != nullptr) {
            desktop.moveWindow(*window, {lessThan(1500, step.choice), lessThan(900, step.choice),
                                         150.0 + lessThan(800, step.choice), 200.0});
        }
        break;
    case WalkStep::Kind::focusWindow:
        if (window != nullptr && !window->isMinimized()) {
            desktop.focus(*window);
        }
        break;
    case WalkStep::Kind::changeSetting:
        changeSetting(step.choice);
        break;
    case WalkStep::Kind::wait:
        desktop.advance(0.05);
        break;
    }
}

void ModeWalker::pressHotKey(std::uint32_t choice)
{
    const auto& hotKey = pick(hotKeys, choice);
    desktop.press(hotKey.keyCode, hotKey.flags);
}

void ModeWalker::pressModeKey(std::uint32_t choice)
{
    desktop.press(pick(modeKeys, choice), choice / 8 % 4 == 0 ? eventFlags::shift : 0);
}

void ModeWalker::pressLetter(std::uint32_t choice)
{
    desktop.press(pick(letters, choice));
}

void ModeWalker::togglePreferences()
{
    if (desktop.preferencesUi.isWindowVisible()) {
        desktop.preferencesUi.closeWindows();
    } else {
        controller().openPreferences();
        isReleased = true;
    }
}

void ModeWalker::connectScreens(std::uint32_t choice)
{
    using namespace fixtures;
    const std::array<std::vector<Screen>, 6> arrangements{
        std::vector<Screen>{primary}, {primary, rightSameSize},  {primary, above},
        {primary, below, left},       {bottomDock, rightTaller}, {rightTaller},
    };
    desktop.screens.connect(pick(arrangements, choice));
}

void ModeWalker::openWindow(std::uint32_t choice)
{
    constexpr std::size_t mostWindows = 12;
    if (desktop.windowServer.onScreenWindows().size() < mostWindows) {
        windows.push_back(
            &desktop.openWindow(*pick(applications, choice), "Window",
                                {lessThan(1100, choice), lessThan(600, choice), 60.0 + lessThan(600, choice), 250.0}));
    }
}

void ModeWalker::changeSetting(std::uint32_t choice)
{
    auto& settings = desktop.userDefaults;
    switch (choice % 6) {
    case 0:
        settings.setObject("mrSnapEnabled", PropertyValue{choice / 6 % 4 != 0});
        break;
    case 1:
        settings.setObject("mrSnapResistance", PropertyValue{lessThan(4, choice / 6)});
        break;
    case 2:
        settings.setObject("mrMoveStep", PropertyValue{lessThan(60, choice / 6)});
        break;
    case 3:
        settings.setObject("fsDefaultDisplayMode", PropertyValue{std::string(choice / 6 % 2 == 0 ? "list" : "frames")});
        break;
    case 4:
        settings.setObject("mrExitModeKeyCode", PropertyValue{std::int64_t{choice / 6 % 2 == 0 ? 53 : 48}});
        break;
    default:
        // Keys come by a tap or, from the next mode on, by the panel.
        choice / 6 % 2 == 0 ? desktop.eventTaps.refuseKeys() : desktop.eventTaps.behave();
        break;
    }
}

SimulatedWindow* ModeWalker::anyWindow(std::uint32_t choice)
{
    std::erase_if(windows, [](const SimulatedWindow* each) { return !each->isOpen(); });
    return windows.empty() ? nullptr : pick(windows, choice);
}

void ModeWalker::leave()
{
    controller().exitCurrentMode();
    desktop.drain();
    ++counted.exits;
}

ModeWalker::Mode ModeWalker::modeOn()
{
    if (controller().modeState().moveResizeElement) {
        return Mode::moving;
    }
    const bool isLabelling = controller().stateManager().currentState == StateManager::States::overlayOn;
    return isLabelling ? Mode::labelling : Mode::none;
}

void ModeWalker::count()
{
    const auto& modes = controller().modeState();
    const bool isSwitching = modes.focusSwitcherMouseMonitor.isActive();
    const bool isLabelling = controller().stateManager().currentState == StateManager::States::overlayOn;
    counted.focusSwitcher += isSwitching ? 1 : 0;
    counted.overlay += isLabelling && !isSwitching ? 1 : 0;
    counted.moveResize += modes.moveResizeElement ? 1 : 0;
    counted.preferences += desktop.preferencesUi.isWindowVisible() ? 1 : 0;
    counted.snaps += modes.snapTargetOverlay && modes.snapTargetOverlay->window().isVisible() ? 1 : 0;
}

std::optional<std::string> ModeWalker::problem()
{
    const auto& modes = controller().modeState();
    if (modes.moveResizeElement && controller().stateManager().currentState == StateManager::States::overlayOn) {
        return "two modes are on";
    }
    const auto mode = modeOn();
    const bool isSameMode = mode == std::exchange(earlierMode, mode);
    isReleased = isReleased && isSameMode;
    return mode != Mode::none ? problemOf(mode) : leftoverOf(controller(), app.blocker(), desktop);
}

// A mode has its keys, all of them and no others.
std::optional<std::string> ModeWalker::problemOf(Mode mode)
{
    constexpr std::size_t allKeys = 256;
    KeyCodeSet keys = app.blocker().blockedKeyCodes();
    if (isReleased) {
        return keys.empty() ? std::nullopt : std::optional("keys are blocked beside the preferences");
    }
    if (mode == Mode::labelling) {
        return keys.size() == allKeys ? std::nullopt : std::optional("keys reach others under the labels");
    }
    keys.insert(keyCodes::escape); // unless Tab was the exit key when the mode began
    const bool areThose = keys == KeyCodeSet(modeKeys.begin(), modeKeys.end());
    return areThose ? std::nullopt : std::optional("the move/resize mode has other keys than its own");
}

std::optional<std::string> ModeWalker::problemAfterExit()
{
    const auto found = problem();
    return found ? found : leftoverOf(controller(), app.blocker(), desktop);
}

} // namespace quorvel
