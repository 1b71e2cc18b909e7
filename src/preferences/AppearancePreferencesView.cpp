#include "preferences/AppearancePreferencesView.h"

#include <array>

#include "layouts/OverlayView.h"
#include "platform/Platform.h"
#include "preferences/PreviewDrawing.h"
#include "settings/AppearanceSettings.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

namespace {

constexpr std::array overlayRows{
    SettingRow{"Border color", settingsKeys::overlayBorderColor, ColorBinding{}, {}},
    SettingRow{"Background", settingsKeys::overlayBackgroundColor, ColorBinding{}, {}},
    SettingRow{"Border width", settingsKeys::overlayBorderWidth, SliderBinding{0.0, 10.0, 0.5, 0}, {}},
    SettingRow{"Corner radius", settingsKeys::overlayBorderRadius, SliderBinding{0.0, 32.0, 1.0, 0}, {}},
};

std::span<const SettingRow> textRows()
{
    static const std::array rows{
        SettingRow{"Text color", settingsKeys::textColor, ColorBinding{}, {}},
        SettingRow{"Background", settingsKeys::textBackgroundColor, ColorBinding{}, {}},
        SettingRow{"Border color", settingsKeys::textBorderColor, ColorBinding{}, {}},
        SettingRow{"Border width", settingsKeys::textBorderWidth, SliderBinding{0.0, 10.0, 0.5, 0}, {}},
        SettingRow{"Size", settingsKeys::textSize, SliderBinding{10.0, 64.0, 1.0, 0}, {}},
        SettingRow{"Corner radius", settingsKeys::textBorderRadius, SliderBinding{0.0, 16.0, 1.0, 0}, {}},
        SettingRow{"Label position", settingsKeys::labelPosition, PickerBinding{labelPositionChoices()}, {}},
        SettingRow{"Bold", settingsKeys::isTextBold, ToggleBinding{}, {}},
    };
    return rows;
}

constexpr std::array previewRows{
    SettingRow{"Show grid", settingsKeys::showPreviewGrid, ToggleBinding{}, {}},
};

std::span<const SettingGroup> groups()
{
    static const std::array result{SettingGroup{"Overlay", overlayRows}, SettingGroup{"Text", textRows()}};
    return result;
}

constexpr Size previewSize{640.0, 260.0};

} // namespace

AppearancePreferencesView::AppearancePreferencesView(const Platform& platform)
    : BasicAppearancePane(platform, {.note = {},
                                     .groups = groups(),
                                     .footnote = "Changes are saved automatically.",
                                     .saveMessage = {},
                                     .resetTitle = "Reset Layout appearance to defaults?",
                                     .resetMessage = "This will discard your current Layout overlay customizations."})
{}

FormGroup AppearancePreferencesView::previewGroup() const
{
    constexpr double margin = 30.0;
    const bool showsGrid = settings.boundBoolean(settingsKeys::showPreviewGrid);
    const OverlayView sample{
        .label = "Sample",
        .overridePosition = std::nullopt,
        .appName = std::nullopt,
        .windowTitle = std::nullopt,
        .appearance = layoutOverlayAppearance(settings),
    };
    auto content = previewDesktop(previewSize, showsGrid ? PreviewGrid::shown : PreviewGrid::hidden);
    appendAt(content, {margin, margin},
             sample.drawList({previewSize.width - 2.0 * margin, previewSize.height - 2.0 * margin},
                             {platform.textMetrics, platform.systemColors}));
    auto group = formGroup({"Preview", previewRows}, settings);
    group.rows.push_back(previewRow({previewSize, std::move(content), "A sample frame with its label"}));
    return group;
}

bool AppearancePreferencesView::setPreviewControl(std::string_view id, const ControlValue& value)
{
    const std::array group{SettingGroup{"Preview", previewRows}};
    const auto* const row = settingRow(group, id);
    if (row != nullptr) {
        storeSentValue(*row, value, settings);
    }
    return row != nullptr;
}

} // namespace quorvel
