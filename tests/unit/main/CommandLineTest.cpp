#include "main/CommandLine.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include <gmock/gmock.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using testing::ContainerEq;
using testing::Eq;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const fs::path folder = QUORVEL_LINUX_RESOURCES;

std::string contentOf(const fs::path& file)
{
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

// What the first group of the pattern matches, anywhere in the text.
std::set<std::string> allOf(const std::string& text, const char* pattern)
{
    const std::regex expression(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), expression); match != std::sregex_iterator(); ++match) {
        found.insert((*match)[1].str());
    }
    return found;
}

std::set<std::string> optionsOfHelp()
{
    return allOf(std::string(helpText()), "\n  (--[a-z-]+)");
}

std::set<std::string> optionsOfManual()
{
    const auto manual = std::regex_replace(contentOf(folder / "quorvel.1"), std::regex(R"(\\-)"), "-");
    const auto begin = manual.find("\n.SH OPTIONS\n");
    const auto end = manual.find("\n.SH ", begin + 1);
    return allOf(manual.substr(begin, end - begin), "\n\\.TP\n\\.BR?I? (?:-[a-z] \", \" )?(--[a-z-]+)");
}

auto parsed(const std::vector<const char*>& arguments)
{
    return commandLine(arguments);
}

TEST(CommandLine, HelpListsOptionsThatThereAre)
{
    EXPECT_THAT(optionsOfHelp(), Not(IsEmpty()));
    for (const auto& option : optionsOfHelp()) {
        const bool isPlain = parsed({option.c_str()}).has_value();
        const bool takesFile = parsed({option.c_str(), "file"}).has_value();
        EXPECT_NE(isPlain, takesFile) << option;
    }
}

TEST(CommandLine, TheManualPageTellsOfTheOptionsOfHelpAndOfNoOthers)
{
    EXPECT_THAT(optionsOfManual(), ContainerEq(optionsOfHelp()));
}

TEST(CommandLine, ShellsCompleteTheOptionsOfHelpAndNoOthers)
{
    const auto bash = allOf(contentOf(folder / "completions/quorvel.bash"), "compgen -W '([^']*)'");
    ASSERT_THAT(bash, testing::SizeIs(1));
    EXPECT_THAT(allOf(*bash.begin(), "(--[a-z-]+)"), ContainerEq(optionsOfHelp()));

    EXPECT_THAT(allOf(contentOf(folder / "completions/_quorvel"), "[^(](--[a-z-]+)"), ContainerEq(optionsOfHelp()));

    std::set<std::string> fish;
    for (const auto& name : allOf(contentOf(folder / "completions/quorvel.fish"), " -l ([a-z-]+)")) {
        fish.insert("--" + name);
    }
    EXPECT_THAT(fish, ContainerEq(optionsOfHelp()));
}

TEST(CommandLine, ShellsCompleteFilesAfterTheOptionsThatTakeOne)
{
    const auto bash = contentOf(folder / "completions/quorvel.bash");
    const auto end = bash.find("\n        compopt -o filenames");
    const auto condition = bash.rfind('\n', end - 1);
    const auto filesFollowInBash = allOf(bash.substr(condition, end - condition), "== (--[a-z-]+)");
    const auto zsh = contentOf(folder / "completions/_quorvel");
    const auto fish = contentOf(folder / "completions/quorvel.fish");
    for (const auto& option : optionsOfHelp()) {
        const bool takesFile = parsed({option.c_str(), "file"}).has_value();
        EXPECT_THAT(filesFollowInBash.contains(option), Eq(takesFile)) << option;
        EXPECT_THAT(std::regex_search(zsh, std::regex(option + "\\[[^\\]]*\\]:file:_files")), Eq(takesFile)) << option;
        EXPECT_THAT(fish.find("-l " + option.substr(2) + " -r -F") != std::string::npos, Eq(takesFile)) << option;
    }
}

TEST(CommandLine, TheFormatOfADiagnosisIsCompletedAndExplainedWhereItMayStand)
{
    EXPECT_THAT(parsed({"--doctor"}), Eq(CommandLine{StartMode::diagnose, {}}));
    EXPECT_THAT(parsed({"--doctor", "--json"}), Eq(CommandLine{StartMode::diagnoseAsJson, {}}));
    EXPECT_FALSE(parsed({"--json"}).has_value());
    EXPECT_FALSE(parsed({"--doctor", "--xml"}).has_value());
    EXPECT_FALSE(parsed({"--replace", "--json"}).has_value());
    for (const auto* file : {"completions/quorvel.bash", "completions/_quorvel", "completions/quorvel.fish"}) {
        EXPECT_THAT(contentOf(folder / file), HasSubstr("--json")) << file;
    }
    EXPECT_THAT(contentOf(folder / "quorvel.1"), HasSubstr(R"(\-\-doctor " [" \-\-json ])"));
    EXPECT_THAT(std::string(helpText()), HasSubstr("--doctor [--json]"));
}

TEST(CommandLine, NothingAtAllMeansToRun)
{
    EXPECT_THAT(parsed({}), Eq(CommandLine{}));
}

TEST(CommandLine, AnOptionThatNeedsAFileSaysSo)
{
    const auto result = parsed({"--export-settings"});
    ASSERT_FALSE(result.has_value());
    EXPECT_THAT(result.error(), HasSubstr("--export-settings needs the name of one file"));
}

} // namespace
} // namespace quorvel
