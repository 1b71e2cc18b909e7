#pragma once

#include "preferences/BasicAppearancePane.h"

namespace quorvel {

// The pane for the frames of the move/resize mode and for how windows snap.
class MoveResizeAppearanceView final : public BasicAppearancePane<MoveResizeTheme> {
public:
    explicit MoveResizeAppearanceView(const Platform& platform);

protected:
    FormGroup previewGroup() const override;
};

} // namespace quorvel
