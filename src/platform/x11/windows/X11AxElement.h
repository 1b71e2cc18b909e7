#pragma once

#include <xcb/xcb.h>

#include "platform/Accessibility.h"

namespace quorvel::x11 {

// An application or a client window. A window keeps the process that it was found with: the server gives its number
// away again, and the next window of that number belongs to somebody else.
class X11AxElement : public AxElement {
public:
    explicit X11AxElement(ProcessId process, xcb_window_t window = XCB_NONE) : owner(process), number(window) {}

    ProcessId process() const { return owner; }

    // XCB_NONE for an application.
    xcb_window_t window() const { return number; }

    bool isEqual(const AxElement& other) const override
    {
        const auto* const element = dynamic_cast<const X11AxElement*>(&other);
        return element != nullptr && element->owner == owner && element->number == number;
    }

private:
    ProcessId owner;
    xcb_window_t number;
};

} // namespace quorvel::x11
