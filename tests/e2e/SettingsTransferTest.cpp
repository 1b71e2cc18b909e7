#include <filesystem>

#include <gmock/gmock.h>

#include "e2e/ProgramTest.h"
#include "support/FileContent.h"

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using xtest::contentOf;

std::string listOf(std::string_view entries)
{
    return "<plist version=\"1.0\"><dict>" + std::string(entries) + "</dict></plist>";
}

class SettingsTransfer : public ProgramTest {
protected:
    struct Outcome {
        int status = 0;
        std::vector<std::string> errors;
    };

    // Runs a command that needs no display.
    Outcome run(const std::string& option, const fs::path& file, const xtest::TemporaryDirectory& configurationFolder)
    {
        xtest::ProgramUnderTest program(display.server, QUORVEL_PROGRAM, configurationFolder,
                                        {.arguments = {option, file}, .environment = {{"DISPLAY", ""}}});
        const int status = program.waitForEnd();
        return {status, program.errorLines()};
    }

    Outcome exportTo(const fs::path& file) { return run("--export-settings", file, configuration); }
    Outcome importFrom(const fs::path& file) { return run("--import-settings", file, configuration); }

    xtest::TemporaryDirectory baggage; // the files that travel
    fs::path exported = baggage.path() / "exported.plist";
};

TEST_F(SettingsTransfer, WhatOneExportsAnotherImports)
{
    writeSettings("<key>textSize</key><real>0.1</real><key>isTextBold</key><false/>"
                  "<key>activateOverlayKeyCode</key><integer>40</integer><key>textColor</key><string>#12345678</string>"
                  "<key>savedThemes</key><data>W10=</data>"
                  "<key>selectedLayoutIDs</key><array><string>centered</string><string>a&amp;b</string></array>"
                  "<key>layoutShortcuts</key><dict><key>centered</key><string>3</string></dict>");
    EXPECT_EQ(exportTo(exported).status, 0);
    const xtest::TemporaryDirectory elsewhere;
    const auto imported = run("--import-settings", exported, elsewhere);
    EXPECT_EQ(imported.status, 0);
    EXPECT_THAT(imported.errors, IsEmpty());
    const fs::path again = baggage.path() / "again.plist";
    EXPECT_EQ(run("--export-settings", again, elsewhere).status, 0);
    EXPECT_THAT(contentOf(exported),
                AllOf(HasSubstr("#12345678"), HasSubstr("<integer>40</integer>"), HasSubstr("a&amp;b")));
    EXPECT_EQ(contentOf(again), contentOf(exported));
}

TEST_F(SettingsTransfer, AnExportHoldsSettingsOnlyAndOnlyForTheUser)
{
    writeSettings("<key>textSize</key><real>30</real><key>window</key><string>of another program</string>");
    const auto outcome = exportTo(exported);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, ElementsAre(HasSubstr("\"window\"")));
    EXPECT_THAT(contentOf(exported), AllOf(HasSubstr("textSize"), Not(HasSubstr("window"))));
    EXPECT_EQ(fs::status(exported).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_THAT(storedSettings(), HasSubstr("of another program"));
}

TEST_F(SettingsTransfer, WithoutAnySettingsTheExportIsAnEmptyList)
{
    EXPECT_EQ(exportTo(exported).status, 0);
    EXPECT_THAT(contentOf(exported), HasSubstr("<dict/>"));
    EXPECT_FALSE(fs::exists(settingsFile()));
}

TEST_F(SettingsTransfer, AnImportRefusesWhatIsNoSettingAndTakesTheRest)
{
    writeSettings("<key>textSize</key><real>30</real><key>textBorderWidth</key><real>1.5</real>"
                  "<key>window</key><date>2026-11-21T07:00:01Z</date>");
    const auto file = baggage.write("mixed.plist", listOf("<key>textSize</key><integer>20</integer>"
                                                          "<key>isTextBold</key><string>yes</string>"
                                                          "<key>moveResizeKeyCode</key><integer>-1</integer>"
                                                          "<key>colour</key><string>red</string>"));
    const auto outcome = importFrom(file);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors,
                ElementsAre("Setting \"isTextBold\" is refused: it holds a string where a Boolean is expected.",
                            "Setting \"moveResizeKeyCode\" is refused: -1 is out of range.",
                            "Setting \"colour\" is refused: there is no such setting."));
    EXPECT_THAT(storedSettings(),
                AllOf(HasSubstr("<real>20"), HasSubstr("<real>1.5</real>"), HasSubstr("2026-11-21T07:00:01Z"),
                      Not(HasSubstr("isTextBold")), Not(HasSubstr("moveResizeKeyCode")), Not(HasSubstr("colour"))));
}

TEST_F(SettingsTransfer, TheBinaryFormIsImportedToo)
{
    using namespace std::string_literals;
    const auto file = baggage.write("binary.plist", // { textSize = 20; }
                                    "bplist00\xD1\1\2\x58textSize\x10\x14\x08\x0B\x14"s +
                                        "\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\3\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x16"s);
    const auto outcome = importFrom(file);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, IsEmpty());
    EXPECT_THAT(storedSettings(), HasSubstr("<real>20"));
}

TEST_F(SettingsTransfer, ADamagedFileChangesNothing)
{
    writeSettings("<key>textSize</key><real>30</real>");
    const std::string before = storedSettings();
    const std::string damaged = "<plist><dict><key>textSize</key><real>20</real><key>isTextBold</key><tr";
    const auto file = baggage.write("damaged.plist", damaged);
    const auto outcome = importFrom(file);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, ElementsAre(StartsWith("Nothing was imported from " + file.string() + ": ")));
    EXPECT_EQ(storedSettings(), before);
    EXPECT_EQ(contentOf(file), damaged);
    EXPECT_THAT(importFrom(baggage.path() / "absent.plist").errors, ElementsAre(HasSubstr("no such file")));
}

TEST_F(SettingsTransfer, AnExportLeavesADamagedSettingsFileWhereItIs)
{
    configuration.write("quorvel/settings.plist", "<plist><dict>");
    const auto outcome = exportTo(exported);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, ElementsAre(HasSubstr("settings.plist cannot be read")));
    EXPECT_EQ(storedSettings(), "<plist><dict>");
    EXPECT_FALSE(fs::exists(exported));
}

TEST_F(SettingsTransfer, AnExportReplacesNothingButFiles)
{
    fs::create_directory(exported);
    const auto outcome = exportTo(exported);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, ElementsAre(HasSubstr("not a regular file")));
    EXPECT_TRUE(fs::is_directory(exported));
    EXPECT_EQ(exportTo(baggage.path() / "absent" / "exported.plist").status, 1);
    EXPECT_FALSE(fs::exists(baggage.path() / "absent"));
}

TEST_F(SettingsTransfer, ARunningProgramTakesAnImportOverAtOnce)
{
    start();
    const auto file = baggage.write("k.plist", listOf("<key>activateOverlayKeyCode</key><integer>40</integer>"));
    EXPECT_EQ(importFrom(file).status, 0);
    quorvel->program().waitForLine("Registering shortcuts: keyCode=40, modifiers=768");
    quorvel->program().waitForLineStartingWith("Registered hotkey id=3 ");
    display.keyboard.tap(RunningQuorvel::hotKey().modifiers, XKB_KEY_k);
    quorvel->program().waitForLine("Activate overlay shortcut fired");
    EXPECT_THAT(storedSettings(), HasSubstr("didSeedDefaultLayouts"));
    quorvel->end();
}

TEST_F(SettingsTransfer, ACommandWithoutAFileIsRefused)
{
    for (const char* option : {"--import-settings", "--export-settings"}) {
        xtest::ProgramUnderTest program(display.server, QUORVEL_PROGRAM, configuration, {.arguments = {option}});
        EXPECT_EQ(program.waitForEnd(), 2);
        EXPECT_THAT(program.errorLines(), ElementsAre(HasSubstr("needs the name of one file")));
    }
}

} // namespace
} // namespace quorvel::e2e
