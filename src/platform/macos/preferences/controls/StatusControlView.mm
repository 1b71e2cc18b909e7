#include "platform/macos/preferences/controls/StatusControlView.h"

#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

constexpr NSRect symbolFrame = {{0.0, 0.0}, {20.0, 20.0}};

} // namespace

StatusControlView::StatusControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      symbol(Retained<NSImageView*>::adopt([[NSImageView alloc] initWithFrame:symbolFrame])),
      button(std::get<StatusControl>(row.control).button, [this](const std::string& id) { press(id); }),
      line({symbol.get(), button.view()})
{}

void StatusControlView::show(const FormRow& row)
{
    const auto& control = std::get<StatusControl>(row.control);
    NSString* const description = nsString(control.symbolDescription);
    const bool isPositive = control.tone == StatusTone::positive;
    [symbol.get() setImage:[NSImage imageWithSystemSymbolName:nsString(control.symbol)
                                     accessibilityDescription:description]];
    [symbol.get() setContentTintColor:isPositive ? [NSColor systemGreenColor] : [NSColor systemRedColor]];
    [symbol.get() setToolTip:description];
    [symbol.get() setAccessibilityLabel:description];
    button.show(control.button);
    if (!row.isEnabled) {
        [button.view() setEnabled:NO];
    }
    line.arrange();
}

} // namespace quorvel::macos
