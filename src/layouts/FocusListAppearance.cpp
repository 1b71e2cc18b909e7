#include "layouts/FocusListAppearance.h"

#include <utility>

#include "base/ColorCodec.h"
#include "platform/SystemColors.h"
#include "settings/AppearanceSettings.h"

namespace quorvel {

namespace {

// A label may do without a background, a list on top of windows could not be read then.
Color backgroundColor(const OverlayAppearance& appearance)
{
    const auto stored = colorFromHex(appearance.textBackgroundColorHex).value_or(Color::black());
    return stored.alpha > 0.0 ? stored : Color::black().withAlpha(0.87);
}

} // namespace

MinimizedWindowsListView focusListView(const Settings& settings, const SystemColors& systemColors, std::string title,
                                       std::vector<MinimizedWindowEntry> entries)
{
    const auto appearance = switcherAppearance(settings);
    const auto textColor = colorFromHex(appearance.textColorHex).value_or(Color::white());
    return {
        .entries = std::move(entries),
        .title = std::move(title),
        .bgColor = backgroundColor(appearance),
        .borderColor = colorFromHex(appearance.overlayBorderColorHex).value_or(systemColors.blue()),
        .titleColor = textColor,
        .labelColor = textColor,
        .labelBorderColor = colorFromHex(appearance.textBorderColorHex).value_or(Color::white()),
        .appNameColor = textColor,
        .windowTitleColor = textColor.withAlpha(textColor.alpha * 0.65),
    };
}

} // namespace quorvel
