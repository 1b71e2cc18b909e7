#include "platform/macos/windows/AxValues.h"

#include <ApplicationServices/ApplicationServices.h>

#include "platform/macos/CfValues.h"
#include "platform/macos/windows/MacAxElement.h"

namespace quorvel::macos {

namespace {

bool isElement(CFTypeRef object)
{
    return object != nullptr && CFGetTypeID(object) == AXUIElementGetTypeID();
}

AxElementRef element(CFTypeRef object)
{
    return std::make_shared<MacAxElement>(CfRef<AXUIElementRef>::retain(static_cast<AXUIElementRef>(object)));
}

std::vector<AxElementRef> elements(CFArrayRef array)
{
    std::vector<AxElementRef> result;
    const auto count = CFArrayGetCount(array);
    for (CFIndex index = 0; index < count; ++index) {
        if (const auto* const object = CFArrayGetValueAtIndex(array, index); isElement(object)) {
            result.push_back(element(object));
        }
    }
    return result;
}

AxValue geometry(AXValueRef value)
{
    CGPoint point{};
    if (AXValueGetType(value) == kAXValueTypeCGPoint && AXValueGetValue(value, kAXValueTypeCGPoint, &point)) {
        return AxPoint{point.x, point.y};
    }
    CGSize size{};
    if (AXValueGetType(value) == kAXValueTypeCGSize && AXValueGetValue(value, kAXValueTypeCGSize, &size)) {
        return Size{size.width, size.height};
    }
    return {};
}

// Makes the system's value for each of the port's.
struct Conversion {
    CfRef<CFTypeRef> operator()(bool value) const
    {
        return CfRef<CFTypeRef>::retain(value ? kCFBooleanTrue : kCFBooleanFalse);
    }

    CfRef<CFTypeRef> operator()(const std::string& text) const { return cfString(text); }

    CfRef<CFTypeRef> operator()(const AxPoint& point) const
    {
        const CGPoint native{point.x, point.y};
        return CfRef<CFTypeRef>::adopt(AXValueCreate(kAXValueTypeCGPoint, &native));
    }

    CfRef<CFTypeRef> operator()(const Size& size) const
    {
        const CGSize native{size.width, size.height};
        return CfRef<CFTypeRef>::adopt(AXValueCreate(kAXValueTypeCGSize, &native));
    }

    CfRef<CFTypeRef> operator()(const AxElementRef& named) const
    {
        return CfRef<CFTypeRef>::retain(MacAxElement::native(named));
    }

    CfRef<CFTypeRef> operator()(std::monostate) const { return {}; }
    CfRef<CFTypeRef> operator()(const std::vector<AxElementRef>&) const { return {}; } // no attribute takes a list
};

} // namespace

AxValue axValue(CFTypeRef object)
{
    if (isElement(object)) {
        return element(object);
    }
    if (const auto string = asString(object)) {
        return utf8(string);
    }
    if (const auto boolean = asBoolean(object)) {
        return CFBooleanGetValue(boolean) != 0;
    }
    if (const auto array = asArray(object)) {
        return elements(array);
    }
    if (object != nullptr && CFGetTypeID(object) == AXValueGetTypeID()) {
        return geometry(static_cast<AXValueRef>(object));
    }
    return {};
}

CfRef<CFTypeRef> cfValue(const AxValue& value)
{
    return std::visit(Conversion{}, value);
}

} // namespace quorvel::macos
