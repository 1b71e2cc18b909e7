#include "settings/AppearanceSettings.h"

#include <string_view>

#include "base/ColorCodec.h"
#include "platform/SystemColors.h"
#include "settings/PositiveSettings.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "settings/SettingsTable.h"

namespace quorvel {

namespace {

struct FrameKeys {
    std::string_view color;
    std::string_view borderWidth;
    std::string_view glow;
};

FrameAppearance frameAppearance(const Settings& settings, const FrameKeys& keys, const Color& unreadableColor)
{
    const auto fallbackHex = std::get<std::string_view>(settingDefinition(keys.color).readerFallback);
    const auto hex = settings.string(keys.color).value_or(std::string(fallbackHex));
    return {
        .color = colorFromHex(hex).value_or(unreadableColor),
        .glow = settings.booleanValue(keys.glow).value_or(true),
        .borderWidth = positiveReal(settings, keys.borderWidth),
        .cornerRadius = static_cast<double>(positiveInteger(settings, settingsKeys::mrCornerRadius)),
    };
}

} // namespace

OverlayAppearance layoutOverlayAppearance(const Settings& settings)
{
    const auto position = settings.boundString(settingsKeys::labelPosition);
    return {
        .overlayBorderColorHex = settings.boundString(settingsKeys::overlayBorderColor),
        .overlayBackgroundColorHex = settings.boundString(settingsKeys::overlayBackgroundColor),
        .overlayBorderWidth = settings.boundReal(settingsKeys::overlayBorderWidth),
        .overlayBorderRadius = settings.boundReal(settingsKeys::overlayBorderRadius),
        .textBorderColorHex = settings.boundString(settingsKeys::textBorderColor),
        .textBackgroundColorHex = settings.boundString(settingsKeys::textBackgroundColor),
        .textBorderWidth = settings.boundReal(settingsKeys::textBorderWidth),
        .textColorHex = settings.boundString(settingsKeys::textColor),
        .textSize = settings.boundReal(settingsKeys::textSize),
        .textBorderRadius = settings.boundReal(settingsKeys::textBorderRadius),
        .labelPosition = labelPositionFromRawValue(position).value_or(LabelPosition::center),
        .isTextBold = settings.boundBoolean(settingsKeys::isTextBold),
        .showWindowInfo = settings.boundBoolean(settingsKeys::showWindowInfo),
    };
}

OverlayAppearance switcherAppearance(const Settings& settings)
{
    return {
        .overlayBorderColorHex = settings.boundString(settingsKeys::wsBorderColor),
        .overlayBackgroundColorHex = settings.boundString(settingsKeys::wsBackgroundColor),
        .overlayBorderWidth = settings.boundReal(settingsKeys::wsBorderWidth),
        .overlayBorderRadius = settings.boundReal(settingsKeys::wsBorderRadius),
        .textBorderColorHex = settings.boundString(settingsKeys::wsTextBorderColor),
        .textBackgroundColorHex = settings.boundString(settingsKeys::wsTextBackgroundColor),
        .textBorderWidth = settings.boundReal(settingsKeys::wsTextBorderWidth),
        .textColorHex = settings.boundString(settingsKeys::wsTextColor),
        .textSize = switcherTextSize(settings),
        .textBorderRadius = settings.boundReal(settingsKeys::wsTextBorderRadius),
        .labelPosition = switcherLabelPosition(settings),
        .isTextBold = settings.boundBoolean(settingsKeys::wsTextBold),
        .showWindowInfo = settings.boundBoolean(settingsKeys::showWindowInfo),
    };
}

double switcherTextSize(const Settings& settings)
{
    return positiveReal(settings, settingsKeys::wsTextSize);
}

LabelPosition switcherLabelPosition(const Settings& settings)
{
    const auto position = settings.boundString(settingsKeys::wsLabelPosition);
    return labelPositionFromRawValue(position).value_or(LabelPosition::topLeft);
}

LabelPosition switcherPopupPosition(const Settings& settings)
{
    const auto position = settings.boundString(settingsKeys::fsPopupPosition);
    return labelPositionFromRawValue(position).value_or(LabelPosition::center);
}

FocusSwitcherDisplayMode focusSwitcherDisplayMode(const Settings& settings)
{
    const auto mode = settings.boundString(settingsKeys::fsDefaultDisplayMode);
    return focusSwitcherDisplayModeFromRawValue(mode).value_or(FocusSwitcherDisplayMode::framesAndLabels);
}

FrameAppearance selectionFrameAppearance(const Settings& settings, const SystemColors& systemColors)
{
    constexpr FrameKeys keys{settingsKeys::mrSelectionColorHex, settingsKeys::mrSelectionBorderWidth,
                             settingsKeys::mrSelectionGlow};
    return frameAppearance(settings, keys, systemColors.blue().withAlpha(0.9));
}

FrameAppearance snapTargetFrameAppearance(const Settings& settings, const SystemColors& systemColors)
{
    constexpr FrameKeys keys{settingsKeys::mrSnapTargetColorHex, settingsKeys::mrSnapTargetBorderWidth,
                             settingsKeys::mrSnapTargetGlow};
    return frameAppearance(settings, keys, systemColors.green().withAlpha(0.8));
}

} // namespace quorvel
