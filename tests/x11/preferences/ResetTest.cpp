#include <string>
#include <variant>

#include "x11/preferences/PreferencesTest.h"

namespace quorvel::x11 {
namespace {

PropertyValue number(std::int64_t value)
{
    return {value};
}

PropertyValue word(const std::string& value)
{
    return {value};
}

// A pane that can be reset.
struct Pane {
    std::string name;
    std::string tab;
    std::string button;
    std::string question;
    PropertyDictionary kept;     // settings of the pane, or near it, that stay as they are
    PropertyDictionary defaults; // all that the reset stores
};

// Something else that a control of the pane can be set to.
PropertyValue otherThan(const std::string& key, const PropertyValue& value)
{
    if (const auto* const isOn = std::get_if<bool>(&value.value)) {
        return {!*isOn};
    }
    if (std::holds_alternative<double>(value.value)) {
        return {7.0};
    }
    if (std::holds_alternative<std::int64_t>(value.value)) {
        return number(key.ends_with("Modifiers") ? 256 : 40);
    }
    const auto& text = std::get<std::string>(value.value);
    return word(text.starts_with("#") ? "#01020304" : text == "frames" ? "list" : "bottomRight");
}

class Reset : public PreferencesTest, public testing::WithParamInterface<Pane> {
protected:
    const Pane& pane() const { return GetParam(); }

    void changeEverything() const
    {
        auto settings = pane().kept;
        for (const auto& [key, value] : pane().defaults) {
            settings[key] = otherThan(key, value);
            EXPECT_NE(settings[key], value) << key;
        }
        changeFromOutside(settings);
    }

    void ask()
    {
        person.click(pane().button);
        person.waitForWindow(pane().question);
    }
};

TEST_P(Reset, StoresTheDefaultsOfThePaneAndNothingElseAfterAQuestion)
{
    changeEverything();
    inPane(pane().tab, [&] {
        auto settings = allStored();
        ask();
        person.tap(XKB_KEY_Escape);
        person.waitForWindow("Preferences");
        ask();
        person.click("Cancel");
        person.waitForWindow("Preferences");
        EXPECT_EQ(allStored(), settings);

        ask();
        person.click(pane().button);
        person.waitForWindow("Preferences");
        for (const auto& [key, value] : pane().defaults) {
            settings[key] = value;
        }
        session.waitFor("the defaults in the settings file", [&] { return allStored() == settings; });
    });
}

const Pane shortcuts{.name = "Shortcuts",
                     .tab = "Shortcuts",
                     .button = "Reset All Shortcuts",
                     .question = "Reset all shortcuts to defaults?",
                     .kept = {{"mrResizeModifierFlags", number(524288)}, {"keyboardLayoutProfile", word("Dvorak")}},
                     .defaults = {{"activateOverlayKeyCode", number(1)}, // where Dvorak has its O
                                  {"activateOverlayModifiers", number(768)},  {"nextLayoutKeyCode", number(125)},
                                  {"nextLayoutModifiers", number(0)},         {"previousLayoutKeyCode", number(126)},
                                  {"previousLayoutModifiers", number(0)},     {"nextScreenKeyCode", number(124)},
                                  {"nextScreenModifiers", number(0)},         {"previousScreenKeyCode", number(123)},
                                  {"previousScreenModifiers", number(0)},     {"focusSwitcherKeyCode", number(3)},
                                  {"focusSwitcherModifiers", number(768)},    {"fsToggleMinimizedKeyCode", number(46)},
                                  {"fsToggleMinimizedModifiers", number(0)},  {"fsToggleAllWindowsKeyCode", number(48)},
                                  {"fsToggleAllWindowsModifiers", number(0)}, {"fsPopupPosition", word("center")},
                                  {"moveResizeKeyCode", number(31)}, // its R
                                  {"moveResizeModifiers", number(2304)},      {"mrMoveLeftKeyCode", number(123)},
                                  {"mrMoveLeftModifiers", number(0)},         {"mrMoveRightKeyCode", number(124)},
                                  {"mrMoveRightModifiers", number(0)},        {"mrMoveUpKeyCode", number(126)},
                                  {"mrMoveUpModifiers", number(0)},           {"mrMoveDownKeyCode", number(125)},
                                  {"mrMoveDownModifiers", number(0)},         {"mrCycleWindowsKeyCode", number(48)},
                                  {"mrCycleWindowsModifiers", number(0)},     {"mrExitModeKeyCode", number(53)},
                                  {"mrExitModeModifiers", number(0)},         {"mrMinimizeKeyCode", number(46)},
                                  {"mrMinimizeModifiers", number(0)}}};

const Pane layoutAppearance{.name = "LayoutAppearance",
                            .tab = "Layout Appearance",
                            .button = "Reset to Defaults",
                            .question = "Reset Layout appearance to defaults?",
                            .kept = {{"showPreviewGrid", {true}}, {"showWindowInfo", {false}}},
                            .defaults = {{"overlayBorderColor", word("#FFFF00")},
                                         {"overlayBackgroundColor", word("#88FFFF00")},
                                         {"overlayBorderWidth", {2.0}},
                                         {"overlayBorderRadius", {2.0}},
                                         {"textBorderColor", word("#FFFF00")},
                                         {"textBackgroundColor", word("#88FFFF00")},
                                         {"textBorderWidth", {2.0}},
                                         {"textColor", word("#FFFF00")},
                                         {"textSize", {28.0}},
                                         {"textBorderRadius", {6.0}},
                                         {"labelPosition", word("center")},
                                         {"isTextBold", {true}}}};

const Pane switcherAppearance{.name = "SwitcherAppearance",
                              .tab = "Window Switcher Appearance",
                              .button = "Reset to Defaults",
                              .question = "Reset Window Switcher appearance to defaults?",
                              .kept = {{"showPreviewGrid", {true}}, {"isTextBold", {false}}},
                              .defaults = {{"wsBorderColor", word("#00D4FF")},
                                           {"wsBackgroundColor", word("#8800D4FF")},
                                           {"wsBorderWidth", {3.0}},
                                           {"wsBorderRadius", {8.0}},
                                           {"wsTextBorderColor", word("#FFFFFF")},
                                           {"wsTextBackgroundColor", word("#DD000000")},
                                           {"wsTextBorderWidth", {2.0}},
                                           {"wsTextColor", word("#FFFFFF")},
                                           {"wsTextSize", {64.0}},
                                           {"wsTextBorderRadius", {8.0}},
                                           {"wsTextBold", {true}},
                                           {"wsLabelPosition", word("topLeft")},
                                           {"showWindowInfo", {true}},
                                           {"fsDefaultDisplayMode", word("frames")}}};

const Pane moveResizeAppearance{.name = "MoveResizeAppearance",
                                .tab = "Move/Resize Appearance",
                                .button = "Reset to Defaults",
                                .question = "Reset Move/Resize appearance to defaults?",
                                .kept = {{"mrResizeModifierFlags", number(524288)}},
                                .defaults = {{"mrSelectionColorHex", word("#0A84FFCC")},
                                             {"mrSelectionBorderWidth", {3.0}},
                                             {"mrSelectionGlow", {true}},
                                             {"mrSnapTargetColorHex", word("#30D158CC")},
                                             {"mrSnapTargetBorderWidth", {3.0}},
                                             {"mrSnapTargetGlow", {true}},
                                             {"mrCornerRadius", number(10)},
                                             {"mrSnapEnabled", {true}},
                                             {"mrSnapThreshold", {20.0}},
                                             {"mrSnapResistance", {3.0}},
                                             {"mrMoveStep", {20.0}}}};

INSTANTIATE_TEST_SUITE_P(Each, Reset,
                         testing::Values(shortcuts, layoutAppearance, switcherAppearance, moveResizeAppearance),
                         [](const auto& each) { return each.param.name; });

} // namespace
} // namespace quorvel::x11
