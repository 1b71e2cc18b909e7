#include "system/OverlayFrameView.h"

#include <optional>

#include "platform/SystemColors.h"
#include "settings/AppearanceSettings.h"

namespace quorvel {

OverlayFrameView::OverlayFrameView(const SystemColors& systemColors) : borderColor(systemColors.blue().withAlpha(0.9))
{}

OverlayFrameView::OverlayFrameView(const SystemColors& systemColors, const FrameAppearance& appearance)
    : OverlayFrameView(systemColors)
{
    setAppearance(appearance);
}

void OverlayFrameView::setAppearance(const FrameAppearance& appearance)
{
    borderColor = appearance.color;
    borderWidth = appearance.borderWidth;
    cornerRadius = appearance.cornerRadius;
    glow = appearance.glow;
}

DrawList OverlayFrameView::drawList(const Size& bounds) const
{
    const double inset = borderWidth / 2.0;
    return {{RoundedRectCommand{
        .rect = ViewRect{0.0, 0.0, bounds.width, bounds.height}.insetBy(inset, inset),
        .cornerRadius = cornerRadius,
        .fill = std::nullopt,
        .stroke = Stroke{borderColor, borderWidth},
        .shadow = glow ? Shadow{borderColor.withAlpha(0.6), 12.0} : Shadow{Color::clear(), 0.0},
    }}};
}

} // namespace quorvel
