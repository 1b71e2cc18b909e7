#pragma once

#include "platform/macos/preferences/KeyCap.h"
#include "platform/macos/preferences/PaneButtonView.h"
#include "platform/macos/preferences/PartsLine.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A shortcut as a key cap, with the buttons that record and clear it.
class ShortcutControlView final : public FormControlView {
public:
    ShortcutControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return line.view(); }
    std::vector<NSControl*> keyViews() const override { return {record.view(), clear.view()}; }

private:
    KeyCap keyCap;
    PaneButtonView record;
    PaneButtonView clear;
    PartsLine line;
};

} // namespace quorvel::macos
