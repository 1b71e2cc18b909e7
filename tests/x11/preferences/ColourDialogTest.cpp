#include <QLineEdit>
#include <QSpinBox>
#include <algorithm>
#include <string>
#include <string_view>

#include "x11/preferences/PreferencesTest.h"

namespace quorvel::x11 {
namespace {

class ColourDialog : public PreferencesTest {
protected:
    // Opens the dialog of the colour and types "#0A0B0C" into it.
    void chooseColor(const std::string& name, std::string_view key)
    {
        openColorDialog(name);
        session.ask([] {
            for (auto* const field : QApplication::activeWindow()->findChildren<QLineEdit*>()) {
                if (qobject_cast<QSpinBox*>(field->parent()) == nullptr) { // the one for the colour in HTML's notation
                    field->setFocus();
                    field->setSelection(1, field->maxLength());
                }
            }
            return true;
        });
        for (const auto typed : {XKB_KEY_0, XKB_KEY_a, XKB_KEY_0, XKB_KEY_b, XKB_KEY_0, XKB_KEY_c}) {
            person.tap(static_cast<xcb_keysym_t>(typed));
        }
        waitUntilStored(key, chosen);
    }

    void openColorDialog(const std::string& name)
    {
        person.click(name);
        person.waitForWindow(name);
    }

    void cancelColorDialog()
    {
        person.tap(XKB_KEY_Escape);
        person.waitForWindow("Preferences");
    }

    static QWidget* windowTitled(const QString& title)
    {
        const auto windows = QApplication::topLevelWidgets();
        const auto found =
            std::ranges::find_if(windows, [&](const QWidget* window) { return window->windowTitle() == title; });
        return found == windows.end() ? nullptr : *found;
    }

    const PropertyValue chosen{std::string("#0A0B0CFF")};
};

TEST_F(ColourDialog, ItsColourIsStored)
{
    inPane("Layout Appearance", [&] {
        chooseColor("Text, Text color", "textColor");
        person.tap(XKB_KEY_Return);
        person.waitForWindow("Preferences");
        EXPECT_EQ(stored("textColor"), chosen);
    });
}

TEST_F(ColourDialog, ALookIntoItStoresNothing)
{
    inPane("Layout Appearance", [&] {
        openColorDialog("Text, Text color");
        cancelColorDialog();
        EXPECT_EQ(stored("textColor"), std::nullopt);
    });
}

TEST_F(ColourDialog, AcceptingTheColourThatIsShownStoresItWithItsAlpha)
{
    changeFromOutside("textColor", {std::string("#FFFF00")});
    inPane("Layout Appearance", [&] {
        openColorDialog("Text, Text color");
        person.tap(XKB_KEY_Return);
        person.waitForWindow("Preferences");
        waitUntilStored("textColor", {std::string("#FFFF00FF")});
    });
}

TEST_F(ColourDialog, WhatWasStoredBeforeComesBackWhenItIsCancelled)
{
    const PropertyValue before{std::string("#FFFF00")};
    changeFromOutside("textColor", before);
    inPane("Layout Appearance", [&] {
        chooseColor("Text, Text color", "textColor");
        cancelColorDialog();
        waitUntilStored("textColor", before);
        chooseColor("Text, Border color", "textBorderColor");
        cancelColorDialog();
        session.waitFor("the colour to be absent again", [&] { return !stored("textBorderColor"); });
    });
}

TEST_F(ColourDialog, ItGoesWithThePreferencesAndLeavesItsColour)
{
    inPane("Layout Appearance", [&] {
        chooseColor("Text, Text color", "textColor");
        session.ask([] { return windowTitled("Preferences")->close(); });
        session.waitFor("the dialog to go", [] { return windowTitled("Text, Text color") == nullptr; });
        EXPECT_EQ(stored("textColor"), chosen);
    });
}

TEST_F(ColourDialog, TheProgramMayEndWithItOpen)
{
    inPane("Layout Appearance", [&] { chooseColor("Overlay, Border color", "overlayBorderColor"); });
    EXPECT_EQ(stored("overlayBorderColor"), chosen);
}

} // namespace
} // namespace quorvel::x11
