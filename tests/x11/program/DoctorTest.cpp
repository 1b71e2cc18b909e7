#include <algorithm>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/Compositor.h"
#include "support/FileContent.h"
#include "support/ProgramUnderTest.h"
#include "support/StrutPanel.h"
#include "support/SystemTray.h"
#include "support/TestDisplay.h"

namespace quorvel::xtest {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Modifier = KeyInjector::Modifier;

const fs::path executable = QUORVEL_PROGRAM;
const KeyCombination overlayKey{{Modifier::command, Modifier::shift}, XKB_KEY_o};
const KeyCombination switcherKey{{Modifier::command, Modifier::shift}, XKB_KEY_f};
constexpr PixelRect monitor{0, 0, 1920, 1080};

class DoctorTest : public testing::Test {
protected:
    struct Result {
        int status = 0;
        nlohmann::json report;

        // The only finding with that id.
        nlohmann::json finding(const std::string& id) const
        {
            auto found = nlohmann::json::object();
            for (const auto& section : report["sections"]) {
                for (const auto& entry : section["findings"]) {
                    if (entry["id"] == id) {
                        EXPECT_TRUE(found.empty()) << id;
                        found = entry;
                    }
                }
            }
            return found;
        }

        std::string verdict(const std::string& id) const { return finding(id).value("verdict", "absent"); }
    };

    Result examine(const std::map<std::string, std::string>& environment = {})
    {
        ProgramUnderTest program(display.server, executable, configuration,
                                 {.arguments = {"--doctor", "--json"}, .environment = environment});
        Result result{.status = program.waitForEnd(), .report = {}};
        EXPECT_THAT(program.errorLines(), IsEmpty());
        std::string output;
        for (const auto& line : program.outputLines()) {
            output += line;
        }
        result.report = nlohmann::json::parse(output);
        EXPECT_EQ(result.report["fit"], result.status == 0);
        return result;
    }

    std::unique_ptr<ProgramUnderTest> startQuorvel()
    {
        auto program = std::make_unique<ProgramUnderTest>(display.server, executable, configuration);
        program->waitForLine("the hot keys", [](std::string_view line) {
            return line.find("id=3") != std::string_view::npos || line.starts_with("Failed to register");
        });
        return program;
    }

    // Another program takes the key as window managers do, in one state of the locks.
    void holdElsewhere(xcb_keysym_t key)
    {
        xcb_grab_key(display.client.connection(), 0, display.client.root(), XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT,
                     display.keyboard.codeOf(key), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        display.client.sync();
    }

    fs::path settings() const { return configuration.path() / "quorvel" / "settings.plist"; }

    void writeSettings(const std::string& content)
    {
        fs::create_directory(configuration.path() / "quorvel");
        configuration.write("quorvel/settings.plist", content);
    }

    TestDisplay display;
    TemporaryDirectory configuration;
};

TEST_F(DoctorTest, OnAnOrdinaryDesktopNothingStandsInTheWay)
{
    display.startWindowManager(WindowManager::openbox);
    const auto result = examine();
    EXPECT_EQ(result.status, 0) << result.report.dump(2);
    EXPECT_EQ(result.finding("window-manager.running")["details"]["name"], "Openbox");
    EXPECT_EQ(result.finding("monitors.monitor")["details"]["area"],
              nlohmann::json::parse(R"({"x": 0, "y": 0, "width": 1920, "height": 1080})"));
    EXPECT_EQ(result.finding("session.running")["details"]["running"], false);
    EXPECT_EQ(result.finding("keyboard.layout")["details"]["current"], "us");
    EXPECT_EQ(result.finding("hot-keys.layout-overlay")["details"]["holder"], "nobody");
    EXPECT_EQ(result.verdict("parts.toolkit"), "good");
    EXPECT_EQ(result.verdict("parts.fonts"), "good");
}

TEST_F(DoctorTest, ItLeavesNoGrabAndNoFileBehind)
{
    display.startWindowManager(WindowManager::openbox);
    examine();
    EXPECT_TRUE(display.grabs.isFree(overlayKey));
    EXPECT_TRUE(display.grabs.isFree(switcherKey));
    EXPECT_TRUE(display.grabs.isKeyboardFree());
    EXPECT_TRUE(fs::is_empty(configuration.path()));
}

TEST_F(DoctorTest, WithoutAWindowManagerItSaysSo)
{
    const auto result = examine();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.verdict("window-manager.running"), "problem");
}

TEST_F(DoctorTest, APersonReadsTheSameInWords)
{
    ProgramUnderTest program(display.server, executable, configuration, {.arguments = {"--doctor"}});
    EXPECT_EQ(program.waitForEnd(), 1);
    EXPECT_THAT(program.outputLines().front(), StartsWith("Quorvel "));
    EXPECT_THAT(program.outputLines(), testing::Contains(HasSubstr("PROBLEM  No window manager runs")));
    EXPECT_EQ(program.outputLines().back(), "1 problem stands in Quorvel's way.");
}

TEST_F(DoctorTest, ACompositorAndATrayAreSeen)
{
    if (!Compositor::isInstalled() || !SystemTray::isInstalled()) {
        GTEST_SKIP() << "a compositor or a tray is not installed";
    }
    display.startWindowManager(WindowManager::openbox);
    EXPECT_EQ(examine().verdict("window-manager.compositor"), "notice");
    EXPECT_EQ(examine().verdict("parts.tray"), "notice");
    const Compositor compositor(display.server, display.client);
    const SystemTray tray(display.server, display.client, monitor);
    EXPECT_EQ(examine().verdict("window-manager.compositor"), "good");
    EXPECT_EQ(examine().verdict("parts.tray"), "good");
}

TEST_F(DoctorTest, AHotKeyThatAnotherProgramHoldsIsAProblemAndStaysWithIt)
{
    display.startWindowManager(WindowManager::openbox);
    holdElsewhere(XKB_KEY_o);
    const auto result = examine();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.finding("hot-keys.layout-overlay")["details"]["holder"], "another program");
    EXPECT_EQ(result.verdict("hot-keys.focus-switcher"), "good");
}

TEST_F(DoctorTest, ASuperKeyThatAnotherProgramHoldsByItselfIsANotice)
{
    display.startWindowManager(WindowManager::openbox);
    EXPECT_EQ(examine().verdict("hot-keys.command-key"), "absent");
    xcb_grab_key(display.client.connection(), 0, display.client.root(), 0, display.keyboard.codeOf(XKB_KEY_Super_L),
                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    display.client.sync();
    EXPECT_EQ(examine().verdict("hot-keys.command-key"), "notice");
}

TEST_F(DoctorTest, ARunningQuorvelIsRecognisedAndNotDisturbed)
{
    display.startWindowManager(WindowManager::openbox);
    const auto quorvel = startQuorvel();
    const auto before = fs::last_write_time(settings());
    const auto result = examine();
    EXPECT_EQ(result.status, 0) << result.report.dump(2);
    EXPECT_EQ(result.finding("session.running")["details"]["running"], true);
    EXPECT_EQ(result.finding("hot-keys.layout-overlay")["details"]["holder"], "quorvel");
    EXPECT_EQ(result.finding("hot-keys.move-resize")["details"]["holder"], "quorvel");
    EXPECT_EQ(fs::last_write_time(settings()), before);
    display.keyboard.tap(overlayKey.modifiers, overlayKey.keysym);
    quorvel->waitForLine("Activate overlay shortcut fired");
}

TEST_F(DoctorTest, WhatARunningQuorvelCouldNotGetIsHeldByAnother)
{
    display.startWindowManager(WindowManager::openbox);
    holdElsewhere(XKB_KEY_f);
    const auto quorvel = startQuorvel();
    const auto result = examine();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.finding("hot-keys.focus-switcher")["details"]["holder"], "another program");
    EXPECT_EQ(result.finding("hot-keys.layout-overlay")["details"]["holder"], "quorvel");
}

TEST_F(DoctorTest, AQuorvelThatTakesAnotherHotKeyTellsOfIt)
{
    display.startWindowManager(WindowManager::openbox);
    const auto quorvel = startQuorvel();
    writeSettings("<plist><dict><key>activateOverlayKeyCode</key><integer>40</integer></dict></plist>");
    quorvel->waitForLine("Registering shortcuts: keyCode=40, modifiers=768");
    quorvel->waitForLineStartingWith("Registered hotkey id=3 ");
    const auto found = examine().finding("hot-keys.layout-overlay");
    EXPECT_EQ(found["details"]["keyCode"], 40);
    EXPECT_EQ(found["details"]["holder"], "quorvel");
}

TEST_F(DoctorTest, PanelsAreSubtractedFromAMonitor)
{
    display.startWindowManager(WindowManager::openbox);
    const StrutPanel panel(display.server, monitor, Side::top, 30);
    display.client.waitFor("the window manager to list the panel", [&] {
        const auto clients = display.client.property(display.client.root(), "_NET_CLIENT_LIST");
        return std::ranges::find(clients, panel.id()) != clients.end();
    });
    EXPECT_EQ(examine().finding("monitors.monitor")["details"]["workArea"],
              nlohmann::json::parse(R"({"x": 0, "y": 30, "width": 1920, "height": 1050})"));
}

TEST_F(DoctorTest, ALayoutWithoutLatinLettersIsNamedAndAProblem)
{
    display.startWindowManager(WindowManager::openbox);
    ChildProcess({{"setxkbmap", "-layout", "ru,de", "-variant", ",nodeadkeys"}, display.server.clientEnvironment()})
        .waitForEnd();
    const auto result = examine();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.finding("keyboard.layout")["details"]["layouts"],
              nlohmann::json::array({"ru", "de (nodeadkeys)"}));
    EXPECT_EQ(result.finding("keyboard.layout")["details"]["current"], "ru");
    EXPECT_EQ(result.verdict("keyboard.letters"), "problem");
}

TEST_F(DoctorTest, ADamagedSettingsFileIsAProblemAndStaysWhereItIs)
{
    display.startWindowManager(WindowManager::openbox);
    const std::string damaged = "<plist><dict><key>textSize";
    writeSettings(damaged);
    const auto result = examine();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(std::string(result.finding("settings.file")["text"]), HasSubstr("are damaged"));
    EXPECT_EQ(contentOf(settings()), damaged);
    EXPECT_EQ(std::distance(fs::directory_iterator(settings().parent_path()), fs::directory_iterator()), 1);
}

TEST_F(DoctorTest, SettingsThatDoNotFitAreNamed)
{
    display.startWindowManager(WindowManager::openbox);
    writeSettings("<plist><dict><key>textSize</key><string>large</string>"
                  "<key>selectedLayoutIDs</key><array><string>centered</string><string>old</string></array>"
                  "</dict></plist>");
    const auto result = examine();
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.finding("settings.type")["details"]["key"], "textSize");
    EXPECT_EQ(result.finding("layouts.unknown")["details"]["layout"], "old");
    EXPECT_EQ(result.verdict("settings.private"), "notice");
}

TEST_F(DoctorTest, WithoutADisplayThatIsWhatItFinds)
{
    const auto result = examine({{"DISPLAY", ""}, {"XDG_SESSION_TYPE", "tty"}});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.verdict("session.display"), "problem");
    EXPECT_EQ(result.finding("session.display")["details"]["sessionType"], "tty");
    EXPECT_EQ(result.verdict("settings.file"), "good");
}

TEST_F(DoctorTest, AWaylandSessionIsWhatItFinds)
{
    const auto result = examine({{"XDG_SESSION_TYPE", "wayland"}});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(std::string(result.finding("session.display")["text"]), HasSubstr("\"wayland\""));
    EXPECT_THAT(std::string(result.finding("session.display")["advice"]), HasSubstr("X11"));
}

class DoctorUnderWindowManager : public DoctorTest, public testing::WithParamInterface<WindowManager> {};

TEST_P(DoctorUnderWindowManager, TheWindowManagerIsNamedAndIsEnough)
{
    if (!WindowManagerProcess::isInstalled(GetParam())) {
        GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
    }
    display.startWindowManager(GetParam());
    const auto result = examine();
    EXPECT_EQ(result.verdict("window-manager.running"), "good");
    EXPECT_NE(result.finding("window-manager.running")["details"]["name"], "");
    EXPECT_EQ(result.verdict("window-manager.lists-windows"), "absent");
    EXPECT_EQ(result.verdict("window-manager.tells-active-window"), "absent");
    EXPECT_EQ(result.verdict("window-manager.tiles"), GetParam() == WindowManager::i3 ? "notice" : "absent");
    EXPECT_EQ(result.status, 0) << result.report.dump(2);
}

INSTANTIATE_TEST_SUITE_P(All, DoctorUnderWindowManager, testing::ValuesIn(allWindowManagers()),
                         [](const auto& instance) { return nameOf(instance.param); });

} // namespace
} // namespace quorvel::xtest
