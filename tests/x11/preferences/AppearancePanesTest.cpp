#include <QAbstractButton>
#include <QSlider>
#include <string>
#include <vector>

#include "x11/preferences/PreferencesTest.h"

namespace quorvel::x11 {
namespace {

using testing::HasSubstr;

// What the tests need to know of one of the three panes.
struct Pane {
    std::string title;
    std::string slider; // goes up to 10
    std::string key;    // of the slider
    double lowest = 0.0;
    std::string themesKey;
    std::string listTitle;
    bool canRename = true; // and deletes without asking
};

class AppearancePanes : public PreferencesTest, public testing::WithParamInterface<Pane> {
protected:
    const Pane& pane() const { return GetParam(); }

    // The saved themes as their text in the settings file.
    std::string themes() const
    {
        std::string text;
        if (const auto value = stored(pane().themesKey)) {
            for (const auto byte : std::get<PropertyData>(value->value)) {
                text.push_back(static_cast<char>(byte));
            }
        }
        return text;
    }

    void waitForThemes(const std::string& what, const std::function<bool(const std::string&)>& predicate)
    {
        session.waitFor(what, [&] { return predicate(themes()); });
    }

    void moveSliderTo(xcb_keysym_t key, double value)
    {
        person.focus(pane().slider);
        person.tap(key);
        waitUntilStored(pane().key, {value});
    }

    void type(const std::vector<xcb_keysym_t>& keys)
    {
        for (const auto key : keys) {
            person.tap(key);
        }
    }

    void saveTheme(const std::vector<xcb_keysym_t>& name)
    {
        person.click("Save Current Theme");
        person.waitForWindow("Save as theme");
        type(name);
        person.tap(XKB_KEY_Return);
        person.waitForWindow("Preferences");
    }

    void deleteTheme(const std::string& name)
    {
        person.click("Delete “" + name + "”");
        if (!pane().canRename) {
            person.waitForWindow("Delete Theme");
            person.click("Delete");
            person.waitForWindow(pane().listTitle);
        }
        waitForThemes("the theme to go", [&](const auto& text) { return text.find(name) == text.npos; });
        session.waitFor("the row to go", [&] { return ShellPerson::control("Delete “" + name + "”") == nullptr; });
    }

    void waitForKeyboard(const std::string& name)
    {
        session.waitFor("the keyboard at \"" + name + '"', [&] {
            const auto* const control = ShellPerson::control(name);
            return control != nullptr && control->hasFocus();
        });
    }

    void openThemes()
    {
        person.click("Manage Themes…");
        person.waitForWindow(pane().listTitle);
    }

    const std::vector<xcb_keysym_t> night{XKB_KEY_n, XKB_KEY_i, XKB_KEY_g, XKB_KEY_h, XKB_KEY_t};
    const std::vector<xcb_keysym_t> dusk{XKB_KEY_d, XKB_KEY_u, XKB_KEY_s, XKB_KEY_k};
};

TEST_P(AppearancePanes, AThemeIsSavedAndApplied)
{
    inPane(pane().title, [&] {
        moveSliderTo(XKB_KEY_End, 10.0);
        saveTheme(night);
        waitForThemes("the theme", [](const auto& text) { return text.find("\"name\":\"night\"") != text.npos; });
        moveSliderTo(XKB_KEY_Home, pane().lowest);
        const auto before = themes();
        openThemes();
        person.click("Apply “night”");
        waitUntilStored(pane().key, {10.0});
        EXPECT_EQ(themes(), before);
        person.tap(XKB_KEY_Escape);
        person.waitForWindow("Preferences");
    });
}

TEST_P(AppearancePanes, ACancelledThemeIsNotSavedAndANamelessOneIsUntitled)
{
    inPane(pane().title, [&] {
        person.click("Save Current Theme");
        person.waitForWindow("Save as theme");
        type(night);
        person.tap(XKB_KEY_Escape);
        person.waitForWindow("Preferences");
        EXPECT_EQ(themes(), "");
        saveTheme({});
        waitForThemes("the theme", [](const auto& text) { return text.find("\"name\":\"Untitled\"") != text.npos; });
    });
}

TEST_P(AppearancePanes, AButtonThatIsPressedAgainBeforeItsWindowHasGoneCountsOnce)
{
    inPane(pane().title, [&] {
        person.click("Save Current Theme");
        person.waitForWindow("Save as theme");
        session.ask([] {
            auto* const save = qobject_cast<QAbstractButton*>(ShellPerson::control("Save"));
            save->click();
            save->click();
            return true;
        });
        person.waitForWindow("Preferences");
        const auto text = themes();
        EXPECT_NE(text.find("\"name\""), text.npos);
        EXPECT_EQ(text.find("\"name\""), text.rfind("\"name\""));
    });
}

TEST_P(AppearancePanes, AThemeIsDeletedAndTheKeyboardGoesToTheNextOne)
{
    inPane(pane().title, [&] {
        saveTheme(night);
        saveTheme(dusk);
        openThemes();
        if (!pane().canRename) {
            person.click("Delete “night”");
            person.waitForWindow("Delete Theme");
            person.tap(XKB_KEY_Escape);
            person.waitForWindow(pane().listTitle);
            EXPECT_THAT(themes(), HasSubstr("night"));
        }
        deleteTheme("night");
        EXPECT_THAT(themes(), HasSubstr("dusk"));
        waitForKeyboard("Delete “dusk”");
        deleteTheme("dusk");
        waitForKeyboard("Close");
    });
}

TEST_P(AppearancePanes, AThemeIsRenamedWhereThatIsOffered)
{
    inPane(pane().title, [&] {
        saveTheme(night);
        openThemes();
        EXPECT_EQ(person.shows("Rename “night”"), pane().canRename);
        if (!pane().canRename) {
            return;
        }
        person.click("Rename “night”");
        person.waitForWindow("Rename Theme");
        type(dusk); // over the old name, which is selected
        person.tap(XKB_KEY_Return);
        person.waitForWindow(pane().listTitle);
        waitForThemes("the new name", [](const auto& text) { return text.find("\"name\":\"dusk\"") != text.npos; });
        session.waitFor("the row's new name", [] { return ShellPerson::control("Rename “dusk”") != nullptr; });
    });
}

TEST_P(AppearancePanes, AnOpenPaneShowsWhatAnotherProgramStores)
{
    inPane(pane().title, [&] {
        changeFromOutside(pane().key, {7.5});
        session.waitFor("the slider to follow", [&] {
            const auto* const slider = qobject_cast<QSlider*>(ShellPerson::control(pane().slider));
            return slider != nullptr && slider->value() == static_cast<int>((7.5 - pane().lowest) / 0.5);
        });
        moveSliderTo(XKB_KEY_Right, 8.0);
    });
}

INSTANTIATE_TEST_SUITE_P(Each, AppearancePanes,
                         testing::Values(Pane{.title = "Layout Appearance",
                                              .slider = "Overlay, Border width",
                                              .key = "overlayBorderWidth",
                                              .lowest = 0.0,
                                              .themesKey = "savedThemes",
                                              .listTitle = "Themes",
                                              .canRename = false},
                                         Pane{.title = "Window Switcher Appearance",
                                              .slider = "Window Border, Border width",
                                              .key = "wsBorderWidth",
                                              .lowest = 0.0,
                                              .themesKey = "savedSwitcherThemes",
                                              .listTitle = "Window Switcher Themes",
                                              .canRename = true},
                                         Pane{.title = "Move/Resize Appearance",
                                              .slider = "Selection Frame, Border width",
                                              .key = "mrSelectionBorderWidth",
                                              .lowest = 1.0,
                                              .themesKey = "savedMoveResizeThemes",
                                              .listTitle = "Move/Resize Themes",
                                              .canRename = true}),
                         [](const auto& each) { return each.param.themesKey; });

} // namespace
} // namespace quorvel::x11
