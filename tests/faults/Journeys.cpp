#include "tests/faults/Journeys.h"

#include <set>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "platform/FormModel.h"
#include "platform/LayoutsPaneModel.h"
#include "settings/BasicThemeStore.h"
#include "tests/faults/FaultSession.h"

namespace quorvel {

namespace {

constexpr auto commandShift = eventFlags::command | eventFlags::shift;

constexpr KeyCode keyB = 11;
constexpr KeyCode keyF = 3;
constexpr KeyCode keyK = 40;
constexpr KeyCode keyM = 46;
constexpr KeyCode keyO = 31;
constexpr KeyCode keyR = 15;
constexpr KeyCode key2 = 19;

constexpr std::size_t generalTab = 0;
constexpr std::size_t shortcutsTab = 1;
constexpr std::size_t layoutTab = 2;

void pressOverlayKey(FaultSession& session)
{
    session.type(keyO, commandShift);
}

void pressSwitcherKey(FaultSession& session)
{
    session.type(keyF, commandShift);
}

void pressMoveKey(FaultSession& session)
{
    session.type(keyR, eventFlags::command | eventFlags::option);
}

std::string inFront(FaultSession& session)
{
    return fmt::format("process {} in front", session.desktop.windowServer.frontmostProcess().value_or(0));
}

std::string start(FaultSession& session)
{
    session.quit();
    session.start();
    return fmt::format("hot keys {}, {} taps, {} icons", session.hotKeys(), session.desktop.eventTaps.taps().size(),
                       session.desktop.statusBar.items().size());
}

std::string onboard(FaultSession& session)
{
    constexpr double untilLookedAt = 1.1;
    auto& desktop = session.desktop;
    const auto terminations = desktop.workspace.terminationRequests();
    session.quit();
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.deny(Permission::inputMonitoring);
    desktop.alerts.chooseDefault();
    desktop.alerts.chooseDefault();
    desktop.alerts.chooseDefault();
    session.start();
    for (const auto permission : {Permission::accessibility, Permission::inputMonitoring}) {
        desktop.advance(untilLookedAt);
        desktop.permissions.grant(permission);
        desktop.advance(untilLookedAt);
    }
    const auto ends = desktop.workspace.terminationRequests() - terminations;
    session.quit();
    session.start();
    return fmt::format("{} ends, then hot keys {}, {} taps", ends, session.hotKeys(), desktop.eventTaps.taps().size());
}

std::string place(FaultSession& session)
{
    pressOverlayKey(session);
    const auto shown = session.shownWindows();
    session.type(keyB);
    return fmt::format("{} windows, then {}, {}", shown, session.frameOf(session.notes), inFront(session));
}

// Where no tap can be had, a panel takes the keys and gives the focus back.
std::string placeByPanel(FaultSession& session)
{
    session.desktop.eventTaps.refuseKeys();
    return place(session);
}

std::string placeInNextLayout(FaultSession& session)
{
    pressOverlayKey(session);
    session.type(keyCodes::downArrow);
    return place(session);
}

std::string placeOnNextScreen(FaultSession& session)
{
    pressOverlayKey(session);
    session.type(keyCodes::rightArrow);
    session.type(key2);
    session.type(keyB);
    return session.frameOf(session.notes);
}

std::string cancelOverlay(FaultSession& session)
{
    pressOverlayKey(session);
    const auto shown = session.shownWindows();
    session.type(keyCodes::escape);
    return fmt::format("{} windows, then {}", shown, session.frameOf(session.notes));
}

std::string switchToLabel(FaultSession& session)
{
    pressSwitcherKey(session);
    const auto shown = session.shownWindows();
    session.type(keyB);
    return fmt::format("{} windows, then {}", shown, inFront(session));
}

std::string switchToMinimized(FaultSession& session)
{
    constexpr KeyCode keyC = 8;
    pressSwitcherKey(session);
    session.type(keyM);
    session.type(keyC);
    return session.frameOf(session.mail) + ", " + inFront(session);
}

std::string lookAtLists(FaultSession& session)
{
    session.desktop.userDefaults.setObject("fsDefaultDisplayMode", PropertyValue{std::string("list")});
    pressSwitcherKey(session);
    std::vector<std::size_t> shown;
    for (const auto keyCode : {keyM, keyCodes::tab, keyCodes::tab, keyM, keyCodes::escape}) {
        shown.push_back(session.shownWindows());
        session.type(keyCode);
    }
    return fmt::format("{} windows", fmt::join(shown, ", "));
}

std::string clickSwitcherAway(FaultSession& session)
{
    pressSwitcherKey(session);
    const auto shown = session.shownWindows();
    session.desktop.clickMouse({5, 890});
    session.desktop.drain();
    return fmt::format("{} windows, then {}", shown, session.shownWindows());
}

std::string moveAndSnap(FaultSession& session)
{
    pressMoveKey(session);
    for (int press = 0; press < 5; ++press) {
        session.type(keyCodes::rightArrow);
    }
    session.type(keyCodes::downArrow);
    pressMoveKey(session);
    return session.frameOf(session.notes);
}

std::string resize(FaultSession& session)
{
    pressMoveKey(session);
    session.type(keyCodes::leftArrow, eventFlags::shift);
    session.type(keyCodes::downArrow, eventFlags::shift);
    session.type(keyCodes::escape);
    return session.frameOf(session.notes);
}

std::string cycleAndMove(FaultSession& session)
{
    pressMoveKey(session);
    session.type(keyCodes::tab);
    session.type(keyCodes::upArrow);
    session.type(keyCodes::tab, eventFlags::shift);
    session.type(keyCodes::escape);
    return session.frameOf(session.page) + ", " + session.frameOf(session.notes);
}

std::string minimizeAndMove(FaultSession& session)
{
    constexpr double untilFollowUp = 0.06;
    pressMoveKey(session);
    session.type(keyM);
    session.desktop.advance(untilFollowUp);
    session.type(keyCodes::upArrow);
    session.type(keyCodes::escape);
    return session.frameOf(session.notes) + ", " + session.frameOf(session.page);
}

std::string moveByPanel(FaultSession& session)
{
    session.desktop.eventTaps.refuseKeys();
    pressMoveKey(session);
    session.type(keyCodes::leftArrow);
    session.type(keyCodes::escape);
    return session.frameOf(session.notes) + ", " + inFront(session);
}

std::string changeControls(FaultSession& session)
{
    session.choose("Preferences...");
    if (auto* const pane = session.form(layoutTab)) {
        static_cast<void>(pane->form());
        pane->set("overlayBorderWidth", 5.0);
        session.desktop.drain();
    }
    if (auto* const pane = session.form(generalTab)) {
        static_cast<void>(pane->form());
        pane->set("startAtLogin", true);
        pane->set("automaticallyChecksForUpdates", true);
        pane->set("automaticallyChecksForUpdates", false);
        session.desktop.drain();
    }
    session.closePreferences();
    const auto width = session.desktop.userDefaults.object("overlayBorderWidth");
    return fmt::format("{}, login item {}, hot keys {}", width ? "stored" : "not stored",
                       static_cast<int>(session.desktop.loginItem.status()), session.hotKeys());
}

std::string recordShortcut(FaultSession& session)
{
    session.choose("Preferences...");
    if (auto* const pane = session.form(shortcutsTab)) {
        pane->press("activateOverlayKeyCode.record");
        session.type(keyK, commandShift);
    }
    session.closePreferences();
    return "hot keys " + session.hotKeys();
}

std::string saveTheme(FaultSession& session)
{
    session.choose("Preferences...");
    if (auto* const pane = session.form(layoutTab)) {
        pane->press("save");
        pane->set("save.name", std::string("Yours"));
        pane->press("save.confirm");
        pane->press("manage");
        session.desktop.drain();
        static_cast<void>(pane->form());
    }
    session.closePreferences();
    std::set<std::string> names;
    const BasicThemeStore<Theme> store(Settings(session.desktop.userDefaults), session.desktop.log);
    for (const auto& theme : store.themes()) {
        names.insert(theme.name);
    }
    return fmt::format("themes {}", fmt::join(names, ", "));
}

std::string changeLayouts(FaultSession& session)
{
    session.choose("Preferences...");
    if (auto* const pane = session.layoutsPane()) {
        pane->doubleClickAvailable(2);
        pane->endEditingDigit(2, "3");
        pane->selectSelected({0});
        pane->moveSelected(LayoutsPaneModel::RowMove::down);
        pane->doubleClickSelected(1);
        static_cast<void>(pane->content());
        session.desktop.drain();
    }
    session.closePreferences();
    const Settings settings(session.desktop.userDefaults);
    return fmt::format("layouts {}, digits {}", fmt::join(settings.stringArray("selectedLayoutIDs").value(), ", "),
                       settings.stringDictionary("layoutShortcuts").value());
}

std::string changeSettingsOutside(FaultSession& session)
{
    session.choose("Preferences...");
    session.desktop.userDefaults.changeFromOutside("mrMoveStep", PropertyValue{50.0});
    session.desktop.drain();
    session.closePreferences();
    return "hot keys " + session.hotKeys();
}

std::string lookAtAboutAndGuide(FaultSession& session)
{
    const auto opened = session.desktop.workspace.openedAddresses().size();
    session.choose("About Quorvel...");
    session.choose("User Guide");
    return fmt::format("{} windows, {} pages", session.desktop.preferencesUi.aboutWindows().size(),
                       session.desktop.workspace.openedAddresses().size() - opened);
}

std::string checkForUpdates(FaultSession& session)
{
    const auto opened = session.desktop.workspace.openedAddresses().size();
    session.desktop.alerts.chooseDefault();
    session.choose("Check for Updates...");
    return fmt::format("{} pages", session.desktop.workspace.openedAddresses().size() - opened);
}

std::string quit(FaultSession& session)
{
    const auto requests = session.desktop.workspace.terminationRequests();
    pressOverlayKey(session);
    session.choose("Quit");
    const auto asked = session.desktop.workspace.terminationRequests() - requests;
    session.quit();
    return fmt::format("{} asked, hot keys {}, {} windows", asked, session.hotKeys(), session.shownWindows());
}

} // namespace

std::vector<Journey> journeys()
{
    return {
        {"start", start},
        {"onboarding", onboard},
        {"a letter", place},
        {"a letter through the panel", placeByPanel},
        {"the next layout and a letter", placeInNextLayout},
        {"the next screen, a digit and a letter", placeOnNextScreen},
        {"the overlay cancelled", cancelOverlay},
        {"the switcher and a letter", switchToLabel},
        {"a minimized window restored", switchToMinimized},
        {"the switcher's lists", lookAtLists},
        {"the switcher clicked away", clickSwitcherAway},
        {"moving with a snap", moveAndSnap},
        {"resizing", resize},
        {"cycling", cycleAndMove},
        {"minimizing", minimizeAndMove},
        {"moving through the panel", moveByPanel},
        {"controls of the preferences", changeControls},
        {"a shortcut recorded", recordShortcut},
        {"a theme saved", saveTheme},
        {"layouts changed", changeLayouts},
        {"settings changed by another program", changeSettingsOutside},
        {"About and the guide", lookAtAboutAndGuide},
        {"an update check", checkForUpdates},
        {"quitting", quit},
    };
}

} // namespace quorvel
