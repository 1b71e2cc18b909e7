#include "platform/macos/windows/MacAccessibility.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/desktop/MacMainQueue.h"

namespace quorvel::macos {
namespace {

using testing::ElementsAre;

class MacAccessibilityTest : public testing::Test {
protected:
    AxElementRef windowElement()
    {
        return std::get<AxElementRef>(
            accessibility.copyAttribute(accessibility.applicationElement(editor.process()), axNames::focusedWindow)
                .value());
    }

    std::expected<void, AxError> write(const AxElementRef& element, std::string_view name, const AxValue& value)
    {
        return accessibility.setAttribute(element, name, value);
    }

    std::vector<std::string> writes() const
    {
        return desktop.journal.entries({"Accessibility.setAttribute", "AXEnhancedUserInterface"});
    }

    SimulatedDesktop desktop;
    fakes::FakeDesktop mac{desktop};
    MacMainQueue mainQueue;
    MacAccessibility accessibility{mainQueue};
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedWindow& window = desktop.openWindow(editor, "Notes", {100.0, 120.0, 500.0, 400.0});
};

TEST_F(MacAccessibilityTest, ReadingWaitsAQuarterOfASecondForAnApplicationThatHangs)
{
    const auto element = windowElement();
    editor.hang();

    EXPECT_EQ(accessibility.copyAttribute(element, axNames::title), std::unexpected(axErrors::cannotComplete));
    EXPECT_DOUBLE_EQ(mac.secondsWaited, 0.25);
    EXPECT_EQ(accessibility.copyAttribute(accessibility.applicationElement(editor.process()), axNames::windows),
              std::unexpected(axErrors::cannotComplete));
    EXPECT_DOUBLE_EQ(mac.secondsWaited, 0.5);
}

TEST_F(MacAccessibilityTest, RaisingAndMinimizingWaitASecondForAnApplicationThatHangs)
{
    const auto element = windowElement();
    editor.hang();

    EXPECT_EQ(accessibility.performAction(element, axNames::raise), std::unexpected(axErrors::cannotComplete));
    EXPECT_DOUBLE_EQ(mac.secondsWaited, 1.0);
    EXPECT_EQ(write(element, axNames::minimized, true), std::unexpected(axErrors::cannotComplete));
    EXPECT_DOUBLE_EQ(mac.secondsWaited, 2.0);
}

TEST_F(MacAccessibilityTest, PositionAndSizeTogetherWaitASecondForAnApplicationThatHangs)
{
    const auto element = windowElement();
    editor.hang();

    EXPECT_EQ(write(element, axNames::position, AxPoint{1.0, 2.0}), std::unexpected(axErrors::cannotComplete));
    EXPECT_EQ(write(element, axNames::size, Size{300.0, 200.0}), std::unexpected(axErrors::cannotComplete));

    EXPECT_DOUBLE_EQ(mac.secondsWaited, 1.0);
}

TEST_F(MacAccessibilityTest, AnApplicationThatHungIsAskedAgainInTheNextTurn)
{
    const auto element = windowElement();
    editor.hang();
    ASSERT_FALSE(write(element, axNames::position, AxPoint{1.0, 2.0}));
    editor.wakeUp();
    desktop.drain();

    EXPECT_TRUE(write(element, axNames::position, AxPoint{1.0, 2.0}));
    EXPECT_EQ(window.frame().origin(), (AxPoint{1.0, 2.0}));
}

TEST_F(MacAccessibilityTest, AnEnhancedInterfaceIsSwitchedOffAroundAMoveAndRestored)
{
    const auto element = windowElement();
    mac.enhancedInterfaces[editor.process()] = true;
    desktop.journal.clear();

    EXPECT_TRUE(write(element, axNames::position, AxPoint{1.0, 2.0}));
    EXPECT_TRUE(write(element, axNames::size, Size{300.0, 200.0}));
    EXPECT_THAT(writes(), ElementsAre("AXEnhancedUserInterface = false",
                                      "Accessibility.setAttribute(window 1, AXPosition, (1.0, 2.0))",
                                      "Accessibility.setAttribute(window 1, AXSize, (300.0, 200.0))"));
    desktop.drain();

    EXPECT_EQ(writes().size(), 4U);
    EXPECT_TRUE(mac.enhancedInterfaces[editor.process()]);
}

TEST_F(MacAccessibilityTest, AnEnhancedInterfaceIsRestoredAlsoWhenTheProgramEndsAtOnce)
{
    mac.enhancedInterfaces[editor.process()] = true;
    {
        MacAccessibility another(mainQueue);
        EXPECT_TRUE(another.setAttribute(windowElement(), axNames::position, AxPoint{1.0, 2.0}));
        EXPECT_FALSE(mac.enhancedInterfaces[editor.process()]);
    }

    EXPECT_TRUE(mac.enhancedInterfaces[editor.process()]);
    desktop.drain();
    EXPECT_TRUE(mac.enhancedInterfaces[editor.process()]);
}

TEST_F(MacAccessibilityTest, AnInterfaceThatIsNotEnhancedStaysSo)
{
    mac.enhancedInterfaces[editor.process()] = false;
    desktop.journal.clear();

    EXPECT_TRUE(write(windowElement(), axNames::position, AxPoint{1.0, 2.0}));
    EXPECT_TRUE(write(windowElement(), axNames::minimized, true));
    desktop.drain();

    EXPECT_THAT(writes(), ElementsAre(testing::StartsWith("Accessibility"), testing::StartsWith("Accessibility")));
}

TEST_F(MacAccessibilityTest, ARaisedWindowIsTheFrontOneOfItsApplication)
{
    const auto element = windowElement();
    const auto& letter = desktop.openWindow(editor, "Letter", {200.0, 200.0, 450.0, 350.0});
    ASSERT_EQ(desktop.windowServer.frontWindow(editor), &letter);

    EXPECT_TRUE(accessibility.performAction(element, axNames::raise));

    EXPECT_EQ(desktop.windowServer.frontWindow(editor), &window);
}

TEST_F(MacAccessibilityTest, ARefusalInSpiteOfThePermissionIsTold)
{
    const auto element = windowElement();
    desktop.accessibility.refuseCalls();

    EXPECT_EQ(accessibility.copyAttribute(element, axNames::title), std::unexpected(axErrors::apiDisabled));
    EXPECT_EQ(write(element, axNames::position, AxPoint{1.0, 2.0}), std::unexpected(axErrors::apiDisabled));
}

TEST_F(MacAccessibilityTest, ElementsOutliveTheListThatNamedThem)
{
    std::vector<AxElementRef> elements;
    {
        const auto list =
            accessibility.copyAttribute(accessibility.applicationElement(editor.process()), axNames::windows);
        elements = std::get<std::vector<AxElementRef>>(list.value());
    }

    ASSERT_EQ(elements.size(), 1U);
    EXPECT_EQ(accessibility.copyAttribute(elements[0], axNames::title), AxValue(std::string("Notes")));
}

TEST_F(MacAccessibilityTest, AnObserverOfAnotherProcessIsRefusedWithoutThePermission)
{
    desktop.permissions.deny(Permission::accessibility);

    const auto observer = accessibility.createObserver(editor.process(), [](std::string_view) {});

    ASSERT_FALSE(observer);
    EXPECT_EQ(observer.error(), axErrors::apiDisabled);
}

TEST_F(MacAccessibilityTest, AnObserverMayGoInItsOwnCallback)
{
    int heard = 0;
    std::unique_ptr<AxObserver> observer;
    observer = accessibility
                   .createObserver(editor.process(),
                                   [&](std::string_view) {
                                       ++heard;
                                       observer.reset();
                                   })
                   .value();
    ASSERT_TRUE(observer->addNotification(windowElement(), axNames::moved));
    observer->startDelivery();

    desktop.moveWindow(window, {0.0, 0.0, 500.0, 400.0});
    desktop.moveWindow(window, {5.0, 5.0, 500.0, 400.0});
    desktop.drain();

    EXPECT_EQ(heard, 1);
}

} // namespace
} // namespace quorvel::macos
