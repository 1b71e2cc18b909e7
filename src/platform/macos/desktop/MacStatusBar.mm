#include "platform/macos/desktop/MacStatusBar.h"

#include "platform/macos/desktop/MacStatusItem.h"

namespace quorvel::macos {

std::unique_ptr<StatusItem> MacStatusBar::createItem()
{
    @autoreleasepool {
        return std::make_unique<MacStatusItem>(bundle);
    }
}

} // namespace quorvel::macos
