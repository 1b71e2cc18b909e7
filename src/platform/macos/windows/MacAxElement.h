#pragma once

#include <utility>

#include <ApplicationServices/ApplicationServices.h>

#include "platform/Accessibility.h"
#include "platform/macos/CfRef.h"

namespace quorvel::macos {

class MacAxElement final : public AxElement {
public:
    explicit MacAxElement(CfRef<AXUIElementRef> element) : element(std::move(element)) {}

    bool isEqual(const AxElement& other) const override
    {
        const auto* const named = dynamic_cast<const MacAxElement*>(&other);
        return named != nullptr && CFEqual(element.get(), named->element.get());
    }

    // The system's element behind the port's; null for none.
    static AXUIElementRef native(const AxElementRef& element)
    {
        const auto* const named = dynamic_cast<const MacAxElement*>(element.get());
        return named != nullptr ? named->element.get() : nullptr;
    }

private:
    CfRef<AXUIElementRef> element;
};

} // namespace quorvel::macos
