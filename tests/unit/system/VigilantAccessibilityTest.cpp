#include "system/VigilantAccessibility.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

class VigilantAccessibilityTest : public testing::Test {
protected:
    SimulatedDesktop desktop;
    SimulatedWindow& window = desktop.openWindow(desktop.launch("Editor"), "Notes", {100.0, 120.0, 500.0, 400.0});
    const AxElementRef element = desktop.element(window);
    VigilantAccessibility accessibility{{desktop.accessibility, desktop.permissions, desktop.mainQueue,
                                         desktop.workspace, desktop.alerts, desktop.log}};
};

TEST_F(VigilantAccessibilityTest, WhatWorksIsPassedThrough)
{
    EXPECT_EQ(accessibility.copyAttribute(element, axNames::title), AxValue(std::string("Notes")));
    EXPECT_TRUE(accessibility.setAttribute(element, axNames::position, AxPoint{1.0, 2.0}));
    EXPECT_TRUE(accessibility.performAction(element, axNames::raise));
    EXPECT_EQ(accessibility.processId(element), window.process());
    EXPECT_TRUE(accessibility.createObserver(window.process(), [](std::string_view) {}));
    EXPECT_TRUE(accessibility.applicationElement(window.process())
                    ->isEqual(*desktop.accessibility.applicationElement(window.process())));
    desktop.drain();

    EXPECT_EQ(window.frame().origin(), (AxPoint{1.0, 2.0}));
    EXPECT_TRUE(desktop.alerts.shown().empty());
}

TEST_F(VigilantAccessibilityTest, ARefusalInSpiteOfThePermissionIsReportedOnceWithTheRepair)
{
    desktop.accessibility.refuseCalls();
    desktop.alerts.choose("Later");

    EXPECT_EQ(accessibility.copyAttribute(element, axNames::title), std::unexpected(axErrors::apiDisabled));
    EXPECT_TRUE(desktop.alerts.shown().empty());
    EXPECT_FALSE(accessibility.performAction(element, axNames::raise));
    desktop.drain();
    EXPECT_FALSE(accessibility.setAttribute(element, axNames::size, Size{1.0, 1.0}));
    desktop.drain();

    ASSERT_THAT(desktop.alerts.shown(), SizeIs(1));
    EXPECT_THAT(desktop.alerts.shown()[0].informativeText, HasSubstr("remove it with the minus button"));
    EXPECT_THAT(desktop.log.lines(), testing::Contains(HasSubstr("add it again")).Times(1));
    EXPECT_EQ(desktop.journal.count("Permissions.openSettings"), 0U);
}

TEST_F(VigilantAccessibilityTest, EveryKindOfCallIsLookedAt)
{
    const auto reports = [&](const std::function<void(VigilantAccessibility&)>& call) {
        VigilantAccessibility fresh{{desktop.accessibility, desktop.permissions, desktop.mainQueue, desktop.workspace,
                                     desktop.alerts, desktop.log}};
        const auto before = desktop.alerts.shown().size();
        call(fresh);
        desktop.drain();
        return desktop.alerts.shown().size() - before;
    };
    desktop.accessibility.refuseCalls();

    EXPECT_EQ(reports([&](auto& each) { static_cast<void>(each.copyAttribute(element, axNames::title)); }), 1U);
    EXPECT_EQ(reports([&](auto& each) { static_cast<void>(each.setAttribute(element, axNames::minimized, true)); }),
              1U);
    EXPECT_EQ(reports([&](auto& each) { static_cast<void>(each.performAction(element, axNames::raise)); }), 1U);
    EXPECT_EQ(reports([&](auto& each) { static_cast<void>(each.processId(element)); }), 1U);
    EXPECT_EQ(reports([&](auto& each) { static_cast<void>(each.createObserver(500, [](std::string_view) {})); }), 1U);
}

TEST_F(VigilantAccessibilityTest, TheFirstButtonOpensThePlaceOfTheRepair)
{
    desktop.accessibility.refuseCalls();
    desktop.alerts.chooseDefault();

    EXPECT_FALSE(accessibility.copyAttribute(element, axNames::title));
    desktop.drain();

    EXPECT_EQ(desktop.journal.count("Permissions.openSettings(accessibility)"), 1U);
}

TEST_F(VigilantAccessibilityTest, AMissingPermissionAndOtherErrorsAreNoContradiction)
{
    EXPECT_FALSE(accessibility.copyAttribute(element, "AXNonsense"));
    desktop.permissions.deny(Permission::accessibility);
    EXPECT_EQ(accessibility.copyAttribute(element, axNames::title), std::unexpected(axErrors::apiDisabled));
    desktop.drain();

    EXPECT_TRUE(desktop.alerts.shown().empty());
}

} // namespace
} // namespace quorvel
