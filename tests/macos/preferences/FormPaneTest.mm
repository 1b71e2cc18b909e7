#include <gmock/gmock.h>

#include "macos/preferences/FormPaneFixture.h"
#include "platform/macos/Colors.h"
#include "platform/macos/Strings.h"
#include "platform/macos/overlays/DrawListView.h"

namespace quorvel::macos {
namespace {

using testing::Contains;
using testing::Not;

TEST_F(FormPaneTest, ASwitchSendsItsState)
{
    open(formOf({rowOf("toggle", ToggleControl{true})}));
    auto* const toggle = control<NSSwitch>("toggle");
    EXPECT_EQ([toggle state], NSControlStateValueOn);
    [toggle setState:NSControlStateValueOff];
    person::use(toggle);
    EXPECT_EQ(model.values["toggle"], ControlValue(false));
}

TEST_F(FormPaneTest, ASliderShowsItsValueAndSendsEachMovement)
{
    open(formOf({rowOf("slider", SliderControl{3.0, 0.0, 10.0, 0.5, "3.0"})}));
    auto* const slider = control<NSSlider>("slider");
    EXPECT_EQ([slider minValue], 0.0);
    EXPECT_EQ([slider maxValue], 10.0);
    EXPECT_EQ([slider doubleValue], 3.0);
    EXPECT_TRUE([slider isContinuous]);
    EXPECT_THAT(person::texts(shell()), Contains("3.0"));
    [slider setDoubleValue:4.2];
    person::use(slider);
    EXPECT_EQ(model.values["slider"], ControlValue(4.2));
    change(formOf({rowOf("slider", SliderControl{4.0, 0.0, 10.0, 0.5, "4.0"})}));
    EXPECT_EQ([slider doubleValue], 4.0) << "the model moves it to a step";
    EXPECT_THAT(person::texts(shell()), Contains("4.0"));
}

TEST_F(FormPaneTest, AStepperSendsWholeNumbers)
{
    open(formOf({rowOf("stepper", StepperControl{7, 0, 50, "7"})}));
    auto* const stepper = control<NSStepper>("stepper");
    EXPECT_EQ([stepper maxValue], 50.0);
    [stepper setDoubleValue:8.0];
    person::use(stepper);
    EXPECT_EQ(model.values["stepper"], ControlValue(std::int64_t{8}));
}

TEST_F(FormPaneTest, APopUpButtonSendsTheIndexOfItsChoice)
{
    open(formOf({rowOf("picker", PickerControl{{"One", "Two", "Two"}, 1U})}));
    auto* const popUp = control<NSPopUpButton>("picker");
    EXPECT_EQ([popUp numberOfItems], 3);
    EXPECT_EQ([popUp indexOfSelectedItem], 1);
    [popUp selectItemAtIndex:2];
    person::use(popUp);
    EXPECT_EQ(model.values["picker"], ControlValue(std::int64_t{2}));
}

TEST_F(FormPaneTest, APopUpButtonMayHaveNoneChosen)
{
    open(formOf({rowOf("picker", PickerControl{{"One", "Two"}, std::nullopt})}));
    auto* const popUp = control<NSPopUpButton>("picker");
    EXPECT_EQ([popUp indexOfSelectedItem], -1);
    person::use(popUp);
    EXPECT_TRUE(model.values.empty());
}

TEST_F(FormPaneTest, AColorWellSendsColorsWithAlpha)
{
    open(formOf({rowOf("color", colorControl(Color::bytes(255, 0, 0, 51)))}));
    auto* const well = control<NSColorWell>("color");
    EXPECT_EQ(color([well color]), Color::bytes(255, 0, 0, 51));
    const Color chosen{0.25, 0.5, 0.75, 0.5};
    [well setColor:nsColor(chosen)];
    person::use(well);
    EXPECT_EQ(model.values["color"], ControlValue(chosen));
    change(formOf({rowOf("color", colorControl(Color::bytes(64, 128, 191, 128)))}));
    EXPECT_EQ(color([well color]), chosen) << "rounded to bytes it is the same";
    change(formOf({rowOf("color", colorControl(Color::white()))}));
    EXPECT_EQ(color([well color]), Color::white());
}

TEST_F(FormPaneTest, WhatTheDeviceHasNoColorForIsNotSent)
{
    open(formOf({rowOf("color", colorControl(Color::white()))}));
    auto* const well = control<NSColorWell>("color");
    [well setColor:nil];
    person::use(well);
    EXPECT_TRUE(model.values.empty());
}

TEST_F(FormPaneTest, ButtonsPressWhatTheyAreKnownBy)
{
    auto form = formOf({rowOf("row", ButtonControl{buttonNamed("check", "Check")})});
    form.buttons = {buttonNamed("save", "Save Current Theme"), buttonNamed("reset", "Reset to Defaults")};
    form.buttons[1].isEnabled = false;
    open(form);
    EXPECT_EQ([[control<NSButton>("Check") title] isEqualToString:@"Check"], YES);
    person::use(control<NSButton>("Check"));
    person::use(control<NSButton>("Save Current Theme"));
    EXPECT_EQ(model.pressed, (std::vector<std::string>{"check", "save"}));
    EXPECT_FALSE([control<NSButton>("Reset to Defaults") isEnabled]);
}

TEST_F(FormPaneTest, AShortcutShowsItsTextAndThatItIsRecorded)
{
    const ShortcutControl idle{"⌘⇧O", "Command+Shift+O", false, buttonNamed("record", "Record"),
                               buttonNamed("clear", "Clear")};
    open(formOf({rowOf("shortcut", idle)}));
    EXPECT_THAT(person::texts(shell()), Contains("⌘⇧O"));
    const double width = [control<NSButton>("Record") frame].size.width;
    person::use(control<NSButton>("Record"));
    person::use(control<NSButton>("Clear"));
    EXPECT_EQ(model.pressed, (std::vector<std::string>{"record", "clear"}));
    auto recording = idle;
    recording.isRecording = true;
    recording.record = buttonNamed("record", "Stop");
    change(formOf({rowOf("shortcut", recording)}));
    EXPECT_EQ([control<NSButton>("Stop") frame].size.width, width) << "nothing moves when a recording begins";
}

TEST_F(FormPaneTest, AStatusIsASymbolWithAButton)
{
    open(formOf({rowOf("status", StatusControl{"checkmark.circle.fill", "Granted", StatusTone::positive,
                                               buttonNamed("settings", "Open Settings")})}));
    EXPECT_EQ(utf8([[control<NSImageView>("Granted") image] name]), "checkmark.circle.fill");
    person::use(control<NSButton>("Open Settings"));
    EXPECT_EQ(model.pressed, (std::vector<std::string>{"settings"}));
}

TEST_F(FormPaneTest, APreviewIsAsLargeAsItsPicture)
{
    open(formOf({{"preview", {}, PreviewControl{{300.0, 120.0}, {}, "A sample"}, {}, "Preview", true}}));
    auto* const picture = control<QuorvelDrawListView>("Preview");
    EXPECT_EQ([picture frame].size.width, 300.0);
    EXPECT_EQ([picture frame].size.height, 120.0);
}

TEST_F(FormPaneTest, TextsOfARowComeAndGo)
{
    auto form = formOf({rowOf("toggle", ToggleControl{})});
    form.note = "These settings are independent from Layout Appearance.";
    open(form);
    EXPECT_THAT(person::texts(shell()), Contains(form.note));
    EXPECT_THAT(person::texts(shell()), Contains("Title of toggle"));
    form.groups[0].rows[0].help = "Once more.";
    change(form);
    EXPECT_THAT(person::texts(shell()), Contains("Once more."));
    form.groups[0].rows[0].help.clear();
    change(form);
    EXPECT_THAT(person::texts(shell()), Not(Contains("Once more.")));
}

TEST_F(FormPaneTest, ADisabledRowTakesNoInput)
{
    auto form = formOf({rowOf("toggle", ToggleControl{})});
    form.groups[0].rows[0].isEnabled = false;
    open(form);
    EXPECT_FALSE([control<NSSwitch>("toggle") isEnabled]);
}

TEST_F(FormPaneTest, RowsThatComeAndGoAreShown)
{
    open(formOf({rowOf("first", ToggleControl{})}));
    change(formOf({rowOf("first", ToggleControl{}), rowOf("second", StepperControl{1, 0, 5, "1"})}));
    EXPECT_NE(control<NSStepper>("second"), nil);
    change(formOf({rowOf("second", StepperControl{1, 0, 5, "1"})}));
    EXPECT_EQ(control<NSSwitch>("first"), nil);
}

TEST_F(FormPaneTest, TheKeyboardStaysWithTheSameControlOfARebuiltPane)
{
    const ShortcutControl shortcut{"⌘⇧O", {}, false, buttonNamed("record", "Record"), buttonNamed("clear", "Clear")};
    auto form = formOf({rowOf("shortcut", shortcut)});
    form.buttons = {buttonNamed("save", "Save"), buttonNamed("reset", "Reset")};
    open(form);
    const auto keyboardAfterRebuilding = [&](std::string_view button) {
        [shell() makeFirstResponder:control<NSButton>(button)];
        form.groups[0].rows.insert(form.groups[0].rows.begin(), rowOf("new", ToggleControl{}));
        form.groups[0].rows[0].id += std::to_string(form.groups[0].rows.size());
        change(form);
        return [shell() firstResponder];
    };
    EXPECT_EQ(keyboardAfterRebuilding("Clear"), control<NSButton>("Clear"));
    EXPECT_EQ(keyboardAfterRebuilding("Record"), control<NSButton>("Record"));
    EXPECT_EQ(keyboardAfterRebuilding("Reset"), control<NSButton>("Reset"));
}

TEST_F(FormPaneTest, AControlMayReplaceItselfWhileItIsUsed)
{
    class Replacing final : public FormModel {
    public:
        Form form() const override
        {
            return isReplaced ? formOf({rowOf("other", ToggleControl{})}) : formOf({rowOf("toggle", ToggleControl{})});
        }
        Subscription observe(std::function<void()> newChanged) override
        {
            changed = std::move(newChanged);
            return {};
        }
        void set(std::string_view, const ControlValue&) override
        {
            isReplaced = true;
            changed();
        }
        void press(std::string_view) override {}

    private:
        bool isReplaced = false;
        std::function<void()> changed;
    } replacing;
    OnePaneWindow replacingWindow(replacing);
    window = ui.createWindow(replacingWindow);
    window->show();
    person::use(control<NSSwitch>("toggle"));
    desktop.drain();
    EXPECT_EQ(control<NSSwitch>("toggle"), nil);
    EXPECT_NE(control<NSSwitch>("other"), nil);
    window.reset(); // before its model
}

TEST_F(FormPaneTest, NothingOverlapsAndNothingStandsOutside)
{
    std::vector<FormRow> rows;
    for (int index = 0; index < 20; ++index) {
        rows.push_back(rowOf("slider" + std::to_string(index), SliderControl{1.0, 0.0, 2.0, 1.0, "1"}));
    }
    auto form = formOf(std::move(rows));
    form.groups.push_back({"Preview", {{"preview", {}, PreviewControl{{300.0, 120.0}, {}, "A"}, {}, "Preview", true}}});
    form.buttons = {buttonNamed("save", "Save")};
    open(form);
    for (const NSSize size : {NSMakeSize(1050.0, 785.0), NSMakeSize(950.0, 705.0)}) {
        [shell() setContentSize:size];
        EXPECT_EQ([[shell() contentView] frame].size.width, size.width);
        const auto frameOf = [](NSView* view) { return [view convertRect:[view bounds] toView:nil]; };
        const NSRect save = frameOf(control<NSButton>("Save"));
        const NSRect preview = frameOf(control<QuorvelDrawListView>("Preview"));
        EXPECT_GE(NSMinY(save), 0.0);
        EXPECT_GE(NSMinY(preview), NSMaxY(save));
        EXPECT_LE(NSMaxY(preview), size.height);
        const NSRect first = frameOf(control<NSSlider>("slider0"));
        const NSRect second = frameOf(control<NSSlider>("slider1"));
        EXPECT_GE(NSMinY(first), NSMaxY(second));
        EXPECT_LE(NSMaxX(first), size.width);
    }
}

} // namespace
} // namespace quorvel::macos
