#include "platform/simulated/SimulatedStatusBar.h"

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

TEST(SimulatedStatusBar, AnItemShowsItsImageAndMenuWhileItExists)
{
    SimulatedDesktop desktop;
    auto item = desktop.statusBar.createItem();
    item->setImage({"MenuBarIcon", true});
    const Menu menu{{MenuItem{"Quit", "q", MenuCommand::terminate}}};
    item->setMenu(menu, [](MenuCommand) {});

    ASSERT_EQ(desktop.statusBar.items().size(), 1U);
    EXPECT_EQ(desktop.statusBar.items()[0]->image, (Image{"MenuBarIcon", true}));
    EXPECT_EQ(desktop.statusBar.items()[0]->menu, menu);

    item.reset();
    EXPECT_TRUE(desktop.statusBar.items().empty());
}

TEST(SimulatedStatusBar, AnItemMayLackItsButton)
{
    SimulatedDesktop desktop;
    desktop.statusBar.loseButtons();

    EXPECT_FALSE(desktop.statusBar.createItem()->hasButton());
}

TEST(SimulatedStatusBar, ACommandUnderWayIsDroppedWithItsItem)
{
    SimulatedDesktop desktop;
    auto item = desktop.statusBar.createItem();
    int chosen = 0;
    item->setMenu({{MenuItem{"Quit", "q", MenuCommand::terminate}}}, [&](MenuCommand) { ++chosen; });

    EXPECT_TRUE(desktop.statusBar.choose("Quit"));
    item.reset();
    desktop.drain();

    EXPECT_EQ(chosen, 0);
}

} // namespace
} // namespace quorvel
