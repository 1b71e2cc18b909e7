#include "platform/x11/desktop/X11LoginItem.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

namespace quorvel::x11 {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class X11LoginItemTest : public testing::Test {
protected:
    std::string entry() const
    {
        std::ostringstream text;
        text << std::ifstream(directory.path() / "user/quorvel.desktop").rdbuf();
        return text.str();
    }

    void writeUserEntry(std::string_view lines) const
    {
        directory.write("user/quorvel.desktop", "[Desktop Entry]\nType=Application\nName=Q\n" + std::string(lines));
    }

    void writeSystemEntry(std::string_view lines) const
    {
        directory.write("system/quorvel.desktop", "[Desktop Entry]\nType=Application\nName=Q\n" + std::string(lines));
    }

    xtest::TemporaryDirectory directory;
    X11LoginItem item{{directory.path() / "user", {directory.path() / "none", directory.path() / "system"}, "/bin/sh"}};
};

TEST_F(X11LoginItemTest, TheEntryNamesTheProgram)
{
    ASSERT_TRUE(item.registerItem());
    EXPECT_THAT(entry(),
                AllOf(HasSubstr("Type=Application\n"), HasSubstr("Name=Quorvel\n"), HasSubstr("Exec=\"/bin/sh\"\n"),
                      HasSubstr("TryExec=/bin/sh\n"), HasSubstr("X-GNOME-Autostart-enabled=true\n")));
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
}

TEST_F(X11LoginItemTest, AProgramWithAnUnusualNameIsStartedToo)
{
    const auto program = directory.write("my $100 \"best\" `bin` \\ dir/quorvel", "#!/bin/sh\n");
    fs::permissions(program, fs::perms::owner_all);
    X11LoginItem unusual({directory.path() / "user", {}, program});
    ASSERT_TRUE(unusual.registerItem());
    EXPECT_EQ(unusual.status(), LoginItemStatus::enabled);
    EXPECT_THAT(entry(), HasSubstr("\\\\$100 \\\\\"best\\\\\" \\\\`bin\\\\` \\\\\\\\ dir/quorvel\"\n"));
}

TEST_F(X11LoginItemTest, APercentSignOfItsNameIsNoFieldCode)
{
    ASSERT_TRUE(X11LoginItem({directory.path() / "user", {}, "/opt/100%/quorvel"}).registerItem());
    EXPECT_THAT(entry(), HasSubstr("Exec=\"/opt/100%%/quorvel\"\n"));
}

TEST_F(X11LoginItemTest, AnEntryThatThePersonHidOrSwitchedOffIsOff)
{
    writeUserEntry("Exec=/bin/sh\n");
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
    writeUserEntry("Exec=/bin/sh\nHidden=true\n");
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    writeUserEntry("Exec=/bin/sh\nX-GNOME-Autostart-enabled=false\n");
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
}

TEST_F(X11LoginItemTest, AnEntryForOtherDesktopsIsOff)
{
    writeUserEntry("Exec=/bin/sh\nOnlyShowIn=SomethingElse;\n");
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
}

TEST_F(X11LoginItemTest, AnEntryWhoseProgramIsGoneIsNotFound)
{
    writeUserEntry("Exec=/nowhere/quorvel\n");
    EXPECT_EQ(item.status(), LoginItemStatus::notFound);
    writeUserEntry("Exec=/bin/sh\nTryExec=/nowhere/quorvel\n");
    EXPECT_EQ(item.status(), LoginItemStatus::notFound);
    writeUserEntry("");
    EXPECT_EQ(item.status(), LoginItemStatus::notFound);
    directory.write("user/quorvel.desktop", "not an entry");
    EXPECT_EQ(item.status(), LoginItemStatus::notFound);
}

TEST_F(X11LoginItemTest, RegisteringMendsAnEntryAndKeepsWhatAPersonAdded)
{
    writeUserEntry("Exec=/nowhere/quorvel\nHidden=true\nOnlyShowIn=SomethingElse;\nX-Delay=5\n# slow machine\n"
                   "X-GNOME-Autostart-enabled=false\n");
    ASSERT_TRUE(item.registerItem());
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
    EXPECT_THAT(entry(), AllOf(HasSubstr("X-Delay=5"), HasSubstr("# slow machine"), Not(HasSubstr("Hidden"))));
}

TEST_F(X11LoginItemTest, AnEntryOfTheSystemCountsUntilThePersonHasOne)
{
    writeSystemEntry("Exec=/bin/sh\n");
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
    ASSERT_TRUE(item.unregisterItem());
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    EXPECT_THAT(entry(), HasSubstr("Hidden=true"));
    ASSERT_TRUE(item.registerItem());
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
}

TEST_F(X11LoginItemTest, UnregisteringLeavesNoFile)
{
    ASSERT_TRUE(item.registerItem());
    ASSERT_TRUE(item.unregisterItem());
    EXPECT_FALSE(fs::exists(directory.path() / "user/quorvel.desktop"));
    EXPECT_TRUE(item.unregisterItem());
}

TEST_F(X11LoginItemTest, AFolderThatCannotBeMadeIsToldWithItsName)
{
    directory.write("user", "a file where the folder should be");
    const auto registered = item.registerItem();
    ASSERT_FALSE(registered);
    EXPECT_THAT(registered.error(), AllOf(HasSubstr((directory.path() / "user").string()), HasSubstr("cannot be")));
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    EXPECT_TRUE(item.unregisterItem());
}

TEST_F(X11LoginItemTest, AnEntryThatCannotBeReplacedIsToldWithItsName)
{
    fs::create_directories(directory.path() / "user/quorvel.desktop/full");
    const auto registered = item.registerItem();
    ASSERT_FALSE(registered);
    EXPECT_THAT(registered.error(), HasSubstr("quorvel.desktop cannot be written"));
    EXPECT_NE(item.status(), LoginItemStatus::enabled);
    EXPECT_FALSE(item.unregisterItem());
}

} // namespace
} // namespace quorvel::x11
