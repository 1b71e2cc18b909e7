#pragma once

#include "platform/macos/Retained.h"
#include "platform/macos/preferences/PaneButtonView.h"
#include "platform/macos/preferences/PartsLine.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A symbol that says whether all is well, with a button.
class StatusControlView final : public FormControlView {
public:
    StatusControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return line.view(); }
    std::vector<NSControl*> keyViews() const override { return {button.view()}; }

private:
    Retained<NSImageView*> symbol;
    PaneButtonView button;
    PartsLine line;
};

} // namespace quorvel::macos
