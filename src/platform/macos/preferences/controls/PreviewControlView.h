#pragma once

#include "platform/macos/Retained.h"
#include "platform/macos/overlays/DrawListView.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A picture, drawn by the painter of the overlays.
class PreviewControlView final : public FormControlView {
public:
    PreviewControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return picture.get(); }
    std::vector<NSControl*> keyViews() const override { return {}; }

private:
    Retained<QuorvelDrawListView*> picture;
};

} // namespace quorvel::macos
