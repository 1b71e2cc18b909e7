#include <algorithm>
#include <string>
#include <vector>

#include "contract/AccessibilityTest.h"

namespace quorvel::contract {
namespace {

using Names = std::vector<std::string>;

class AxObserverContract : public AccessibilityTest {
protected:
    std::unique_ptr<AxObserver> createObserver()
    {
        auto observer =
            accessibility.createObserver(window.process, [this](std::string_view name) { heard.emplace_back(name); });
        EXPECT_TRUE(observer.has_value());
        return std::move(observer).value_or(nullptr);
    }

    // An observer of everything about the window.
    std::unique_ptr<AxObserver> watch()
    {
        auto observer = createObserver();
        for (const auto name : {axNames::moved, axNames::resized, axNames::elementDestroyed}) {
            EXPECT_TRUE(observer->addNotification(element, name).has_value());
        }
        observer->startDelivery();
        desktop->settle();
        return observer;
    }

    bool hasHeard(std::string_view name) const { return std::ranges::find(heard, name) != heard.end(); }
    bool hears(std::string_view name)
    {
        return desktop->waitUntil([&] { return hasHeard(name); });
    }

    ContractWindow window = desktop->openWindow("Editor", "Notes", somewhere);
    AxElementRef element = elementOf(window);
    Names heard;
};

TEST_F(AxObserverContract, AMoveIsToldAsAMoveOnly)
{
    const auto observer = watch();

    desktop->moveWindow(window, {40.0, 60.0, 500.0, 400.0});

    EXPECT_TRUE(hears(axNames::moved));
    desktop->settle();
    EXPECT_FALSE(hasHeard(axNames::resized));
    EXPECT_FALSE(hasHeard(axNames::elementDestroyed));
}

TEST_F(AxObserverContract, AResizeIsToldAsAResizeOnly)
{
    const auto observer = watch();

    desktop->moveWindow(window, {100.0, 120.0, 450.0, 350.0});

    EXPECT_TRUE(hears(axNames::resized));
    desktop->settle();
    EXPECT_FALSE(hasHeard(axNames::moved));
}

TEST_F(AxObserverContract, WhatWasToldCanBeRead)
{
    const auto observer = watch();

    desktop->moveWindow(window, {40.0, 60.0, 450.0, 350.0});
    EXPECT_TRUE(hears(axNames::moved));
    EXPECT_TRUE(hears(axNames::resized));

    EXPECT_TRUE(desktop->waitUntil([&] { return frameOf(element) == AxRect{40.0, 60.0, 450.0, 350.0}; }));
}

TEST_F(AxObserverContract, AWriteThatMovesTheWindowIsToldLater)
{
    const auto observer = watch();

    ASSERT_TRUE(accessibility.setAttribute(element, axNames::position, AxPoint{40.0, 60.0}).has_value());
    EXPECT_TRUE(heard.empty());

    EXPECT_TRUE(hears(axNames::moved));
}

TEST_F(AxObserverContract, AWriteThatChangesNothingIsNotTold)
{
    const auto observer = watch();

    ASSERT_TRUE(accessibility.setAttribute(element, axNames::position, somewhere.origin()).has_value());
    ASSERT_TRUE(accessibility.setAttribute(element, axNames::size, somewhere.size()).has_value());
    desktop->settle();

    EXPECT_EQ(heard, Names{});
}

TEST_F(AxObserverContract, AClosedWindowIsToldOnce)
{
    const auto observer = watch();

    desktop->closeWindow(window);

    EXPECT_TRUE(hears(axNames::elementDestroyed));
    desktop->settle();
    EXPECT_EQ(std::ranges::count(heard, axNames::elementDestroyed), 1);
}

TEST_F(AxObserverContract, TheEndOfTheApplicationIsToldAsTheEndOfItsWindow)
{
    const auto observer = watch();

    desktop->endApplication(window.process);

    EXPECT_TRUE(hears(axNames::elementDestroyed));
}

TEST_F(AxObserverContract, OtherWindowsAreNotTold)
{
    const auto other = desktop->openWindow("Editor", "Letter", {200.0, 200.0, 450.0, 350.0});
    const auto observer = watch();

    desktop->moveWindow(other, {0.0, 0.0, 300.0, 300.0});
    desktop->closeWindow(other);
    desktop->settle();

    EXPECT_EQ(heard, Names{});
}

TEST_F(AxObserverContract, OnlyAddedNotificationsAreTold)
{
    const auto observer = createObserver();
    ASSERT_TRUE(observer->addNotification(element, axNames::resized).has_value());
    observer->startDelivery();

    desktop->moveWindow(window, {40.0, 60.0, 450.0, 350.0});

    EXPECT_TRUE(hears(axNames::resized));
    desktop->settle();
    EXPECT_FALSE(hasHeard(axNames::moved));
}

TEST_F(AxObserverContract, NothingIsToldBeforeDeliveryStarts)
{
    const auto observer = createObserver();
    ASSERT_TRUE(observer->addNotification(element, axNames::moved).has_value());

    desktop->moveWindow(window, {40.0, 60.0, 500.0, 400.0});
    desktop->settle();

    EXPECT_EQ(heard, Names{});
}

TEST_F(AxObserverContract, ARemovedNotificationIsNoLongerTold)
{
    const auto observer = watch();
    ASSERT_TRUE(observer->removeNotification(element, axNames::moved).has_value());

    desktop->moveWindow(window, {40.0, 60.0, 450.0, 350.0});

    EXPECT_TRUE(hears(axNames::resized));
    desktop->settle();
    EXPECT_FALSE(hasHeard(axNames::moved));
}

TEST_F(AxObserverContract, ADestroyedObserverHearsNothing)
{
    auto observer = watch();
    observer.reset();

    desktop->moveWindow(window, {40.0, 60.0, 450.0, 350.0});
    desktop->closeWindow(window);
    desktop->settle();

    EXPECT_EQ(heard, Names{});
}

TEST_F(AxObserverContract, WhatIsUnderWayIsDroppedWithItsObserver)
{
    auto observer = watch();
    desktop->moveWindow(window, {40.0, 60.0, 450.0, 350.0});
    observer.reset();
    desktop->settle();

    EXPECT_EQ(heard, Names{});
}

TEST_F(AxObserverContract, AnUnknownNotificationIsUnsupported)
{
    const auto observer = createObserver();

    EXPECT_EQ(observer->addNotification(element, "AXNonsense"), std::unexpected(axErrors::notificationUnsupported));
}

TEST_F(AxObserverContract, AClosedWindowCannotBeWatched)
{
    const auto observer = createObserver();
    desktop->closeWindow(window);
    ASSERT_TRUE(desktop->waitUntil([&] { return !read(element, axNames::position).has_value(); }));

    EXPECT_EQ(observer->addNotification(element, axNames::moved), std::unexpected(axErrors::invalidElement));
}

} // namespace
} // namespace quorvel::contract
