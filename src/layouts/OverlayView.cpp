#include "layouts/OverlayView.h"

#include <algorithm>
#include <initializer_list>

#include <fmt/format.h>

#include "base/ColorCodec.h"
#include "layouts/FrameBackground.h"
#include "layouts/LabelBox.h"
#include "platform/Log.h"
#include "platform/SystemColors.h"

namespace quorvel {

namespace {

bool isPresent(const std::optional<std::string>& name)
{
    return name && !name->empty();
}

// The names of application and window under the letter, in the colour of the box's border.
void appendWindowInfo(LabelBox& box, const OverlayView& view, const Color& yellow)
{
    const auto borderColor = colorFromHex(view.appearance.textBorderColorHex);
    const Color color = borderColor ? borderColor->withAlpha(borderColor->alpha * 0.85) : yellow.withAlpha(0.4);
    const Font font{std::max(0.0, view.appearance.textSize * 0.7), FontWeight::regular};
    for (const auto* name : {&view.appName, &view.windowTitle}) {
        if (isPresent(*name)) {
            box.details.push_back({.text = **name, .font = font, .color = color, .shadow = std::nullopt});
        }
    }
}

} // namespace

DrawList OverlayView::body(const Size& size, const ViewEnvironment& environment, Log& log) const
{
    log.line(fmt::format("📊 OverlayView: label={}, appName={}, title={}, shouldShow={}", label,
                         appName.value_or("nil"), windowTitle.value_or("nil"), shouldShowWindowInfo()));
    return drawList(size, environment);
}

DrawList OverlayView::drawList(const Size& size, const ViewEnvironment& environment) const
{
    const auto yellow = environment.systemColors.yellow();
    DrawList list;
    appendFrameBackground(list, appearance, size, yellow);
    auto box =
        LabelBox::withLetter(label, appearance, {.text = yellow, .background = Color::black(), .border = yellow});
    if (shouldShowWindowInfo()) {
        appendWindowInfo(box, *this, yellow);
    }
    box.appendTo(list, {0.0, 0.0, size.width, size.height}, overridePosition.value_or(appearance.labelPosition),
                 environment.textMetrics);
    return list;
}

bool OverlayView::shouldShowWindowInfo() const
{
    return appearance.showWindowInfo && (isPresent(appName) || isPresent(windowTitle));
}

} // namespace quorvel
