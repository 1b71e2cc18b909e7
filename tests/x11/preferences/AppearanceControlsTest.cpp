#include <QAbstractButton>
#include <QLineEdit>
#include <QSpinBox>
#include <string>

#include "x11/preferences/PreferencesTest.h"

namespace quorvel::x11 {
namespace {

class AppearanceControls : public PreferencesTest {
protected:
    static constexpr auto grid = "Preview, Show grid";

    void waitForGrid(bool isShown)
    {
        session.waitFor("the grid", [&] {
            const auto* const toggle = qobject_cast<QAbstractButton*>(ShellPerson::control(grid));
            return toggle != nullptr && toggle->isChecked() == isShown;
        });
    }
};

TEST_F(AppearanceControls, EachStoresWhatItShowsAtOnce)
{
    inPane("Layout Appearance", [&] {
        person.click("Text, Bold");
        waitUntilStored("isTextBold", {false});
        person.focus("Text, Bold");
        person.tap(XKB_KEY_space);
        waitUntilStored("isTextBold", {true});
        person.click("Preview, Show grid");
        waitUntilStored("showPreviewGrid", {true});
        person.focus("Text, Size");
        person.tap(XKB_KEY_End);
        waitUntilStored("textSize", {64.0});
        person.focus("Text, Label position");
        person.tap(XKB_KEY_Home);
        waitUntilStored("labelPosition", {std::string("topLeft")});
    });
}

TEST_F(AppearanceControls, TheTogglesOfTheSwitcherStoreTheirStateButNotTheGridOfItsPreview)
{
    inPane("Window Switcher Appearance", [&] {
        person.click("Label, Bold");
        waitUntilStored("wsTextBold", {false});
        person.click("Window Info, Show app name and window title");
        waitUntilStored("showWindowInfo", {false});
        person.focus("Window Info, Show app name and window title");
        person.tap(XKB_KEY_space);
        waitUntilStored("showWindowInfo", {true});
        person.focus("Default Display Mode, When activating focus switcher");
        person.tap(XKB_KEY_Down);
        waitUntilStored("fsDefaultDisplayMode", {std::string("list")});

        const auto before = allStored();
        person.click(grid);
        waitForGrid(true);
        person.tap(XKB_KEY_w, {Modifier::control});
        session.waitFor("the window to close", [] { return QApplication::activeWindow() == nullptr; });
        person.openPreferences(*tray);
        waitForGrid(false);
        EXPECT_EQ(allStored(), before);
    });
}

TEST_F(AppearanceControls, TheTogglesOfMovingAndResizingStoreTheirState)
{
    inPane("Move/Resize Appearance", [&] {
        person.click("Selection Frame, Glow effect");
        waitUntilStored("mrSelectionGlow", {false});
        person.click("Snap Target Frame, Glow effect");
        waitUntilStored("mrSnapTargetGlow", {false});
        person.click("Behavior, Snap to neighbor windows");
        waitUntilStored("mrSnapEnabled", {false});
        person.click("Behavior, Snap to neighbor windows");
        waitUntilStored("mrSnapEnabled", {true});
    });
}

TEST_F(AppearanceControls, AStepperShowsANumberBeyondItsEndsAndCountsFromTheNearerOne)
{
    changeFromOutside("mrCornerRadius", whole(60));
    inPane("Move/Resize Appearance", [&] {
        const auto shownNumber = [] {
            const auto* const box = qobject_cast<QSpinBox*>(ShellPerson::control("Corner Radius, Radius (px)"));
            return box != nullptr ? box->text() : QString();
        };
        session.waitFor("the number", [&] { return shownNumber() == "60"; });
        person.focus("Corner Radius, Radius (px)");
        person.tap(XKB_KEY_Down);
        waitUntilStored("mrCornerRadius", whole(49));
        session.waitFor("the next number", [&] { return shownNumber() == "49"; });
    });
}

TEST_F(AppearanceControls, AStepperCountsByOneBetweenItsEnds)
{
    inPane("Move/Resize Appearance", [&] {
        changeFromOutside("mrCornerRadius", whole(49));
        session.waitFor("the number", [] {
            const auto* const box = qobject_cast<QSpinBox*>(ShellPerson::control("Corner Radius, Radius (px)"));
            return box != nullptr && box->value() == 49;
        });
        person.focus("Corner Radius, Radius (px)");
        person.tap(XKB_KEY_Up);
        person.tap(XKB_KEY_Up);
        waitUntilStored("mrCornerRadius", whole(50));
        person.tap(XKB_KEY_Down);
        waitUntilStored("mrCornerRadius", whole(49));
    });
}

} // namespace
} // namespace quorvel::x11
