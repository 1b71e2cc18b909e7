#include "layouts/CompactLabelView.h"

#include <algorithm>

#include "layouts/LabelBox.h"

namespace quorvel {

namespace {

// Room for the shadow around the box.
constexpr double margin = 4.0;

constexpr LabelFallbackColors fallbackColors{
    .text = Color::white(),
    .background = Color::black(),
    .border = Color::white(),
};

// Letter and box cast one shadow. It lies under the fill, which covers the letter's part of it as far as it is opaque.
void castShadow(LabelBox& box)
{
    const Shadow shadow{Color::black(), margin};
    box.shadow = shadow;
    const double uncovered = 1.0 - box.backgroundColor.alpha;
    if (uncovered > 0.0) {
        box.letter.shadow = Shadow{shadow.color.withAlpha(uncovered), shadow.blurRadius};
    }
}

void appendLine(LabelBox& box, const std::optional<std::string>& text, const Font& font, double opacity)
{
    if (text && !text->empty()) {
        box.details.push_back({
            .text = *text,
            .font = font,
            .color = Color::white().withAlpha(opacity),
            .shadow = Shadow{Color::black().withAlpha(0.5), 1.0},
        });
    }
}

} // namespace

DrawList CompactLabelView::body(const Size& size, const ViewEnvironment& environment) const
{
    auto box = LabelBox::withLetter(label, appearance, fallbackColors);
    castShadow(box);
    if (appearance.showWindowInfo) {
        appendLine(box, appName, {std::max(12.0, appearance.textSize * 0.2), FontWeight::semibold}, 0.95);
        appendLine(box, windowTitle, {std::max(10.0, appearance.textSize * 0.17), FontWeight::regular}, 0.65);
    }
    DrawList list;
    const auto area = ViewRect{0.0, 0.0, size.width, size.height}.insetBy(margin, margin);
    box.appendTo(list, area, LabelPosition::center, environment.textMetrics);
    return list;
}

} // namespace quorvel
