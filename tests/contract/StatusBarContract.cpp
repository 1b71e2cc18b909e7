#include <memory>
#include <vector>

#include "contract/ContractTest.h"
#include "platform/StatusBar.h"

namespace quorvel::contract {
namespace {

class StatusBarContract : public ContractTest {
protected:
    void SetUp() override
    {
        if (!desktop->can(Capability::showStatusItems)) {
            GTEST_SKIP() << "there is nowhere to show status items";
        }
    }

    void setMenu(StatusItem& item, const Menu& menu)
    {
        item.setMenu(menu, [this](MenuCommand command) { chosen.push_back(command); });
    }

    const Menu menu{{MenuItem{"About...", {}, MenuCommand::showAbout},
                     MenuItem{"Check...", {}, MenuCommand::checkForUpdates, false}, std::nullopt,
                     MenuItem{"Quit", "q", MenuCommand::terminate}}};
    StatusBar& statusBar = port(&ContractPorts::statusBar);
    std::vector<MenuCommand> chosen;
};

TEST_F(StatusBarContract, AnItemHasAButton)
{
    EXPECT_TRUE(statusBar.createItem()->hasButton());
}

TEST_F(StatusBarContract, AChosenEntryGivesItsCommandOnce)
{
    const auto item = statusBar.createItem();
    setMenu(*item, menu);

    EXPECT_TRUE(desktop->chooseFromStatusMenu("Quit"));
    EXPECT_TRUE(desktop->waitUntil([&] { return !chosen.empty(); }));
    desktop->settle();

    EXPECT_EQ(chosen, std::vector{MenuCommand::terminate});
}

TEST_F(StatusBarContract, TheSameEntryCanBeChosenAgain)
{
    const auto item = statusBar.createItem();
    setMenu(*item, menu);

    EXPECT_TRUE(desktop->chooseFromStatusMenu("About..."));
    EXPECT_TRUE(desktop->chooseFromStatusMenu("About..."));

    EXPECT_TRUE(desktop->waitUntil([&] { return chosen.size() == 2; }));
    EXPECT_EQ(chosen, (std::vector{MenuCommand::showAbout, MenuCommand::showAbout}));
}

TEST_F(StatusBarContract, ADisabledOrUnknownEntryCannotBeChosen)
{
    const auto item = statusBar.createItem();
    setMenu(*item, menu);

    EXPECT_FALSE(desktop->chooseFromStatusMenu("Check..."));
    EXPECT_FALSE(desktop->chooseFromStatusMenu("Nonsense"));
    desktop->settle();

    EXPECT_TRUE(chosen.empty());
}

TEST_F(StatusBarContract, AnotherMenuReplacesTheFirst)
{
    const auto item = statusBar.createItem();
    setMenu(*item, menu);
    setMenu(*item, {{MenuItem{"Preferences...", ",", MenuCommand::showPreferences}}});

    EXPECT_FALSE(desktop->chooseFromStatusMenu("Quit"));
    EXPECT_TRUE(desktop->chooseFromStatusMenu("Preferences..."));

    EXPECT_TRUE(desktop->waitUntil([&] { return chosen == std::vector{MenuCommand::showPreferences}; }));
}

TEST_F(StatusBarContract, ADestroyedItemHasNoMenu)
{
    auto item = statusBar.createItem();
    setMenu(*item, menu);
    item.reset();

    EXPECT_FALSE(desktop->chooseFromStatusMenu("Quit"));
}

} // namespace
} // namespace quorvel::contract
