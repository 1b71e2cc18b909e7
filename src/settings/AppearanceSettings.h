#pragma once

#include <string>

#include "base/Color.h"
#include "base/FocusSwitcherDisplayMode.h"
#include "base/LabelPosition.h"

namespace quorvel {

class Settings;
class SystemColors;

// What the overlay views draw with. Colours are texts as they are stored (base/ColorCodec.h); each view has its own
// colour for a text that cannot be read. Widths, radii and sizes in points.
struct OverlayAppearance {
    std::string overlayBorderColorHex;
    std::string overlayBackgroundColorHex;
    double overlayBorderWidth = 0.0;
    double overlayBorderRadius = 0.0;
    std::string textBorderColorHex;
    std::string textBackgroundColorHex;
    double textBorderWidth = 0.0;
    std::string textColorHex;
    double textSize = 0.0;
    double textBorderRadius = 0.0;
    LabelPosition labelPosition = LabelPosition::center;
    bool isTextBold = true;
    bool showWindowInfo = true;

    bool operator==(const OverlayAppearance&) const = default;
};

// How a frame around a window looks.
struct FrameAppearance {
    Color color;
    bool glow = true;
    double borderWidth = 3.0;
    double cornerRadius = 10.0;

    bool operator==(const FrameAppearance&) const = default;
};

// The appearance of the layout overlay, and that of the focus switcher's borders and labels: the same views, two
// families of settings.
OverlayAppearance layoutOverlayAppearance(const Settings& settings);
OverlayAppearance switcherAppearance(const Settings& settings);

// The font size of the focus switcher's labels: 64 for a stored size that is not positive.
double switcherTextSize(const Settings& settings);

// Where the focus switcher prefers to put labels: the top left for a text that names no position.
LabelPosition switcherLabelPosition(const Settings& settings);

// Where the focus switcher puts its lists: the centre for a text that names no position.
LabelPosition switcherPopupPosition(const Settings& settings);

FocusSwitcherDisplayMode focusSwitcherDisplayMode(const Settings& settings);

// The frame around the window that is being moved, and the one around what it snaps to. The widths and the radius
// count only if positive, a glow only if it is a Boolean; a colour that cannot be read becomes a system colour.
FrameAppearance selectionFrameAppearance(const Settings& settings, const SystemColors& systemColors);
FrameAppearance snapTargetFrameAppearance(const Settings& settings, const SystemColors& systemColors);

} // namespace quorvel
