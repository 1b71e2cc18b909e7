#include "platform/macos/preferences/PaneBox.h"

#include <utility>

namespace quorvel::macos {

PaneBox::PaneBox(std::function<void()> layOut)
    : box(Retained<QuorvelFlippedView*>::adopt([[QuorvelFlippedView alloc] initWithFrame:NSZeroRect]))
{
    [box.get() setResized:std::move(layOut)];
}

// Views above may keep this one for a while longer.
PaneBox::~PaneBox()
{
    [box.get() setResized:{}];
}

} // namespace quorvel::macos
