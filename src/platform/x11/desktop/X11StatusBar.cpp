#include "platform/x11/desktop/X11StatusBar.h"

#include "platform/x11/desktop/X11StatusItem.h"

namespace quorvel::x11 {

std::unique_ptr<StatusItem> X11StatusBar::createItem()
{
    return std::make_unique<X11StatusItem>(connection, bundle, toolkit);
}

} // namespace quorvel::x11
