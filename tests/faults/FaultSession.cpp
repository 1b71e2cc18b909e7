#include "tests/faults/FaultSession.h"

#include <algorithm>
#include <variant>

#include <fmt/format.h>

#include "base/LogText.h"
#include "platform/simulated/SimulatedPreferencesWindow.h"
#include "settings/BasicThemeStore.h"
#include "settings/ThemeSettings.h"
#include "tests/unit/app/Leftovers.h"
#include "tests/unit/layouts/CatalogueFixture.h"
#include "tests/unit/system/ScreenFixtures.h"

namespace quorvel {

namespace {

constexpr auto feedAddress = "https://example.org/appcast.xml";
constexpr auto feed =
    "<rss><channel><item><version>9.0</version><link>https://example.org/9</link></item></channel></rss>";
constexpr auto guideAddress = "https://guide.example/";

constexpr std::size_t layoutsTab = 5;
constexpr KeyCode keyO = 31;
constexpr KeyCode keyR = 15;

// Whether a stored list of themes has the one that was there from the start.
bool hasOwnTheme(const PropertyValue& value)
{
    std::string text;
    if (const auto* const data = std::get_if<PropertyData>(&value.value)) {
        std::ranges::transform(*data, std::back_inserter(text), [](std::byte each) { return static_cast<char>(each); });
    }
    return text.contains("Mine");
}

} // namespace

FaultSession::FaultSession()
    : updater({ports.httpClient, ports.mainQueue, faultyUpdateStore, ports.alerts, ports.workspace, desktop.dates,
               feedAddress, "1.0", "linux"})
{
    desktop.journal.pause();
    desktop.bundle.addResource("layouts", "json", std::string(sevenLayouts));
    desktop.httpClient.serve(feedAddress, feed);
    platform.updater = &updater;
    storeSettings();
}

FaultSession::~FaultSession()
{
    faults.disarm();
    app.reset();
}

void FaultSession::storeSettings()
{
    quorvel::Settings settings(desktop.userDefaults);
    BasicThemeStore<Theme>(settings, desktop.log).add(captureTheme<Theme>(settings, "Mine", desktop.dates.now()));
    settings.setStringArray("selectedLayoutIDs", {"two_side_by_side", "three_side_by_side", "one_full_screen"});
    settings.setStringDictionary("layoutShortcuts", {{"two_side_by_side", "1"}, {"three_side_by_side", "2"}});
    settings.setReal("mrMoveStep", 40.0);
    desktop.userDefaults.setObject("ofAnotherVersion", PropertyValue{std::string("kept")});
    before = desktop.userDefaults.contents();
}

void FaultSession::furnish()
{
    faults.disarm();
    desktop.alerts.forgetAnswers();
    desktop.eventTaps.behave();
    desktop.permissions.grant(Permission::accessibility);
    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    desktop.loginItem.setStatus(LoginItemStatus::notRegistered);
    for (const auto& [key, value] : Settings(desktop.userDefaults.contents())) {
        desktop.userDefaults.removeObject(key);
    }
    for (const auto& [key, value] : before) {
        desktop.userDefaults.setObject(key, value);
    }
    for (auto* const window : {&mail, &page, &notes}) {
        desktop.restore(*window);
    }
    desktop.moveWindow(mail, {400, 650, 300, 200});
    desktop.moveWindow(page, {950, 100, 400, 600});
    desktop.moveWindow(notes, {100, 100, 800, 600});
    desktop.minimize(mail);
    desktop.focus(notes);
    if (!app) {
        start();
        desktop.focus(notes);
    }
    app->mainController().layoutsManager().selectLayoutWithID("two_side_by_side");
    desktop.drain();
    desktop.log.clear();
}

void FaultSession::start()
{
    app.emplace(platform, guideAddress);
    app->appDelegate().applicationDidFinishLaunching();
    desktop.drain();
}

void FaultSession::quit()
{
    if (app) {
        app->appDelegate().applicationWillTerminate();
        app.reset();
        desktop.drain();
        desktop.hotKeys.releaseAll();
    }
}

void FaultSession::type(KeyCode keyCode, std::uint64_t flags)
{
    desktop.press(keyCode, flags);
    desktop.drain();
}

void FaultSession::choose(std::string_view menuTitle)
{
    desktop.statusBar.choose(menuTitle);
    desktop.drain();
}

void FaultSession::closePreferences()
{
    desktop.preferencesUi.closeWindows();
    desktop.drain();
    desktop.focus(notes);
}

void FaultSession::leave()
{
    constexpr double untilFollowUps = 0.1;
    if (!app) {
        return;
    }
    closePreferences();
    type(keyCodes::escape);
    type(keyCodes::escape);
    const auto combinations = app->mainController().modeState().moveResizeElement
                                  ? std::pair{keyR, eventFlags::command | eventFlags::option}
                                  : std::pair{keyO, eventFlags::command | eventFlags::shift};
    if (isModeOn()) { // Escape reaches no mode whose keys go elsewhere; hot keys reach each
        type(combinations.first, combinations.second);
    }
    desktop.advance(untilFollowUps);
}

bool FaultSession::isModeOn()
{
    auto& controller = app->mainController();
    return controller.modeState().moveResizeElement ||
           controller.stateManager().currentState != StateManager::States::normal;
}

FormModel* FaultSession::form(std::size_t tab) const
{
    if (!desktop.preferencesUi.isWindowVisible()) {
        return nullptr;
    }
    auto& model = desktop.preferencesUi.preferencesWindows().front()->model;
    model.selectTab(tab);
    return std::get<FormModel*>(model.content().tabs.at(tab).pane);
}

LayoutsPaneModel* FaultSession::layoutsPane() const
{
    if (!desktop.preferencesUi.isWindowVisible()) {
        return nullptr;
    }
    auto& model = desktop.preferencesUi.preferencesWindows().front()->model;
    model.selectTab(layoutsTab);
    return std::get<LayoutsPaneModel*>(model.content().tabs.at(layoutsTab).pane);
}

std::string FaultSession::hotKeys() const
{
    auto combinations = desktop.hotKeys.registered();
    std::ranges::sort(combinations);
    std::string text;
    for (const auto& [keyCode, modifiers] : combinations) {
        text += fmt::format("{}+{} ", modifiers, keyCode);
    }
    return text;
}

std::string FaultSession::frameOf(const SimulatedWindow& window) const
{
    return fmt::format("{} {}{}", window.title, logText(window.frame()), window.isMinimized() ? ", minimized" : "");
}

std::optional<std::string> FaultSession::leftover()
{
    if (app) {
        return leftoverOf(app->mainController(), app->blocker(), desktop);
    }
    if (!desktop.overlayWindows.visible().empty() || !desktop.eventTaps.taps().empty() ||
        !desktop.statusBar.items().empty() || desktop.accessibility.observerCount() != 0) {
        return "the program left something behind";
    }
    return std::nullopt;
}

std::optional<std::string> FaultSession::lostSetting(const Settings& after, std::string_view exempt) const
{
    const auto& now = desktop.userDefaults.contents();
    for (const auto& [key, value] : before) {
        const auto present = now.find(key);
        const auto changed = after.find(key);
        const bool isAsBefore = present != now.end() && present->second == value;
        const bool isMeantToChange = changed == after.end() || changed->second != value;
        const bool isThemeThere = present != now.end() && hasOwnTheme(present->second);
        const bool isWell = isAsBefore || (key == "savedThemes" ? isThemeThere : isMeantToChange);
        if (!isWell && key != exempt) {
            return "the setting " + key + " got lost";
        }
    }
    return std::nullopt;
}

} // namespace quorvel
