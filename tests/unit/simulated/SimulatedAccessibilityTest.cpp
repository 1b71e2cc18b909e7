#include "platform/simulated/SimulatedAccessibility.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

constexpr AxRect somewhere{100.0, 50.0, 800.0, 600.0};

class SimulatedAccessibilityTest : public testing::Test {
protected:
    auto read(std::string_view attribute) { return accessibility.copyAttribute(element, attribute); }
    auto write(std::string_view attribute, const AxValue& value)
    {
        return accessibility.setAttribute(element, attribute, value);
    }

    SimulatedDesktop desktop;
    SimulatedAccessibility& accessibility = desktop.accessibility;
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedWindow& window = desktop.openWindow(editor, "Notes", somewhere);
    AxElementRef element = desktop.element(window);
};

TEST_F(SimulatedAccessibilityTest, ARefusedPositionFailsWithItsErrorAndTheWindowStays)
{
    window.failWriting(axNames::position, axErrors::failure);

    EXPECT_EQ(write(axNames::position, AxPoint{0.0, 0.0}), std::unexpected(axErrors::failure));
    EXPECT_TRUE(write(axNames::size, Size{300.0, 200.0}).has_value());

    EXPECT_EQ(window.frame(), (AxRect{100.0, 50.0, 300.0, 200.0}));
}

TEST_F(SimulatedAccessibilityTest, AnAttributeFailsOrAnswersWithAnotherTypeUntilTheElementBehaves)
{
    window.failReading(axNames::role, axErrors::noValue);
    window.answer(axNames::position, Size{1.0, 2.0});
    EXPECT_EQ(read(axNames::role), std::unexpected(axErrors::noValue));
    EXPECT_EQ(read(axNames::position), AxValue(Size{1.0, 2.0}));

    window.behave();

    EXPECT_EQ(read(axNames::role), AxValue(std::string("AXWindow")));
    EXPECT_EQ(read(axNames::position), AxValue(somewhere.origin()));
}

TEST_F(SimulatedAccessibilityTest, AnApplicationAnswersFalselyToo)
{
    editor.answer(axNames::focusedWindow, std::string("no window"));

    EXPECT_EQ(accessibility.copyAttribute(accessibility.applicationElement(editor.process()), axNames::focusedWindow),
              AxValue(std::string("no window")));
}

TEST_F(SimulatedAccessibilityTest, AFailedActionHasNoEffect)
{
    auto& other = desktop.openWindow(editor, "Letter", somewhere);
    window.failAction(axNames::raise, axErrors::failure);

    EXPECT_EQ(accessibility.performAction(element, axNames::raise), std::unexpected(axErrors::failure));

    EXPECT_EQ(desktop.windowServer.frontWindow(editor), &other);
}

TEST_F(SimulatedAccessibilityTest, AWindowKeepsToItsSizeLimitsAndReportsSuccess)
{
    window.limitSize({400.0, 300.0}, {1000.0, 700.0});

    EXPECT_TRUE(write(axNames::size, Size{100.0, 2000.0}).has_value());

    EXPECT_EQ(window.frame().size(), (Size{400.0, 700.0}));
}

TEST_F(SimulatedAccessibilityTest, AHangingApplicationCannotCompleteAnythingUntilItWakesUp)
{
    editor.hang();
    EXPECT_EQ(read(axNames::size), std::unexpected(axErrors::cannotComplete));
    EXPECT_EQ(write(axNames::size, Size{300.0, 200.0}), std::unexpected(axErrors::cannotComplete));
    EXPECT_EQ(accessibility.performAction(element, axNames::raise), std::unexpected(axErrors::cannotComplete));

    editor.wakeUp();

    EXPECT_EQ(read(axNames::size), AxValue(somewhere.size()));
}

TEST_F(SimulatedAccessibilityTest, AWindowThatClosesDuringACallIsAnInvalidElement)
{
    desktop.journal.duringNext("Accessibility.setAttribute(window 1, AXSize", [&] { desktop.closeWindow(window); });

    EXPECT_TRUE(write(axNames::position, AxPoint{0.0, 0.0}).has_value());
    EXPECT_EQ(write(axNames::size, Size{300.0, 200.0}), std::unexpected(axErrors::invalidElement));

    EXPECT_FALSE(window.isOpen());
    EXPECT_EQ(window.frame(), (AxRect{0.0, 0.0, 800.0, 600.0}));
}

TEST_F(SimulatedAccessibilityTest, ObserversCannotBeCreatedWhileThatFails)
{
    accessibility.failObserverCreation(axErrors::illegalArgument);
    const auto failed = accessibility.createObserver(editor.process(), [](std::string_view) {});
    ASSERT_FALSE(failed.has_value());
    EXPECT_EQ(failed.error(), axErrors::illegalArgument);

    accessibility.behave();

    EXPECT_TRUE(accessibility.createObserver(editor.process(), [](std::string_view) {}).has_value());
}

TEST_F(SimulatedAccessibilityTest, AnObserverCanHearWhatItDidNotAskFor)
{
    std::vector<std::string> heard;
    const auto observer =
        accessibility.createObserver(editor.process(), [&](std::string_view name) { heard.emplace_back(name); });
    (*observer)->startDelivery();

    accessibility.notifyUnasked(editor.process(), "AXWindowMoved");
    accessibility.notifyUnasked(editor.process() + 1, axNames::moved);
    EXPECT_TRUE(heard.empty());
    desktop.drain();

    EXPECT_EQ(heard, (std::vector<std::string>{"AXWindowMoved"}));
}

TEST_F(SimulatedAccessibilityTest, ARemovedNotificationIsDroppedAlsoUnderWay)
{
    int heard = 0;
    const auto observer = accessibility.createObserver(editor.process(), [&](std::string_view) { ++heard; }).value();
    EXPECT_TRUE(observer->addNotification(element, axNames::moved).has_value());
    observer->startDelivery();

    desktop.moveWindow(window, {0.0, 0.0, 800.0, 600.0});
    EXPECT_TRUE(observer->removeNotification(element, axNames::moved).has_value());
    desktop.drain();

    EXPECT_EQ(heard, 0);
    EXPECT_FALSE(observer->removeNotification(element, axNames::moved).has_value());
}

TEST_F(SimulatedAccessibilityTest, AnObserverMayDestroyItselfInItsCallback)
{
    std::unique_ptr<AxObserver> observer;
    int heard = 0;
    observer = accessibility
                   .createObserver(editor.process(),
                                   [&](std::string_view) {
                                       ++heard;
                                       observer.reset();
                                   })
                   .value();
    EXPECT_TRUE(observer->addNotification(element, axNames::moved).has_value());
    EXPECT_TRUE(observer->addNotification(element, axNames::resized).has_value());
    observer->startDelivery();

    desktop.moveWindow(window, {0.0, 0.0, 300.0, 200.0});
    desktop.drain();

    EXPECT_EQ(heard, 1);
}

} // namespace
} // namespace quorvel
