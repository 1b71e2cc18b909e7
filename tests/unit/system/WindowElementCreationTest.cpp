#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "system/WindowElementModel.h"
#include "tests/unit/system/WindowElementFixture.h"

namespace quorvel {
namespace {

class WindowElementCreationTest : public WindowElementFixture {};

TEST_F(WindowElementCreationTest, TheFrontmostWindowIsReadAndObserved)
{
    const auto model = frontmost();
    EXPECT_TRUE(hasElementOf(model, notes));
    EXPECT_EQ(model->windowPosition(), notesFrame.origin());
    EXPECT_EQ(model->windowSize(), notesFrame.size());
    EXPECT_EQ(model->windowRect(), notesFrame);
    EXPECT_EQ(calls("AxObserver"),
              (Lines{"AxObserver.addNotification(window 1, AXMoved)", "AxObserver.addNotification(window 1, AXResized)",
                     "AxObserver.addNotification(window 1, AXUIElementDestroyed)", "AxObserver.startDelivery(500)"}));
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

TEST_F(WindowElementCreationTest, WithNobodyInFrontEverythingIsAbsentInSilence)
{
    desktop.leaveNobodyInFront();
    const auto model = frontmost();
    EXPECT_EQ(model->axWindowElement(), nullptr);
    EXPECT_EQ(model->windowPosition(), std::nullopt);
    EXPECT_EQ(model->windowSize(), std::nullopt);
    EXPECT_EQ(model->windowRect(), std::nullopt);
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

TEST_F(WindowElementCreationTest, AnApplicationWithoutFocusedWindowIsLogged)
{
    desktop.closeWindow(notes);
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), Lines{"Window is nil or not a valid AXUIElement"});
}

TEST_F(WindowElementCreationTest, AFocusedWindowOfAnotherTypeIsLogged)
{
    for (const AxValue& value : {AxValue(std::string("Notes")), AxValue(), AxValue(AxElementRef())}) {
        desktop.log.clear();
        editor.answer(axNames::focusedWindow, value);
        EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
        EXPECT_EQ(desktop.log.lines(), Lines{"Window is nil or not a valid AXUIElement"});
    }
}

TEST_F(WindowElementCreationTest, AnElementThatIsNoWindowIsLogged)
{
    const Lines expected{"Element is not an app window (AXWindow role)"};
    notes.role = "AXSheet";
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), expected);

    desktop.log.clear();
    notes.failReading(axNames::role, axErrors::cannotComplete);
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), expected);

    desktop.log.clear();
    notes.behave();
    notes.answer(axNames::role, true);
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), expected);
}

TEST_F(WindowElementCreationTest, WithoutReadablePositionTheElementStaysWithoutGeometryAndObserver)
{
    notes.failReading(axNames::position, axErrors::apiDisabled);
    const auto model = frontmost();
    EXPECT_TRUE(hasElementOf(model, notes));
    EXPECT_EQ(model->windowPosition(), std::nullopt);
    EXPECT_EQ(model->windowSize(), std::nullopt);
    EXPECT_EQ(calls("Accessibility.createObserver"), Lines{});
    EXPECT_EQ(desktop.log.lines(), Lines{"Hubo un problema al obtener el valor del atributo especificado: AXPosition "
                                         "(código de error -25211)"});
}

TEST_F(WindowElementCreationTest, WithoutReadableSizeThePositionIsNotTakenEither)
{
    notes.failReading(axNames::size, axErrors::noValue);
    const auto model = frontmost();
    EXPECT_EQ(model->windowPosition(), std::nullopt);
    EXPECT_EQ(calls("Accessibility.createObserver"), Lines{});
    EXPECT_EQ(desktop.log.lines(), Lines{"Hubo un problema al obtener el valor del atributo especificado: AXSize "
                                         "(código de error -25212)"});
}

TEST_F(WindowElementCreationTest, AValueOfTheWrongTypeLeavesItsHalfAbsent)
{
    notes.answer(axNames::position, Size{1, 2});
    const auto model = frontmost();
    EXPECT_EQ(model->windowPosition(), std::nullopt);
    EXPECT_EQ(model->windowSize(), notesFrame.size());
    EXPECT_EQ(model->windowRect(), std::nullopt);
    EXPECT_EQ(calls("Accessibility.createObserver"), Lines{"Accessibility.createObserver(500)"});
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

TEST_F(WindowElementCreationTest, WithoutThePermissionThereIsNoWindow)
{
    desktop.permissions.deny(Permission::accessibility);
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), Lines{"Window is nil or not a valid AXUIElement"});
}

TEST_F(WindowElementCreationTest, AnApplicationThatHangsHasNoWindow)
{
    editor.hang();
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), Lines{"Window is nil or not a valid AXUIElement"});
}

TEST_F(WindowElementCreationTest, AFailedObserverIsLoggedAndTheGeometryStays)
{
    desktop.accessibility.failObserverCreation(axErrors::illegalArgument);
    const auto model = frontmost();
    EXPECT_EQ(model->windowRect(), notesFrame);
    EXPECT_EQ(desktop.log.lines(), Lines{"Failed to create AXObserver with error: -25201"});
}

TEST_F(WindowElementCreationTest, AWindowThatClosesBeforeItCanBeObservedIsLogged)
{
    desktop.journal.duringNext("Accessibility.processId", [this] { desktop.closeWindow(notes); });
    const auto model = frontmost();
    EXPECT_EQ(model->windowRect(), notesFrame);
    EXPECT_EQ(desktop.log.lines(), Lines{"Failed to create AXObserver with error: -25202"});
}

TEST_F(WindowElementCreationTest, AttributesOfNoElementAreNothingInSilence)
{
    EXPECT_EQ(copyAttribute(platform, nullptr, axNames::role), std::nullopt);
    EXPECT_EQ(desktop.log.lines(), Lines{});
    EXPECT_EQ(copyAttribute(platform, desktop.element(notes), axNames::role), AxValue(std::string("AXWindow")));
}

TEST_F(WindowElementCreationTest, AWindowLessThanTwoPointsOffIsFoundAndRaised)
{
    const auto model = find({101.9, 48.1, 801.9, 598.1});
    ASSERT_TRUE(model);
    EXPECT_TRUE(hasElementOf(model, notes));
    EXPECT_EQ(model->windowRect(), notesFrame);
    EXPECT_EQ(calls("Accessibility.performAction"), Lines{"Accessibility.performAction(window 1, AXRaise)"});
    EXPECT_EQ(calls("AxObserver.startDelivery"), Lines{"AxObserver.startDelivery(500)"});
}

TEST_F(WindowElementCreationTest, AWindowTwoPointsOffInAnyValueIsNotFound)
{
    for (const AxRect& bounds :
         {AxRect{102, 50, 800, 600}, AxRect{100, 48, 800, 600}, AxRect{100, 50, 802, 600}, AxRect{100, 50, 800, 598}}) {
        EXPECT_EQ(find(bounds), nullptr);
    }
    EXPECT_EQ(calls("Accessibility.performAction"), Lines{});
}

TEST_F(WindowElementCreationTest, OfEqualWindowsTheEarlierIsRaisedAndTheLaterNotEvenRead)
{
    auto& copy = desktop.openWindow(editor, "Copy", notesFrame);
    const auto model = find(notesFrame);
    ASSERT_TRUE(model);
    EXPECT_TRUE(hasElementOf(model, copy));
    EXPECT_EQ(calls("Accessibility.copyAttribute(window 1"), Lines{});
}

TEST_F(WindowElementCreationTest, WindowsOfAnotherRoleAreSkipped)
{
    auto& popup = desktop.openWindow(editor, "Popup", notesFrame);
    popup.role = "AXUnknown";
    const auto model = find(notesFrame);
    ASSERT_TRUE(model);
    EXPECT_TRUE(hasElementOf(model, notes));
}

TEST_F(WindowElementCreationTest, WindowsThatCannotBeReadAreSkippedInSilence)
{
    for (const auto attribute : {axNames::role, axNames::position, axNames::size}) {
        auto& broken = desktop.openWindow(editor, "Broken", notesFrame);
        broken.failReading(attribute, axErrors::cannotComplete);
        const auto model = find(notesFrame);
        ASSERT_TRUE(model);
        EXPECT_TRUE(hasElementOf(model, notes));
        desktop.closeWindow(broken);
    }
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

TEST_F(WindowElementCreationTest, WindowsWithGeometryOfTheWrongTypeAreSkipped)
{
    notes.answer(axNames::size, AxPoint{800, 600});
    EXPECT_EQ(find(notesFrame), nullptr);
}

TEST_F(WindowElementCreationTest, AWindowThatRefusesToRiseIsFoundAllTheSame)
{
    notes.failAction(axNames::raise, axErrors::cannotComplete);
    EXPECT_TRUE(find(notesFrame));
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

TEST_F(WindowElementCreationTest, AnApplicationWithoutReadableWindowsHasNone)
{
    for (const AxValue& value :
         {AxValue(std::string("windows")), AxValue(std::vector<AxElementRef>{}), AxValue(desktop.element(notes))}) {
        editor.answer(axNames::windows, value);
        EXPECT_EQ(find(notesFrame), nullptr);
    }
    editor.failReading(axNames::windows, axErrors::cannotComplete);
    EXPECT_EQ(find(notesFrame), nullptr);
    desktop.terminate(editor);
    EXPECT_EQ(find(notesFrame), nullptr);
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

} // namespace
} // namespace quorvel
