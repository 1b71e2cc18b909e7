#include "layouts/FrameBackground.h"

#include "base/ColorCodec.h"
#include "layouts/FilledBorder.h"

namespace quorvel {

void appendFrameBackground(DrawList& list, const OverlayAppearance& appearance, const Size& size,
                           const Color& fallbackColor)
{
    const FilledBorder frame{
        .rect = {0.0, 0.0, size.width, size.height},
        .cornerRadius = appearance.overlayBorderRadius,
        .cornerStyle = CornerStyle::continuous,
        .backing = Backing::open,
        .fill = colorFromHex(appearance.overlayBackgroundColorHex).value_or(fallbackColor.withAlpha(0.5)),
        .border = {colorFromHex(appearance.overlayBorderColorHex).value_or(fallbackColor),
                   appearance.overlayBorderWidth},
    };
    frame.appendTo(list);
}

} // namespace quorvel
