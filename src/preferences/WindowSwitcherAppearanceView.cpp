#include "preferences/WindowSwitcherAppearanceView.h"

#include <algorithm>
#include <array>

#include "base/FocusSwitcherDisplayMode.h"
#include "layouts/CompactLabelView.h"
#include "layouts/LabelPlacement.h"
#include "layouts/WindowBorderOverlay.h"
#include "platform/Platform.h"
#include "preferences/ControlValues.h"
#include "settings/AppearanceSettings.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

namespace {

constexpr std::array borderRows{
    SettingRow{"Border color", settingsKeys::wsBorderColor, ColorBinding{}, {}},
    SettingRow{"Background", settingsKeys::wsBackgroundColor, ColorBinding{}, {}},
    SettingRow{"Border width", settingsKeys::wsBorderWidth, SliderBinding{0.0, 10.0, 0.5, 0}, {}},
    SettingRow{"Corner radius", settingsKeys::wsBorderRadius, SliderBinding{0.0, 32.0, 1.0, 0}, {}},
};

std::span<const SettingRow> labelRows()
{
    static const std::array rows{
        SettingRow{"Text color", settingsKeys::wsTextColor, ColorBinding{}, {}},
        SettingRow{"Background", settingsKeys::wsTextBackgroundColor, ColorBinding{}, {}},
        SettingRow{"Border color", settingsKeys::wsTextBorderColor, ColorBinding{}, {}},
        SettingRow{"Border width", settingsKeys::wsTextBorderWidth, SliderBinding{0.0, 10.0, 0.5, 0}, {}},
        SettingRow{"Size", settingsKeys::wsTextSize, SliderBinding{10.0, 96.0, 1.0, 0}, {}},
        SettingRow{"Corner radius", settingsKeys::wsTextBorderRadius, SliderBinding{0.0, 16.0, 1.0, 0}, {}},
        SettingRow{"Label position", settingsKeys::wsLabelPosition, PickerBinding{labelPositionChoices()}, {}},
        SettingRow{"Bold", settingsKeys::wsTextBold, ToggleBinding{}, {}},
    };
    return rows;
}

constexpr std::array infoRows{
    SettingRow{"Show app name and window title", settingsKeys::showWindowInfo, ToggleBinding{},
               "When enabled, displays the application name and window title below the keyboard shortcut label."},
};

std::span<const SettingRow> displayModeRows()
{
    static const std::array choices{
        PickerChoice{title(FocusSwitcherDisplayMode::framesAndLabels),
                     rawValue(FocusSwitcherDisplayMode::framesAndLabels)},
        PickerChoice{title(FocusSwitcherDisplayMode::windowList), rawValue(FocusSwitcherDisplayMode::windowList)},
    };
    static const std::array rows{
        SettingRow{"When activating focus switcher", settingsKeys::fsDefaultDisplayMode, PickerBinding{choices},
                   "Choose what is shown when you first activate the focus switcher. You can toggle between modes "
                   "using the configured key."},
    };
    return rows;
}

std::span<const SettingGroup> groups()
{
    static const std::array result{
        SettingGroup{"Window Border", borderRows},
        SettingGroup{"Label", labelRows()},
        SettingGroup{"Window Info", infoRows},
        SettingGroup{"Default Display Mode", displayModeRows()},
    };
    return result;
}

constexpr std::string_view gridID = "showPreviewGrid";
constexpr Size previewSize{640.0, 220.0};
constexpr double windowMargin = 20.0;

} // namespace

WindowSwitcherAppearanceView::WindowSwitcherAppearanceView(const Platform& platform)
    : BasicAppearancePane(platform, {.note = "These settings are independent from Layout Appearance.",
                                     .groups = groups(),
                                     .footnote = {},
                                     .saveMessage = "Enter a name for this theme.",
                                     .resetTitle = "Reset Window Switcher appearance to defaults?",
                                     .resetMessage = "This will discard your current Window Switcher customizations."})
{}

void WindowSwitcherAppearanceView::paneWillAppear()
{
    previewGrid = PreviewGrid::hidden;
    changed.emit();
}

FormGroup WindowSwitcherAppearanceView::previewGroup() const
{
    return {.title = "Preview",
            .rows = {{.id = std::string(gridID),
                      .title = "Show grid",
                      .control = ToggleControl{previewGrid == PreviewGrid::shown},
                      .help = {},
                      .accessibleName = "Preview, Show grid",
                      .isEnabled = true},
                     previewRow({previewSize, preview(), "A sample window with its frame and label"})}};
}

bool WindowSwitcherAppearanceView::setPreviewControl(std::string_view id, const ControlValue& value)
{
    if (id != gridID) {
        return false;
    }
    previewGrid = sentValue<bool>(id, value) ? PreviewGrid::shown : PreviewGrid::hidden;
    return true;
}

DrawList WindowSwitcherAppearanceView::preview() const
{
    const auto appearance = switcherAppearance(settings);
    const ViewEnvironment environment{platform.textMetrics, platform.systemColors};
    const CompactLabelView label{
        .label = "A", .appName = "Safari", .windowTitle = "Example Window Title", .appearance = appearance};

    const auto window = ViewRect{0.0, 0.0, previewSize.width, previewSize.height}.insetBy(windowMargin, windowMargin);
    auto content = previewDesktop(previewSize, previewGrid);
    appendSampleWindow(content, window, {});
    appendAt(content, window.origin(), WindowBorderOverlay{appearance}.body(window.size(), environment));

    // Labels of windows are placed with y upwards, and may be larger than this small window.
    const ScreenRect bounds{0.0, 0.0, window.width, window.height};
    auto size = windowLabelSize(appearance.textSize, label.label,
                                VisibleWindowInfo{bounds, *label.appName, *label.windowTitle});
    size = {std::min(size.width, bounds.width), std::min(size.height, bounds.height)};
    const auto place = labelRect(appearance.labelPosition, bounds, size);
    const double left = std::clamp(place.x, 0.0, bounds.width - size.width);
    const double top = std::clamp(bounds.maxY() - place.maxY(), 0.0, bounds.height - size.height);
    appendAt(content, {window.x + left, window.y + top}, label.body(size, environment));
    return content;
}

} // namespace quorvel
