#include "platform/x11/windows/DesktopEntries.h"

#include <chrono>
#include <filesystem>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

namespace quorvel::x11 {
namespace {

namespace fs = std::filesystem;

class DesktopEntriesTest : public testing::Test {
protected:
    void write(const std::string& file, const std::string& name, const std::string& more = "")
    {
        directory.write(file, "[Desktop Entry]\nType=Application\nName=" + name + "\n" + more);
    }

    xtest::TemporaryDirectory directory;
    DesktopEntries entries{{directory.path() / "user", directory.path() / "system"}};
};

TEST_F(DesktopEntriesTest, AnApplicationIsFoundByWindowClassThenByFileThenByTheLastPartOfIt)
{
    write("system/one.desktop", "By class", "StartupWMClass=Editor\n");
    write("system/viewer.desktop", "By file");
    write("system/org.example.Player.desktop", "By last part");
    EXPECT_EQ(entries.nameOf("", "editor"), "By class");
    EXPECT_EQ(entries.nameOf("viewer", "Other"), "By file");
    EXPECT_EQ(entries.nameOf("org.example.player", ""), "By last part");
    EXPECT_EQ(entries.nameOf("other", "PLAYER"), "By last part");
    EXPECT_EQ(entries.nameOf("other", "unknown"), std::nullopt);
    EXPECT_EQ(entries.nameOf("", ""), std::nullopt);
}

TEST_F(DesktopEntriesTest, TheInstanceGoesBeforeTheClass)
{
    write("system/browser.desktop", "Browser");
    write("system/mail.desktop", "Mail in the browser");
    EXPECT_EQ(entries.nameOf("mail", "browser"), "Mail in the browser");
}

TEST_F(DesktopEntriesTest, AnEarlierDirectoryGoesBeforeALaterOne)
{
    write("system/editor.desktop", "The system's");
    write("user/editor.desktop", "The user's");
    EXPECT_EQ(entries.nameOf("editor", ""), "The user's");
}

TEST_F(DesktopEntriesTest, AFileInASubdirectoryIsNamedWithDashes)
{
    write("system/kde/editor.desktop", "Nested");
    EXPECT_EQ(entries.nameOf("kde-editor", ""), "Nested");
}

TEST_F(DesktopEntriesTest, HiddenNamelessAndUnreadableFilesDoNotCount)
{
    write("system/hidden.desktop", "Hidden", "Hidden=true\n");
    directory.write("system/nameless.desktop", "[Desktop Entry]\nType=Application\n");
    directory.write("system/broken.desktop", "not a key file");
    write("system/notes.txt", "Notes");
    for (const auto* instance : {"hidden", "nameless", "broken", "notes"}) {
        EXPECT_EQ(entries.nameOf(instance, ""), std::nullopt) << instance;
    }
}

TEST_F(DesktopEntriesTest, AnApplicationInstalledLaterIsFound)
{
    write("system/first.desktop", "First");
    EXPECT_EQ(entries.nameOf("second", ""), std::nullopt);
    write("system/second.desktop", "Second");
    fs::last_write_time(directory.path() / "system", fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_EQ(entries.nameOf("second", ""), "Second");
}

TEST_F(DesktopEntriesTest, DirectoriesThatAreNotThereDoNoHarm)
{
    EXPECT_EQ(entries.nameOf("editor", ""), std::nullopt);
}

} // namespace
} // namespace quorvel::x11
