#include <csignal>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "tests/unit/x11/SettingsFileFixture.h"

namespace quorvel::x11 {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Files that cannot be read or written.
class DamagedSettingsTest : public SettingsFileFixture {};

TEST_F(DamagedSettingsTest, ALinkThatLeadsInACircleIsLeftAlone)
{
    fs::create_directories(path.parent_path());
    fs::create_symlink("settings.plist", path);
    auto defaults = open();
    defaults.setObject("a", integer(1));
    EXPECT_EQ(defaults.object("a"), integer(1));
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_THAT(lines, ElementsAre(HasSubstr("cannot be read")));
}

TEST_F(DamagedSettingsTest, ADamagedFileIsMovedAsideWithOneLine)
{
    write("not a property list");
    auto defaults = open();
    EXPECT_EQ(defaults.object("a"), std::nullopt);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(contents(path.string() + ".damaged-1"), "not a property list");
    EXPECT_THAT(lines, ElementsAre(testing::AllOf(HasSubstr(path.string()), HasSubstr("damaged-1"))));
}

TEST_F(DamagedSettingsTest, AnEarlierDamagedFileIsNeverOverwritten)
{
    write("first");
    open();
    write("second");
    open();
    EXPECT_EQ(contents(path.string() + ".damaged-1"), "first");
    EXPECT_EQ(contents(path.string() + ".damaged-2"), "second");
}

TEST_F(DamagedSettingsTest, EveryShortenedFileIsMovedAsideWhole)
{
    write(head + "<key>a</key><string>b</string>" + tail);
    const std::string whole = contents(path);
    for (std::size_t size = 0; size < whole.size() - 1; size += 5) {
        write(whole.substr(0, size));
        open();
        const fs::path aside = path.string() + ".damaged-1";
        EXPECT_EQ(contents(aside), whole.substr(0, size));
        fs::remove(aside);
    }
}

TEST_F(DamagedSettingsTest, AFileThatVanishesLeavesTheValuesAndIsWrittenAgain)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    fs::remove_all(path.parent_path());
    EXPECT_THAT(defaults.reload(), IsEmpty());
    EXPECT_EQ(defaults.object("a"), integer(1));
    defaults.setObject("b", integer(2));
    EXPECT_EQ(open().object("a"), integer(1));
}

TEST_F(DamagedSettingsTest, AFileDamagedMeanwhileStaysUntilTheNextWriteAndThenGoesAside)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    write("half an edit");
    EXPECT_THAT(defaults.reload(), IsEmpty());
    EXPECT_EQ(defaults.object("a"), integer(1));
    EXPECT_EQ(contents(path), "half an edit");
    EXPECT_THAT(lines, ElementsAre(HasSubstr("settings in use stay")));
    defaults.setObject("b", integer(2));
    EXPECT_EQ(contents(path.string() + ".damaged-1"), "half an edit");
    EXPECT_EQ(open().object("a"), integer(1));
    EXPECT_EQ(open().object("b"), integer(2));
    EXPECT_THAT(lines, ElementsAre(HasSubstr("stay"), HasSubstr("was moved to")));
}

TEST_F(DamagedSettingsTest, WhatIsNotAFileIsLeftAloneAndValuesHoldForThisRun)
{
    fs::create_directories(path);
    auto defaults = open();
    defaults.setObject("a", integer(1));
    defaults.setObject("b", integer(2));
    EXPECT_EQ(defaults.object("a"), integer(1));
    EXPECT_TRUE(fs::is_directory(path));
    EXPECT_THAT(lines, ElementsAre(HasSubstr("cannot be read")));
}

TEST_F(DamagedSettingsTest, WhereTheDirectoryCannotBeMadeValuesHoldForThisRun)
{
    directory.write("config", "a file where the directory should be");
    auto defaults = open();
    defaults.setObject("a", integer(1));
    EXPECT_EQ(defaults.object("a"), integer(1));
    EXPECT_THAT(lines, ElementsAre(HasSubstr("cannot be")));
}

TEST_F(DamagedSettingsTest, ValuesThatCouldNotBeWrittenAreWrittenWithTheNextOne)
{
    fs::create_directories(path);
    auto defaults = open();
    defaults.setObject("a", integer(1));
    defaults.removeObject("gone");
    fs::remove(path);
    write(head + "<key>gone</key><true/><key>kept</key><true/>" + tail);
    defaults.setObject("b", integer(2));
    auto again = open();
    EXPECT_EQ(again.object("a"), integer(1));
    EXPECT_EQ(again.object("b"), integer(2));
    EXPECT_EQ(again.object("gone"), std::nullopt);
    EXPECT_EQ(again.object("kept"), PropertyValue{true});
}

TEST_F(DamagedSettingsTest, AFullDiskLosesNothing)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    const std::string before = contents(path);
    rlimit old{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
    const rlimit small{100, old.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    defaults.setObject("b", text(std::string(10'000, 'x')));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &old), 0);
    EXPECT_EQ(contents(path), before);
    EXPECT_THAT(namesInDirectory(), ElementsAre("settings.plist"));
    EXPECT_THAT(lines, ElementsAre(HasSubstr("cannot be written")));
    EXPECT_EQ(defaults.object("b"), text(std::string(10'000, 'x')));
    defaults.setObject("c", integer(3));
    EXPECT_EQ(open().object("b"), text(std::string(10'000, 'x')));
}

} // namespace
} // namespace quorvel::x11
