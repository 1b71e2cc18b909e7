#include "layouts/WindowBorderOverlay.h"

#include "layouts/FrameBackground.h"
#include "platform/SystemColors.h"

namespace quorvel {

DrawList WindowBorderOverlay::body(const Size& size, const ViewEnvironment& environment) const
{
    DrawList list;
    appendFrameBackground(list, appearance, size, environment.systemColors.blue());
    return list;
}

} // namespace quorvel
