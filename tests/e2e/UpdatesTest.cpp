#include <gmock/gmock.h>

#include "e2e/ProgramTest.h"
#include "support/FileContent.h"
#include "support/WebServer.h"

namespace quorvel::e2e {
namespace {

using testing::HasSubstr;

class Updates : public ProgramTest {
protected:
    static std::string feedWith(std::string_view version)
    {
        return "<rss><channel><item><version>" + std::string(version) +
               "</version><link>https://example.org/get</link></item></channel></rss>";
    }

    void switchAutomaticChecksOn()
    {
        configuration.write("quorvel/updates.plist", "<plist version=\"1.0\"><dict><key>automaticallyChecksForUpdates"
                                                     "</key><true/></dict></plist>");
    }

    std::string store() const { return xtest::contentOf(configuration.path() / "quorvel" / "updates.plist"); }

    bool isAnnouncementActive()
    {
        const auto windows = display.client.managedWindows();
        return windows.size() == 1 && display.client.processOf(windows.front()) == quorvel->program().id() &&
               display.client.activeWindow() == windows.front();
    }

    // The libraries that the program has loaded.
    std::string maps() { return xtest::contentOf("/proc/" + std::to_string(quorvel->program().id()) + "/maps"); }
};

TEST_F(Updates, ANewVersionIsAnnouncedByItself)
{
    const xtest::WebServer server(feedWith("1000"));
    switchAutomaticChecksOn();
    start({.environment = {{"QUORVEL_UPDATE_FEED", server.address()}}});
    display.client.waitFor("the announcement with the keyboard", [&] { return isAnnouncementActive(); });
    EXPECT_THAT(store(), HasSubstr("lastUpdateCheck"));
    display.keyboard.tap(XKB_KEY_Escape);
    display.client.waitFor("the announcement to go", [&] { return display.client.managedWindows().empty(); });
    endCleanly();
}

TEST_F(Updates, NothingOfTheWebIsLoadedBeforeTheFirstCheck)
{
    const xtest::WebServer server(feedWith("0.0.1"));
    start({.environment = {{"QUORVEL_UPDATE_FEED", server.address()}}});
    EXPECT_THAT(maps(), testing::Not(HasSubstr("libsoup")));
    EXPECT_THAT(maps(), HasSubstr("libplist"));
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
