#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "contract/macos/BundleFolder.h"
#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/desktop/MacBundle.h"
#include "platform/macos/desktop/MacLoginItem.h"
#include "platform/macos/desktop/MacMainQueue.h"
#include "platform/macos/desktop/MacUpdater.h"

namespace quorvel::macos {
namespace {

class DesktopServicesTest : public testing::Test {
protected:
    SimulatedDesktop desktop;
    fakes::FakeDesktop mac{desktop};
};

TEST_F(DesktopServicesTest, TheMainQueueTurnsWhileAnAlertOfItsWorkIsShown)
{
    MacMainQueue queue;
    std::vector<std::string> notes;
    queue.async([&] {
        queue.async([&] { notes.emplace_back("added by it"); });
        queue.after(std::chrono::seconds(1), [&] { notes.emplace_back("a second later"); });
        desktop.advance(1.0); // the alert's own loop
        notes.emplace_back("the alert goes");
    });
    queue.async([&] { notes.emplace_back("added before"); });
    desktop.drain();

    EXPECT_THAT(notes, testing::ElementsAre("added before", "added by it", "a second later", "the alert goes"));
}

TEST_F(DesktopServicesTest, ALoginItemThatNeedsApprovalSaysSo)
{
    desktop.loginItem.requireApproval();
    MacLoginItem item;
    ASSERT_TRUE(item.registerItem());
    EXPECT_EQ(item.status(), LoginItemStatus::requiresApproval);
}

TEST_F(DesktopServicesTest, TheSystemsReasonsForRefusingALoginItemArePassedOn)
{
    desktop.loginItem.refuse("The operation couldn’t be completed.");
    MacLoginItem item;
    EXPECT_EQ(item.registerItem(), std::unexpected("The operation couldn’t be completed."));
    EXPECT_EQ(item.unregisterItem(), std::unexpected("The operation couldn’t be completed."));
}

TEST_F(DesktopServicesTest, AnUpdaterChecksWhenAsked)
{
    const auto updater = MacUpdater::make();
    ASSERT_NE(updater, nullptr);
    const auto controller = updater->createController();
    desktop.journal.clear();
    controller->checkForUpdates();
    EXPECT_THAT(desktop.journal.entries(), testing::ElementsAre("UpdaterController.checkForUpdates()"));
}

TEST_F(DesktopServicesTest, TheGuideIsAPageOfTheBundle)
{
    const contract::BundleFolder folder;
    folder.addResource("guide/index", "html", "<html></html>");
    const auto address = MacBundle(folder.bundle()).userGuideAddress();
    EXPECT_TRUE(address.starts_with("file:///")) << address;
    EXPECT_TRUE(address.ends_with("/Resources/guide/index.html")) << address;
}

TEST_F(DesktopServicesTest, WithoutAGuideThereIsNoAddress)
{
    const contract::BundleFolder folder;
    folder.removeResources("guide");
    EXPECT_EQ(MacBundle(folder.bundle()).userGuideAddress(), "");
}

} // namespace
} // namespace quorvel::macos
