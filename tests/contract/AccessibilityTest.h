#pragma once

#include <expected>
#include <string_view>

#include "contract/ContractTest.h"
#include "platform/Accessibility.h"

namespace quorvel::contract {

// What the suites about accessibility share.
class AccessibilityTest : public ContractTest {
protected:
    std::expected<AxValue, AxError> read(const AxElementRef& element, std::string_view attribute)
    {
        return accessibility.copyAttribute(element, attribute);
    }

    // The value if it can be read and has that type, else a null element.
    AxElementRef readElement(const AxElementRef& element, std::string_view attribute)
    {
        const auto value = read(element, attribute);
        const auto* named = value ? std::get_if<AxElementRef>(&*value) : nullptr;
        return named != nullptr ? *named : nullptr;
    }

    // The window as accessibility knows it, once it is its application's focused one.
    AxElementRef elementOf(const ContractWindow& window)
    {
        const auto application = accessibility.applicationElement(window.process);
        AxElementRef element;
        const bool found = desktop->waitUntil([&] {
            element = readElement(application, axNames::focusedWindow);
            return element != nullptr && frameOf(element) == desktop->frameOf(window);
        });
        EXPECT_TRUE(found) << "The window is not its application's focused one";
        return element;
    }

    // As accessibility reads it; the null rectangle where it cannot.
    AxRect frameOf(const AxElementRef& element)
    {
        const auto position = read(element, axNames::position);
        const auto size = read(element, axNames::size);
        if (!position || !size) {
            return AxRect::null();
        }
        return AxRect::of(std::get<AxPoint>(*position), std::get<Size>(*size));
    }

    const AxRect somewhere{100.0, 120.0, 500.0, 400.0};
    Accessibility& accessibility = port(&ContractPorts::accessibility);
};

} // namespace quorvel::contract
