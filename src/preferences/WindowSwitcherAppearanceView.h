#pragma once

#include "preferences/BasicAppearancePane.h"
#include "preferences/PreviewDrawing.h"

namespace quorvel {

// The pane for the focus switcher.
class WindowSwitcherAppearanceView final : public BasicAppearancePane<SwitcherTheme> {
public:
    explicit WindowSwitcherAppearanceView(const Platform& platform);

    // The preview's grid is hidden each time the pane comes to be seen.
    void paneWillAppear();

protected:
    FormGroup previewGroup() const override;
    bool setPreviewControl(std::string_view id, const ControlValue& value) override;

private:
    DrawList preview() const;

    PreviewGrid previewGrid = PreviewGrid::hidden;
};

} // namespace quorvel
