#pragma once

#include "preferences/BasicAppearancePane.h"

namespace quorvel {

// The pane for the layout overlay.
class AppearancePreferencesView final : public BasicAppearancePane<Theme> {
public:
    explicit AppearancePreferencesView(const Platform& platform);

protected:
    FormGroup previewGroup() const override;
    bool setPreviewControl(std::string_view id, const ControlValue& value) override;
};

} // namespace quorvel
