#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/Color.h"
#include "base/DrawList.h"
#include "base/Geometry.h"
#include "platform/ListSheet.h"
#include "platform/PaneAlert.h"
#include "platform/PaneButton.h"
#include "platform/PropertyValue.h"

namespace quorvel {

// A pane of the preferences as a value: what a shell shows, complete with all texts. A shell builds widgets from it and
// fills them anew whenever the form's model announces a change (FormModel.h); it neither formats nor checks anything.

// What a setting holds, nothing where it is absent: to be handed back as it came.
struct StoredValue {
    std::optional<PropertyValue> value;

    bool operator==(const StoredValue&) const = default;
};

// A swatch that opens a colour panel with alpha. Sends a Color, or the `stored` that it had when the panel opened, to
// take back what has been chosen since.
struct ColorControl {
    Color color;
    std::string text; // of the colour, for a tooltip and for screen readers
    StoredValue stored;

    bool operator==(const ColorControl&) const = default;
};

// A slider with its value beside it. Sends a double of its range on every movement; the model moves it to a step.
struct SliderControl {
    double value = 0.0; // within the range, though the setting may lie outside of it
    double minimum = 0.0;
    double maximum = 1.0;
    double step = 1.0;
    std::string valueText;

    bool operator==(const SliderControl&) const = default;
};

// A number with arrows that change it by one. Sends a std::int64_t.
struct StepperControl {
    std::int64_t value = 0;
    std::int64_t minimum = 0;
    std::int64_t maximum = 0;
    std::string valueText;

    bool operator==(const StepperControl&) const = default;
};

// Sends a bool.
struct ToggleControl {
    bool isOn = false;

    bool operator==(const ToggleControl&) const = default;
};

// One of several choices. Sends the index of the chosen one as a std::int64_t.
struct PickerControl {
    std::vector<std::string> choices;
    std::optional<std::size_t> selected; // none where the setting is not among the choices

    bool operator==(const PickerControl&) const = default;
};

struct ButtonControl {
    PaneButton button;

    bool operator==(const ButtonControl&) const = default;
};

// A shortcut that can be recorded and cleared.
struct ShortcutControl {
    std::string text;       // "⌘⇧O", "None"
    std::string spelledOut; // "Super+Shift+O", for a tooltip and for screen readers; empty where the text says it all
    bool isRecording = false;
    PaneButton record; // reads "Stop" while recording
    PaneButton clear;

    bool operator==(const ShortcutControl&) const = default;
};

enum class StatusTone { positive, negative };

// A symbol that says whether all is well, and a button to mend it.
struct StatusControl {
    std::string symbol;
    std::string symbolDescription; // for screen readers
    StatusTone tone = StatusTone::positive;
    PaneButton button;

    bool operator==(const StatusControl&) const = default;
};

// A picture of `size`, drawn as overlays are. It takes no input.
struct PreviewControl {
    Size size;
    DrawList content;
    std::string description; // for screen readers

    bool operator==(const PreviewControl&) const = default;
};

using FormControl = std::variant<ColorControl, SliderControl, StepperControl, ToggleControl, PickerControl,
                                 ButtonControl, ShortcutControl, StatusControl, PreviewControl>;

struct FormRow {
    std::string id;    // unique in its form
    std::string title; // empty: the control takes the whole row
    FormControl control;
    std::string help;           // a line in small, secondary text under the row; empty for none
    std::string accessibleName; // unique in its form, as titles need not be
    bool isEnabled = true;

    bool operator==(const FormRow&) const = default;
};

struct FormGroup {
    std::string title; // empty for none
    std::vector<FormRow> rows;

    bool operator==(const FormGroup&) const = default;
};

struct Form {
    std::string note; // above the groups; empty for none
    std::vector<FormGroup> groups;
    std::string footnote;            // below the groups; empty for none
    std::vector<PaneButton> buttons; // at the foot, from the leading edge on

    // What lies over the pane and takes its input, the alert over the sheet. Each is there as long as it is in here.
    std::optional<ListSheet> sheet;
    std::optional<PaneAlert> alert;

    bool operator==(const Form&) const = default;
};

} // namespace quorvel
