#include "platform/x11/settings/PlistUserDefaults.h"

#include <cstdlib>
#include <filesystem>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/x11/FileDescriptor.h"
#include "tests/unit/x11/SettingsFileFixture.h"

namespace quorvel::x11 {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class PlistUserDefaultsTest : public SettingsFileFixture {};

TEST_F(PlistUserDefaultsTest, WithoutAFileEveryKeyIsAbsentAndNothingIsSaid)
{
    auto defaults = open();
    EXPECT_EQ(defaults.object("activateOverlayKeyCode"), std::nullopt);
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(PlistUserDefaultsTest, ValuesOutliveTheProgramWithTheirTypes)
{
    const PropertyValue values[] = {
        {true},
        {std::int64_t{1}},
        {1.0},
        text("1"),
        {PropertyData{std::byte{1}}},
        {PropertyArray{text("a")}},
        {PropertyDictionary{{"a", text("1")}}},
    };
    {
        auto defaults = open();
        for (std::size_t i = 0; i < std::size(values); ++i) {
            defaults.setObject("key" + std::to_string(i), values[i]);
        }
    }
    auto defaults = open();
    for (std::size_t i = 0; i < std::size(values); ++i) {
        EXPECT_EQ(defaults.object("key" + std::to_string(i)), values[i]) << i;
    }
}

TEST_F(PlistUserDefaultsTest, AValueIsOnDiskWhenTheCallReturns)
{
    auto defaults = open();
    defaults.setObject("textSize", PropertyValue{28.5});
    EXPECT_EQ(open().object("textSize"), PropertyValue{28.5});
}

TEST_F(PlistUserDefaultsTest, ARemovedKeyIsAbsentAfterwards)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    defaults.setObject("b", integer(2));
    defaults.removeObject("a");
    EXPECT_EQ(defaults.object("a"), std::nullopt);
    EXPECT_EQ(open().object("a"), std::nullopt);
    EXPECT_EQ(open().object("b"), integer(2));
}

TEST_F(PlistUserDefaultsTest, OnlyTheUserMayReadTheFile)
{
    open().setObject("a", integer(1));
    struct stat status{};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(::stat(path.parent_path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(PlistUserDefaultsTest, WritingLeavesNothingButTheFile)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    defaults.setObject("a", integer(2));
    EXPECT_THAT(namesInDirectory(), ElementsAre("settings.plist"));
}

TEST_F(PlistUserDefaultsTest, FilesThatAKilledWriterLeftBehindAreRemovedAndNoOthers)
{
    open().setObject("a", integer(1));
    directory.write("config/quorvel/.settings.plist.unfinished-aB3dE6", "half");
    directory.write("config/quorvel/.settings.plist.backup", "a person's");
    directory.write("config/quorvel/.other.plist.unfinished-aB3dE6", "of another file");
    const auto atWork =
        directory.write("config/quorvel/.settings.plist.unfinished-zZ9yX8", "of a writer that is at work");
    const FileDescriptor writer(::open(atWork.c_str(), O_RDONLY));
    ASSERT_EQ(::flock(writer.get(), LOCK_EX), 0);
    open();
    EXPECT_THAT(namesInDirectory(), ElementsAre(".other.plist.unfinished-aB3dE6", ".settings.plist.backup",
                                                ".settings.plist.unfinished-zZ9yX8", "settings.plist"));
}

TEST_F(PlistUserDefaultsTest, SettingWhatIsStoredDoesNotTouchTheFile)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    const auto stamp = SettingsFile(path).stamp();
    defaults.setObject("a", integer(1));
    EXPECT_EQ(SettingsFile(path).stamp(), stamp);
}

TEST_F(PlistUserDefaultsTest, KeysAndTypesThatNobodyKnowsSurviveARewrite)
{
    write(head +
          "<key>lastCheck</key><date>2025-03-01T00:00:00Z</date><key>huge</key>"
          "<integer>18446744073709551615</integer><key>window</key><array><date>2026-11-21T07:00:01Z</date>"
          "<real>0.30000000000000004</real></array>" +
          tail);
    open().setObject("a", integer(1));
    EXPECT_THAT(contents(path), HasSubstr("<date>2025-03-01T00:00:00Z</date>"));
    EXPECT_THAT(contents(path), HasSubstr("<integer>18446744073709551615</integer>"));
    EXPECT_THAT(contents(path), HasSubstr("<date>2026-11-21T07:00:01Z</date>"));
    EXPECT_THAT(contents(path), HasSubstr("<real>0.30000000000000004</real>"));
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(PlistUserDefaultsTest, ADateIsNoSetting)
{
    write(head + "<key>a</key><date>2026-11-21T07:00:01Z</date>" + tail);
    EXPECT_EQ(open().object("a"), std::nullopt);
}

TEST_F(PlistUserDefaultsTest, ALinkedFileIsReplacedWhereItLies)
{
    const fs::path target = directory.write("dotfiles/quorvel.plist", head + "<key>a</key><integer>1</integer>" + tail);
    fs::create_directories(path.parent_path());
    fs::create_symlink("../../dotfiles/quorvel.plist", path);
    auto defaults = open();
    EXPECT_EQ(defaults.object("a"), integer(1));
    defaults.setObject("a", integer(2));
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_THAT(contents(target), HasSubstr("<integer>2</integer>"));
}

TEST_F(PlistUserDefaultsTest, ALinkToAFileThatIsNotThereYetIsFollowed)
{
    fs::create_directories(path.parent_path());
    fs::create_symlink(directory.path() / "elsewhere" / "q.plist", path);
    open().setObject("a", integer(1));
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_TRUE(fs::is_regular_file(directory.path() / "elsewhere" / "q.plist"));
}

TEST_F(PlistUserDefaultsTest, AChangeByAnotherProgramIsTakenOver)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    write(head + "<key>a</key><integer>2</integer>" + tail);
    int changes = 0;
    const auto observation = defaults.observeForeignChanges([&] { ++changes; });
    EXPECT_THAT(defaults.reload(), ElementsAre("a"));
    EXPECT_EQ(defaults.object("a"), integer(2));
    EXPECT_EQ(changes, 1);
    EXPECT_THAT(defaults.reload(), IsEmpty());
    EXPECT_EQ(changes, 1);
}

TEST_F(PlistUserDefaultsTest, OnlyWhatAnotherProgramAddedChangedOrRemovedIsNamed)
{
    auto defaults = open();
    defaults.setObjects(
        {{"added", integer(1)}, {"changed", integer(1)}, {"removed", integer(1)}, {"same", integer(1)}});
    defaults.removeObject("added");
    write(head + "<key>same</key><integer>1</integer><key>changed</key><integer>2</integer>" +
          "<key>added</key><integer>1</integer><key>odd</key><date>2026-01-01T00:00:00Z</date>" + tail);
    EXPECT_THAT(defaults.reload(), ElementsAre("added", "changed", "removed"));
}

TEST_F(PlistUserDefaultsTest, ItsOwnWritingIsNoChangeByAnotherProgram)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    EXPECT_THAT(defaults.reload(), IsEmpty());
}

TEST_F(PlistUserDefaultsTest, AFileWrittenWithTheSameValuesIsNoChange)
{
    auto defaults = open();
    defaults.setObject("a", integer(1));
    write(head + "<!-- tidied -->\n<key>a</key> <integer>1</integer>" + tail);
    EXPECT_THAT(defaults.reload(), IsEmpty());
}

TEST_F(PlistUserDefaultsTest, TwoWritersDoNotUndoEachOther)
{
    auto first = open();
    auto second = open();
    first.setObject("a", integer(1));
    second.setObject("b", integer(2));
    first.setObject("c", integer(3));
    EXPECT_THAT(first.reload(), ElementsAre("b"));
    EXPECT_EQ(first.object("b"), integer(2));
    auto third = open();
    EXPECT_EQ(third.object("a"), integer(1));
    EXPECT_EQ(third.object("b"), integer(2));
    EXPECT_EQ(third.object("c"), integer(3));
}

TEST(SettingsFile, TheConfigurationDirectoryIsTheOneOfTheEnvironment)
{
    ::setenv("XDG_CONFIG_HOME", "/somewhere", 1);
    EXPECT_EQ(SettingsFile::defaultPath(), "/somewhere/quorvel/settings.plist");
    ::setenv("HOME", "/home/somebody", 1);
    ::setenv("XDG_CONFIG_HOME", "not/absolute", 1);
    EXPECT_EQ(SettingsFile::defaultPath(), "/home/somebody/.config/quorvel/settings.plist");
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(SettingsFile::defaultPath(), "/home/somebody/.config/quorvel/settings.plist");
}

} // namespace
} // namespace quorvel::x11
