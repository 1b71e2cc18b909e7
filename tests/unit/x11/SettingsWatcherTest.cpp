#include "platform/x11/settings/SettingsWatcher.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "platform/x11/GlibMainLoop.h"
#include "support/TemporaryDirectory.h"

namespace quorvel::x11 {
namespace {

namespace fs = std::filesystem;

// The kernel queues a change before the call that makes it returns, so one turn of the loop without waiting sees it.
class SettingsWatcherTest : public testing::Test {
protected:
    int changes()
    {
        count = 0;
        loop.turn();
        return count;
    }

    void write(const fs::path& file, std::string_view bytes) { std::ofstream(file, std::ios::trunc) << bytes; }

    xtest::TemporaryDirectory directory;
    fs::path path = directory.write("quorvel/settings.plist", "first");
    GlibMainLoop loop;
    int count = 0;
    SettingsWatcher watcher{SettingsFile(path), [this] { ++count; }};
};

TEST_F(SettingsWatcherTest, NothingIsToldWhileNothingHappens)
{
    EXPECT_EQ(changes(), 0);
}

TEST_F(SettingsWatcherTest, AFileWrittenInPlaceIsToldOnceItIsClosed)
{
    std::ofstream stream(path, std::ios::trunc);
    stream << "half" << std::flush;
    EXPECT_EQ(changes(), 0);
    stream.close();
    EXPECT_EQ(changes(), 1);
}

TEST_F(SettingsWatcherTest, AFilePutInItsPlaceIsToldEveryTime)
{
    for (int round = 0; round < 3; ++round) {
        write(path.string() + "~", "new");
        fs::rename(path.string() + "~", path);
        EXPECT_EQ(changes(), 1) << round;
    }
}

TEST_F(SettingsWatcherTest, OtherFilesOfTheDirectoryDoNotCount)
{
    write(path.parent_path() / "notes.txt", "x");
    EXPECT_EQ(changes(), 0);
}

TEST_F(SettingsWatcherTest, ADirectoryPutInPlaceOfItsOwnIsWatchedAndTheOldOneNoMore)
{
    const fs::path aside = directory.path() / "aside";
    fs::rename(path.parent_path(), aside);
    EXPECT_EQ(changes(), 1);
    directory.write("new/settings.plist", "second");
    fs::rename(directory.path() / "new", path.parent_path());
    EXPECT_EQ(changes(), 1);
    write(path, "third");
    EXPECT_EQ(changes(), 1);
    write(aside / "settings.plist", "nobody's any more");
    EXPECT_EQ(changes(), 0);
}

TEST_F(SettingsWatcherTest, ADirectoryThatIsRemovedAndMadeAnewIsWatched)
{
    fs::remove_all(path.parent_path());
    changes();
    fs::create_directory(path.parent_path());
    EXPECT_EQ(changes(), 1);
    write(path, "second");
    EXPECT_EQ(changes(), 1);
}

TEST_F(SettingsWatcherTest, DirectoriesThatAreMadeOneAfterTheOtherAreFollowedDownToTheFile)
{
    const fs::path deep = directory.path() / "a/b/c/settings.plist";
    int count = 0;
    SettingsWatcher other{SettingsFile(deep), [&] { ++count; }};
    for (const auto& level :
         {deep.parent_path().parent_path().parent_path(), deep.parent_path().parent_path(), deep.parent_path()}) {
        fs::create_directory(level);
        loop.turn();
    }
    EXPECT_EQ(count, 3);
    write(deep, "first");
    loop.turn();
    EXPECT_EQ(count, 4);
}

TEST_F(SettingsWatcherTest, ALinkPutInPlaceOfTheFileIsFollowed)
{
    const fs::path target = directory.write("dotfiles/q.plist", "x");
    fs::create_symlink(target, path.string() + "~");
    fs::rename(path.string() + "~", path);
    EXPECT_EQ(changes(), 1);
    write(target, "y");
    EXPECT_EQ(changes(), 1);
    fs::remove(path);
    fs::create_symlink(directory.write("dotfiles/other.plist", "z"), path);
    EXPECT_EQ(changes(), 1);
    write(target, "nobody's any more");
    EXPECT_EQ(changes(), 0);
}

} // namespace
} // namespace quorvel::x11
