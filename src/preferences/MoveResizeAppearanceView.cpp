#include "preferences/MoveResizeAppearanceView.h"

#include <array>

#include "platform/Platform.h"
#include "preferences/PreviewDrawing.h"
#include "settings/AppearanceSettings.h"
#include "settings/SettingsKeys.h"
#include "system/OverlayFrameView.h"

namespace quorvel {

namespace {

constexpr SliderBinding borderWidth{1.0, 10.0, 0.5, 1};

constexpr std::array selectionRows{
    SettingRow{"Border color", settingsKeys::mrSelectionColorHex, ColorBinding{}, {}},
    SettingRow{"Border width", settingsKeys::mrSelectionBorderWidth, borderWidth, {}},
    SettingRow{"Glow effect", settingsKeys::mrSelectionGlow, ToggleBinding{}, {}},
};

constexpr std::array snapTargetRows{
    SettingRow{"Border color", settingsKeys::mrSnapTargetColorHex, ColorBinding{}, {}},
    SettingRow{"Border width", settingsKeys::mrSnapTargetBorderWidth, borderWidth, {}},
    SettingRow{"Glow effect", settingsKeys::mrSnapTargetGlow, ToggleBinding{}, {}},
};

constexpr std::array cornerRows{
    SettingRow{"Radius (px)", settingsKeys::mrCornerRadius, StepperBinding{1, 50}, {}},
};

constexpr std::array behaviorRows{
    SettingRow{"Move step (px)", settingsKeys::mrMoveStep, SliderBinding{5.0, 50.0, 5.0, 0}, {}},
    SettingRow{"Snap to neighbor windows", settingsKeys::mrSnapEnabled, ToggleBinding{}, {}},
    SettingRow{"Snap distance (px)", settingsKeys::mrSnapThreshold, SliderBinding{5.0, 50.0, 5.0, 0}, {}},
    SettingRow{"Snap resistance", settingsKeys::mrSnapResistance, SliderBinding{1.0, 10.0, 1.0, 0}, {}},
};

constexpr std::array groups{
    SettingGroup{"Selection Frame", selectionRows},
    SettingGroup{"Snap Target Frame", snapTargetRows},
    SettingGroup{"Corner Radius", cornerRows},
    SettingGroup{"Behavior", behaviorRows},
};

constexpr Size previewSize{640.0, 240.0};
constexpr ViewRect firstWindow{40.0, 35.0, 265.0, 170.0};
constexpr ViewRect secondWindow{335.0, 35.0, 265.0, 170.0};

} // namespace

MoveResizeAppearanceView::MoveResizeAppearanceView(const Platform& platform)
    : BasicAppearancePane(platform, {.note = {},
                                     .groups = groups,
                                     .footnote = "Changes are saved automatically.",
                                     .saveMessage = {},
                                     .resetTitle = "Reset Move/Resize appearance to defaults?",
                                     .resetMessage = "This will discard your current Move/Resize customizations."})
{}

FormGroup MoveResizeAppearanceView::previewGroup() const
{
    auto content = previewDesktop(previewSize, PreviewGrid::hidden);
    const auto appendWindow = [&](const ViewRect& window, const char* title, const FrameAppearance& appearance) {
        appendSampleWindow(content, window, title);
        appendAt(content, window.origin(), OverlayFrameView(platform.systemColors, appearance).drawList(window.size()));
    };
    appendWindow(firstWindow, "Window A", selectionFrameAppearance(settings, platform.systemColors));
    appendWindow(secondWindow, "Window B", snapTargetFrameAppearance(settings, platform.systemColors));
    return {.title = "Preview",
            .rows = {previewRow(
                {previewSize, std::move(content), "Two sample windows with the selection and the snap target frame"})}};
}

} // namespace quorvel
