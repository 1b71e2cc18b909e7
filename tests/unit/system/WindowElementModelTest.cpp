#include "system/WindowElementModel.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

namespace quorvel {
namespace {

constexpr AxRect notesFrame{100, 50, 800, 600};
constexpr AxRect wanted{10, 20, 300, 200};

class WindowElementModelTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;
    using Model = std::shared_ptr<WindowElementModel>;

    Model frontmost() { return WindowElementModel::frontmostWindow(platform); }
    Model find(const AxRect& bounds) { return WindowElementModel::findWindow(platform, editor.process(), bounds); }

    Lines calls(std::string_view prefix) const { return desktop.journal.entries({prefix}); }

    bool hasElementOf(const Model& model, const SimulatedWindow& window) const
    {
        return model->axWindowElement() && model->axWindowElement()->isEqual(*desktop.element(window));
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    Settings settings{desktop.userDefaults};
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedWindow& notes = desktop.openWindow(editor, "Notes", notesFrame);
};

// The frontmost window.

TEST_F(WindowElementModelTest, TheFrontmostWindowIsReadAndObserved)
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

TEST_F(WindowElementModelTest, WithNobodyInFrontEverythingIsAbsentInSilence)
{
    desktop.leaveNobodyInFront();
    const auto model = frontmost();
    EXPECT_EQ(model->axWindowElement(), nullptr);
    EXPECT_EQ(model->windowPosition(), std::nullopt);
    EXPECT_EQ(model->windowSize(), std::nullopt);
    EXPECT_EQ(model->windowRect(), std::nullopt);
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

TEST_F(WindowElementModelTest, AnApplicationWithoutFocusedWindowIsLogged)
{
    desktop.closeWindow(notes);
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), Lines{"Window is nil or not a valid AXUIElement"});
}

TEST_F(WindowElementModelTest, AFocusedWindowOfAnotherTypeIsLogged)
{
    for (const AxValue& value : {AxValue(std::string("Notes")), AxValue(), AxValue(AxElementRef())}) {
        desktop.log.clear();
        editor.answer(axNames::focusedWindow, value);
        EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
        EXPECT_EQ(desktop.log.lines(), Lines{"Window is nil or not a valid AXUIElement"});
    }
}

TEST_F(WindowElementModelTest, AnElementThatIsNoWindowIsLogged)
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

TEST_F(WindowElementModelTest, WithoutReadablePositionTheElementStaysWithoutGeometryAndObserver)
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

TEST_F(WindowElementModelTest, WithoutReadableSizeThePositionIsNotTakenEither)
{
    notes.failReading(axNames::size, axErrors::noValue);
    const auto model = frontmost();
    EXPECT_EQ(model->windowPosition(), std::nullopt);
    EXPECT_EQ(calls("Accessibility.createObserver"), Lines{});
    EXPECT_EQ(desktop.log.lines(), Lines{"Hubo un problema al obtener el valor del atributo especificado: AXSize "
                                         "(código de error -25212)"});
}

TEST_F(WindowElementModelTest, AValueOfTheWrongTypeLeavesItsHalfAbsent)
{
    notes.answer(axNames::position, Size{1, 2});
    const auto model = frontmost();
    EXPECT_EQ(model->windowPosition(), std::nullopt);
    EXPECT_EQ(model->windowSize(), notesFrame.size());
    EXPECT_EQ(model->windowRect(), std::nullopt);
    EXPECT_EQ(calls("Accessibility.createObserver"), Lines{"Accessibility.createObserver(500)"});
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

TEST_F(WindowElementModelTest, WithoutThePermissionThereIsNoWindow)
{
    desktop.permissions.deny(Permission::accessibility);
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), Lines{"Window is nil or not a valid AXUIElement"});
}

TEST_F(WindowElementModelTest, AnApplicationThatHangsHasNoWindow)
{
    editor.hang();
    EXPECT_EQ(frontmost()->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.log.lines(), Lines{"Window is nil or not a valid AXUIElement"});
}

TEST_F(WindowElementModelTest, AFailedObserverIsLoggedAndTheGeometryStays)
{
    desktop.accessibility.failObserverCreation(axErrors::illegalArgument);
    const auto model = frontmost();
    EXPECT_EQ(model->windowRect(), notesFrame);
    EXPECT_EQ(desktop.log.lines(), Lines{"Failed to create AXObserver with error: -25201"});
}

TEST_F(WindowElementModelTest, AWindowThatClosesBeforeItCanBeObservedIsLogged)
{
    desktop.journal.duringNext("Accessibility.processId", [this] { desktop.closeWindow(notes); });
    const auto model = frontmost();
    EXPECT_EQ(model->windowRect(), notesFrame);
    EXPECT_EQ(desktop.log.lines(), Lines{"Failed to create AXObserver with error: -25202"});
}

TEST_F(WindowElementModelTest, AttributesOfNoElementAreNothingInSilence)
{
    EXPECT_EQ(copyAttribute(platform, nullptr, axNames::role), std::nullopt);
    EXPECT_EQ(desktop.log.lines(), Lines{});
    EXPECT_EQ(copyAttribute(platform, desktop.element(notes), axNames::role), AxValue(std::string("AXWindow")));
}

// A window by its place.

TEST_F(WindowElementModelTest, AWindowLessThanTwoPointsOffIsFoundAndRaised)
{
    const auto model = find({101.9, 48.1, 801.9, 598.1});
    ASSERT_TRUE(model);
    EXPECT_TRUE(hasElementOf(model, notes));
    EXPECT_EQ(model->windowRect(), notesFrame);
    EXPECT_EQ(calls("Accessibility.performAction"), Lines{"Accessibility.performAction(window 1, AXRaise)"});
    EXPECT_EQ(calls("AxObserver.startDelivery"), Lines{"AxObserver.startDelivery(500)"});
}

TEST_F(WindowElementModelTest, AWindowTwoPointsOffInAnyValueIsNotFound)
{
    for (const AxRect& bounds :
         {AxRect{102, 50, 800, 600}, AxRect{100, 48, 800, 600}, AxRect{100, 50, 802, 600}, AxRect{100, 50, 800, 598}}) {
        EXPECT_EQ(find(bounds), nullptr);
    }
    EXPECT_EQ(calls("Accessibility.performAction"), Lines{});
}

TEST_F(WindowElementModelTest, OfEqualWindowsTheEarlierIsRaisedAndTheLaterNotEvenRead)
{
    auto& copy = desktop.openWindow(editor, "Copy", notesFrame);
    const auto model = find(notesFrame);
    ASSERT_TRUE(model);
    EXPECT_TRUE(hasElementOf(model, copy));
    EXPECT_EQ(calls("Accessibility.copyAttribute(window 1"), Lines{});
}

TEST_F(WindowElementModelTest, WindowsOfAnotherRoleAreSkipped)
{
    auto& popup = desktop.openWindow(editor, "Popup", notesFrame);
    popup.role = "AXUnknown";
    const auto model = find(notesFrame);
    ASSERT_TRUE(model);
    EXPECT_TRUE(hasElementOf(model, notes));
}

TEST_F(WindowElementModelTest, WindowsThatCannotBeReadAreSkippedInSilence)
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

TEST_F(WindowElementModelTest, WindowsWithGeometryOfTheWrongTypeAreSkipped)
{
    notes.answer(axNames::size, AxPoint{800, 600});
    EXPECT_EQ(find(notesFrame), nullptr);
}

TEST_F(WindowElementModelTest, AWindowThatRefusesToRiseIsFoundAllTheSame)
{
    notes.failAction(axNames::raise, axErrors::cannotComplete);
    EXPECT_TRUE(find(notesFrame));
    EXPECT_EQ(desktop.log.lines(), Lines{});
}

TEST_F(WindowElementModelTest, AnApplicationWithoutReadableWindowsHasNone)
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

// Moving.

TEST_F(WindowElementModelTest, AnAssignedRectangleIsKnownAtOnceAndTheWindowFollowsLater)
{
    const auto model = frontmost();
    model->setWindowRect(wanted);
    EXPECT_EQ(model->windowRect(), wanted);
    EXPECT_EQ(notes.frame(), notesFrame);
    EXPECT_EQ(desktop.log.lines(), Lines{"rect origin: (10.0, 20.0), rect size: (300.0, 200.0)"});

    desktop.drain();
    EXPECT_EQ(notes.frame(), wanted);
    EXPECT_EQ(desktop.log.lines(),
              (Lines{"rect origin: (10.0, 20.0), rect size: (300.0, 200.0)", "window position: (10.0, 20.0)"}));
}

TEST_F(WindowElementModelTest, ThePositionGoesFirstEachTime)
{
    const auto model = frontmost();
    model->setWindowRect(wanted);
    model->setWindowRect(wanted);
    desktop.drain();
    EXPECT_EQ(calls("Accessibility.setAttribute"),
              (Lines{"Accessibility.setAttribute(window 1, AXPosition, (10.0, 20.0))",
                     "Accessibility.setAttribute(window 1, AXSize, (300.0, 200.0))",
                     "Accessibility.setAttribute(window 1, AXPosition, (10.0, 20.0))",
                     "Accessibility.setAttribute(window 1, AXSize, (300.0, 200.0))"}));
}

TEST_F(WindowElementModelTest, TheWindowFollowsAlsoWhenTheModelIsLetGo)
{
    frontmost()->setWindowRect(wanted);
    desktop.drain();
    EXPECT_EQ(notes.frame(), wanted);
}

TEST_F(WindowElementModelTest, ARefusedSizeLeavesThePositionApplied)
{
    const auto model = frontmost();
    model->showOverlayFrame();
    notes.failWriting(axNames::size, axErrors::failure);
    desktop.journal.clear();
    desktop.log.clear();
    model->setWindowRect(wanted);
    desktop.turn();
    EXPECT_EQ(notes.frame(), (AxRect{10, 20, 800, 600}));
    EXPECT_EQ(model->windowPosition(), wanted.origin());
    EXPECT_EQ(desktop.log.lines(), (Lines{"rect origin: (10.0, 20.0), rect size: (300.0, 200.0)",
                                          "window position: (10.0, 20.0)", "Failed to set window size: -25200"}));
    EXPECT_EQ(calls("OverlayWindow.setFrame").size(), 1U);
}

TEST_F(WindowElementModelTest, ARefusedPositionLeavesTheSizeToBeTried)
{
    const auto model = frontmost();
    notes.failWriting(axNames::position, axErrors::cannotComplete);
    model->setWindowRect(wanted);
    desktop.turn();
    EXPECT_EQ(notes.frame(), (AxRect{100, 50, 300, 200}));
    EXPECT_EQ(desktop.log.lines(),
              (Lines{"rect origin: (10.0, 20.0), rect size: (300.0, 200.0)", "Failed to set window position: -25204"}));
}

TEST_F(WindowElementModelTest, ARefusalLeavesTheKnownValue)
{
    const auto model = frontmost();
    notes.failWriting(axNames::position, axErrors::failure);
    notes.failWriting(axNames::size, axErrors::failure);
    model->setWindowPosition({1, 2});
    model->setWindowSize({3, 4});
    EXPECT_EQ(model->windowRect(), notesFrame);
}

TEST_F(WindowElementModelTest, SettingThePositionIsLoggedAndSettingTheSizeIsNot)
{
    const auto model = frontmost();
    model->setWindowPosition({1.5, 2});
    model->setWindowSize({300, 400});
    EXPECT_EQ(model->windowRect(), (AxRect{1.5, 2, 300, 400}));
    EXPECT_EQ(notes.frame(), (AxRect{1.5, 2, 300, 400}));
    EXPECT_EQ(desktop.log.lines(), Lines{"window position: (1.5, 2.0)"});
}

TEST_F(WindowElementModelTest, WithoutElementOnlyTheKnownValuesChange)
{
    desktop.leaveNobodyInFront();
    const auto model = frontmost();
    model->setWindowRect(wanted);
    desktop.drain();
    EXPECT_EQ(model->windowRect(), wanted);
    EXPECT_EQ(calls("Accessibility.setAttribute"), Lines{});
    EXPECT_EQ(desktop.log.lines(), Lines{"rect origin: (10.0, 20.0), rect size: (300.0, 200.0)"});
}

TEST_F(WindowElementModelTest, AWindowThatClosesBetweenPositionAndSizeIsLogged)
{
    const auto model = frontmost();
    desktop.journal.duringNext("Accessibility.setAttribute(window 1, AXSize", [this] { desktop.closeWindow(notes); });
    model->setWindowRect(wanted);
    desktop.turn();
    EXPECT_EQ(desktop.log.lines().back(), "Failed to set window size: -25202");
    desktop.drain();
    EXPECT_EQ(model->axWindowElement(), nullptr);
    EXPECT_EQ(model->windowRect(), wanted);
}

// Watching.

TEST_F(WindowElementModelTest, TheGeometryFollowsTheWindow)
{
    const auto model = frontmost();
    desktop.moveWindow(notes, wanted);
    desktop.drain();
    EXPECT_EQ(model->windowRect(), wanted);
}

TEST_F(WindowElementModelTest, AMoveThatCannotBeReadLeavesTheKnownGeometry)
{
    const auto model = frontmost();
    notes.failReading(axNames::size, axErrors::cannotComplete);
    desktop.moveWindow(notes, {10, 20, 800, 600});
    desktop.drain();
    EXPECT_EQ(model->windowRect(), notesFrame);
}

TEST_F(WindowElementModelTest, AfterAMoveAValueOfTheWrongTypeLeavesTheKnownOne)
{
    const auto model = frontmost();
    notes.answer(axNames::size, true);
    desktop.moveWindow(notes, wanted);
    desktop.drain();
    EXPECT_EQ(model->windowRect(), (AxRect{10, 20, 800, 600}));
}

TEST_F(WindowElementModelTest, OtherNotificationsAreIgnored)
{
    const auto model = frontmost();
    desktop.drain();
    desktop.journal.clear();
    desktop.accessibility.notifyUnasked(editor.process(), "AXWindowMoved");
    desktop.drain();
    EXPECT_EQ(calls("Accessibility"), Lines{});
    EXPECT_TRUE(hasElementOf(model, notes));
}

TEST_F(WindowElementModelTest, AClosedWindowIsLetGoTwoTurnsAfterTheNews)
{
    const auto model = frontmost();
    model->showOverlayFrame();
    desktop.closeWindow(notes);
    desktop.turn(); // the news
    desktop.turn();
    EXPECT_NE(model->axWindowElement(), nullptr);
    desktop.turn();
    EXPECT_EQ(model->axWindowElement(), nullptr);
    EXPECT_FALSE(desktop.overlayWindows.all().at(0)->isVisible);
    EXPECT_EQ(calls("AxObserver.removeNotification").size(), 3U);
    EXPECT_EQ(model->windowRect(), notesFrame);
}

TEST_F(WindowElementModelTest, AWindowThatIsGoneIsNotWrittenAnyMore)
{
    const auto model = frontmost();
    desktop.closeWindow(notes);
    desktop.drain();
    desktop.journal.clear();
    model->setWindowPosition({1, 2});
    model->setWindowSize({3, 4});
    EXPECT_EQ(calls("Accessibility"), Lines{});
    EXPECT_EQ(model->windowRect(), notesFrame);
}

TEST_F(WindowElementModelTest, NewsAfterTheTearDownAreIgnored)
{
    const auto model = frontmost();
    desktop.moveWindow(notes, wanted);
    desktop.turn();
    model->tearDown();
    desktop.drain();
    EXPECT_EQ(model->windowRect(), notesFrame);
}

TEST_F(WindowElementModelTest, TheObserverIsToldOffWithTheModel)
{
    auto model = frontmost();
    desktop.journal.clear();
    model.reset();
    EXPECT_EQ(calls("AxObserver"), (Lines{"AxObserver.removeNotification(window 1, AXMoved)",
                                          "AxObserver.removeNotification(window 1, AXResized)",
                                          "AxObserver.removeNotification(window 1, AXUIElementDestroyed)"}));
}

TEST_F(WindowElementModelTest, NewsUnderWayAreForgottenWithTheModel)
{
    auto model = frontmost();
    desktop.moveWindow(notes, wanted);
    desktop.turn();
    desktop.journal.clear();
    model.reset();
    desktop.drain();
    EXPECT_EQ(calls("Accessibility"), Lines{});
}

TEST_F(WindowElementModelTest, ATornDownModelHasNothingLeftToTellOff)
{
    auto model = frontmost();
    model->tearDown();
    desktop.journal.clear();
    model.reset();
    EXPECT_EQ(calls("AxObserver"), Lines{});
}

// The selection frame.

class SelectionFrameTest : public WindowElementModelTest {
protected:
    const OverlayWindowRecord& frameWindow() const { return *desktop.overlayWindows.all().at(0); }

    RoundedRectCommand drawn() const { return std::get<RoundedRectCommand>(frameWindow().content.commands.at(0)); }

    Model model = frontmost();
};

TEST_F(SelectionFrameTest, IsShownAroundTheWindowWithoutTakingTheFocus)
{
    EXPECT_TRUE(desktop.overlayWindows.all().empty());
    model->showOverlayFrame();
    EXPECT_EQ(frameWindow().frame, (ScreenRect{100, 250, 800, 600}));
    EXPECT_TRUE(frameWindow().isVisible);
    EXPECT_EQ(calls("Workspace.activate"), Lines{});
    EXPECT_EQ(drawn().rect, (ViewRect{1.5, 1.5, 797, 597}));
}

TEST_F(SelectionFrameTest, IsMadeOnceAndShownAgain)
{
    model->showOverlayFrame();
    model->hideOverlayFrame();
    EXPECT_FALSE(frameWindow().isVisible);
    model->showOverlayFrame();
    EXPECT_TRUE(frameWindow().isVisible);
    EXPECT_EQ(desktop.overlayWindows.all().size(), 1U);
}

TEST_F(SelectionFrameTest, IsNotMadeWithoutGeometry)
{
    desktop.closeWindow(notes);
    const auto windowless = frontmost();
    windowless->showOverlayFrame();
    windowless->updateOverlayFrame();
    windowless->hideOverlayFrame();
    EXPECT_TRUE(desktop.overlayWindows.all().empty());
}

TEST_F(SelectionFrameTest, FollowsTheWindow)
{
    model->showOverlayFrame();
    desktop.moveWindow(notes, wanted);
    desktop.drain();
    EXPECT_EQ(frameWindow().frame, (ScreenRect{10, 680, 300, 200}));
    EXPECT_EQ(drawn().rect, (ViewRect{1.5, 1.5, 297, 197}));
}

TEST_F(SelectionFrameTest, StaysHiddenWhileTheWindowMoves)
{
    model->showOverlayFrame();
    model->hideOverlayFrame();
    model->setWindowRect(wanted);
    desktop.drain();
    EXPECT_FALSE(frameWindow().isVisible);
    EXPECT_EQ(frameWindow().frame, (ScreenRect{10, 680, 300, 200}));
}

TEST_F(SelectionFrameTest, UpdatingDoesNotMakeOne)
{
    model->updateOverlayFrame();
    EXPECT_TRUE(desktop.overlayWindows.all().empty());
}

TEST_F(SelectionFrameTest, HasADefaultAppearance)
{
    model->showOverlayFrame();
    EXPECT_EQ(drawn().stroke, (Stroke{Color::bytes(10, 132, 255, 204), 3.0}));
    EXPECT_EQ(drawn().cornerRadius, 10.0);
    EXPECT_EQ(drawn().shadow, (Shadow{Color::bytes(10, 132, 255).withAlpha(0.6), 12.0}));
}

TEST_F(SelectionFrameTest, IsBlueWhereItsColorCannotBeRead)
{
    settings.setString(settingsKeys::mrSelectionColorHex, "#12");
    model->showOverlayFrame();
    EXPECT_EQ(drawn().stroke->color, desktop.systemColors.blue().withAlpha(0.9));
}

TEST_F(SelectionFrameTest, FallsBackFromValuesThatMakeNoSense)
{
    settings.setReal(settingsKeys::mrSelectionBorderWidth, -1.0);
    settings.setInteger(settingsKeys::mrCornerRadius, 0);
    settings.setString(settingsKeys::mrSelectionGlow, "x");
    model->showOverlayFrame();
    EXPECT_EQ(drawn().stroke->width, 3.0);
    EXPECT_EQ(drawn().cornerRadius, 10.0);
    EXPECT_EQ(drawn().shadow->blurRadius, 12.0);
}

TEST_F(SelectionFrameTest, ReadsItsAppearanceEveryTime)
{
    model->showOverlayFrame();
    settings.setString(settingsKeys::mrSelectionColorHex, "#FF0000");
    settings.setReal(settingsKeys::mrSelectionBorderWidth, 5.0);
    settings.setInteger(settingsKeys::mrCornerRadius, 1);
    settings.setBoolean(settingsKeys::mrSelectionGlow, false);
    model->updateOverlayFrame();
    EXPECT_EQ(drawn().stroke, (Stroke{Color::bytes(255, 0, 0), 5.0}));
    EXPECT_EQ(drawn().cornerRadius, 1.0);
    EXPECT_EQ(drawn().shadow, (Shadow{Color::clear(), 0.0}));
}

TEST_F(SelectionFrameTest, GoesWithTheModel)
{
    model->showOverlayFrame();
    model.reset();
    EXPECT_TRUE(frameWindow().isClosed);
}

TEST_F(SelectionFrameTest, IsHiddenByTheTearDown)
{
    model->showOverlayFrame();
    model->tearDown();
    EXPECT_FALSE(frameWindow().isVisible);
    EXPECT_EQ(model->axWindowElement(), nullptr);
}

} // namespace
} // namespace quorvel
