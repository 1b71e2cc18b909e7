#include <vector>

#include <gtest/gtest.h>

#include "system/WindowElementModel.h"
#include "tests/unit/system/WindowElementFixture.h"

namespace quorvel {
namespace {

class WindowElementLifeTest : public WindowElementFixture {};

TEST_F(WindowElementLifeTest, AnAssignedRectangleIsKnownAtOnceAndTheWindowFollowsLater)
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

TEST_F(WindowElementLifeTest, ThePositionGoesFirstEachTime)
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

TEST_F(WindowElementLifeTest, TheWindowFollowsAlsoWhenTheModelIsLetGo)
{
    frontmost()->setWindowRect(wanted);
    desktop.drain();
    EXPECT_EQ(notes.frame(), wanted);
}

TEST_F(WindowElementLifeTest, ARefusedSizeLeavesThePositionApplied)
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

TEST_F(WindowElementLifeTest, ARefusedPositionLeavesTheSizeToBeTried)
{
    const auto model = frontmost();
    notes.failWriting(axNames::position, axErrors::cannotComplete);
    model->setWindowRect(wanted);
    desktop.turn();
    EXPECT_EQ(notes.frame(), (AxRect{100, 50, 300, 200}));
    EXPECT_EQ(desktop.log.lines(),
              (Lines{"rect origin: (10.0, 20.0), rect size: (300.0, 200.0)", "Failed to set window position: -25204"}));
}

TEST_F(WindowElementLifeTest, ARefusalLeavesTheKnownValue)
{
    const auto model = frontmost();
    notes.failWriting(axNames::position, axErrors::failure);
    notes.failWriting(axNames::size, axErrors::failure);
    model->setWindowPosition({1, 2});
    model->setWindowSize({3, 4});
    EXPECT_EQ(model->windowRect(), notesFrame);
}

TEST_F(WindowElementLifeTest, SettingThePositionIsLoggedAndSettingTheSizeIsNot)
{
    const auto model = frontmost();
    model->setWindowPosition({1.5, 2});
    model->setWindowSize({300, 400});
    EXPECT_EQ(model->windowRect(), (AxRect{1.5, 2, 300, 400}));
    EXPECT_EQ(notes.frame(), (AxRect{1.5, 2, 300, 400}));
    EXPECT_EQ(desktop.log.lines(), Lines{"window position: (1.5, 2.0)"});
}

TEST_F(WindowElementLifeTest, WithoutElementOnlyTheKnownValuesChange)
{
    desktop.leaveNobodyInFront();
    const auto model = frontmost();
    model->setWindowRect(wanted);
    desktop.drain();
    EXPECT_EQ(model->windowRect(), wanted);
    EXPECT_EQ(calls("Accessibility.setAttribute"), Lines{});
    EXPECT_EQ(desktop.log.lines(), Lines{"rect origin: (10.0, 20.0), rect size: (300.0, 200.0)"});
}

TEST_F(WindowElementLifeTest, AWindowThatClosesBetweenPositionAndSizeIsLogged)
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

TEST_F(WindowElementLifeTest, TheGeometryFollowsTheWindow)
{
    const auto model = frontmost();
    desktop.moveWindow(notes, wanted);
    desktop.drain();
    EXPECT_EQ(model->windowRect(), wanted);
}

TEST_F(WindowElementLifeTest, AMoveThatCannotBeReadLeavesTheKnownGeometry)
{
    const auto model = frontmost();
    notes.failReading(axNames::size, axErrors::cannotComplete);
    desktop.moveWindow(notes, {10, 20, 800, 600});
    desktop.drain();
    EXPECT_EQ(model->windowRect(), notesFrame);
}

TEST_F(WindowElementLifeTest, AfterAMoveAValueOfTheWrongTypeLeavesTheKnownOne)
{
    const auto model = frontmost();
    notes.answer(axNames::size, true);
    desktop.moveWindow(notes, wanted);
    desktop.drain();
    EXPECT_EQ(model->windowRect(), (AxRect{10, 20, 800, 600}));
}

TEST_F(WindowElementLifeTest, OtherNotificationsAreIgnored)
{
    const auto model = frontmost();
    desktop.drain();
    desktop.journal.clear();
    desktop.accessibility.notifyUnasked(editor.process(), "AXWindowMoved");
    desktop.drain();
    EXPECT_EQ(calls("Accessibility"), Lines{});
    EXPECT_TRUE(hasElementOf(model, notes));
}

TEST_F(WindowElementLifeTest, AClosedWindowIsLetGoTwoTurnsAfterTheNews)
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

TEST_F(WindowElementLifeTest, AWindowThatIsGoneIsNotWrittenAnyMore)
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

TEST_F(WindowElementLifeTest, NewsAfterTheTearDownAreIgnored)
{
    const auto model = frontmost();
    desktop.moveWindow(notes, wanted);
    desktop.turn();
    model->tearDown();
    desktop.drain();
    EXPECT_EQ(model->windowRect(), notesFrame);
}

TEST_F(WindowElementLifeTest, TheObserverIsToldOffWithTheModel)
{
    auto model = frontmost();
    desktop.journal.clear();
    model.reset();
    EXPECT_EQ(calls("AxObserver"), (Lines{"AxObserver.removeNotification(window 1, AXMoved)",
                                          "AxObserver.removeNotification(window 1, AXResized)",
                                          "AxObserver.removeNotification(window 1, AXUIElementDestroyed)"}));
}

TEST_F(WindowElementLifeTest, NewsUnderWayAreForgottenWithTheModel)
{
    auto model = frontmost();
    desktop.moveWindow(notes, wanted);
    desktop.turn();
    desktop.journal.clear();
    model.reset();
    desktop.drain();
    EXPECT_EQ(calls("Accessibility"), Lines{});
}

TEST_F(WindowElementLifeTest, ATornDownModelHasNothingLeftToTellOff)
{
    auto model = frontmost();
    model->tearDown();
    desktop.journal.clear();
    model.reset();
    EXPECT_EQ(calls("AxObserver"), Lines{});
}

} // namespace
} // namespace quorvel
