#include "platform/simulated/Journal.h"

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

using Entries = std::vector<std::string>;

TEST(Journal, CallsOfAllPortsStandInOneOrder)
{
    SimulatedDesktop desktop;
    auto& editor = desktop.launch("Editor");
    const auto window = desktop.overlayWindows.createWindow({.contentRect = {0.0, 25.0, 100.0, 50.0}});

    window->orderFrontRegardless();
    desktop.workspace.activate(editor.process());
    desktop.log.line("done");
    window->close();

    EXPECT_EQ(desktop.journal.entries(), (Entries{"OverlayWindows.createWindow(1, (0.0, 25.0, 100.0, 50.0))",
                                                  "OverlayWindow.orderFrontRegardless(1)", "Workspace.activate(500)",
                                                  "Log.line(done)", "OverlayWindow.close(1)"}));
}

TEST(Journal, EntriesAreChosenByTheirBeginning)
{
    Journal journal;
    journal.record("HotKeys.removeHandler()");
    journal.record("Workspace.activate({})", 500);
    journal.record("HotKeys.unregisterHotKey({})", 1);

    EXPECT_EQ(journal.entries({"HotKeys."}), (Entries{"HotKeys.removeHandler()", "HotKeys.unregisterHotKey(1)"}));
    EXPECT_EQ(journal.entries({"HotKeys.un", "Workspace"}),
              (Entries{"Workspace.activate(500)", "HotKeys.unregisterHotKey(1)"}));
    EXPECT_EQ(journal.count("HotKeys"), 2U);
    EXPECT_EQ(journal.count("Keys"), 0U);
}

TEST(Journal, NothingIsRecordedWhileItPauses)
{
    Journal journal;
    journal.pause();
    journal.record("Log.line(unheard)");
    journal.resume();
    journal.record("Log.line(heard)");

    EXPECT_EQ(journal.entries(), (Entries{"Log.line(heard)"}));
}

TEST(Journal, AnInterruptionHappensOnceBetweenTheCallAndItsEffect)
{
    SimulatedDesktop desktop;
    auto& window = desktop.openWindow(desktop.launch("Editor"), "Notes", {0.0, 0.0, 400.0, 300.0});
    AxPoint positionMeanwhile;
    int interruptions = 0;
    desktop.journal.duringNext("Accessibility.setAttribute(window 1, AXPosition", [&] {
        positionMeanwhile = window.frame().origin();
        ++interruptions;
    });

    EXPECT_TRUE(desktop.accessibility.setAttribute(desktop.element(window), axNames::position, AxPoint{5.0, 6.0}));
    EXPECT_TRUE(desktop.accessibility.setAttribute(desktop.element(window), axNames::position, AxPoint{7.0, 8.0}));

    EXPECT_EQ(interruptions, 1);
    EXPECT_EQ(positionMeanwhile, (AxPoint{0.0, 0.0}));
    EXPECT_EQ(window.frame().origin(), (AxPoint{7.0, 8.0}));
}

TEST(Journal, ValuesOfSettingsReadLikeText)
{
    SimulatedDesktop desktop;
    desktop.userDefaults.setObject("a", {true});
    desktop.userDefaults.setObject("b", {std::int64_t{31}});
    desktop.userDefaults.setObject("c", {20.0});
    desktop.userDefaults.setObject("d", {PropertyArray{{std::string("one")}, {std::string("two")}}});
    desktop.userDefaults.setObject("e", {PropertyDictionary{{"one", {std::string("1")}}}});
    desktop.userDefaults.setObject("f", {PropertyData{std::byte{1}, std::byte{2}}});

    EXPECT_EQ(desktop.journal.entries(),
              (Entries{"UserDefaults.setObject(a, true)", "UserDefaults.setObject(b, 31)",
                       "UserDefaults.setObject(c, 20.0)", "UserDefaults.setObject(d, [\"one\", \"two\"])",
                       "UserDefaults.setObject(e, {\"one\": \"1\"})", "UserDefaults.setObject(f, 2 bytes)"}));
}

} // namespace
} // namespace quorvel
