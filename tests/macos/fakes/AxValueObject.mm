#import "macos/fakes/AxValueObject.h"

#include "macos/fakes/FakeDesktop.h"
#include "platform/simulated/SimulatedAxElement.h"

using namespace quorvel;
using fakes::as;
using fakes::ownReferences;

namespace {

constexpr CFTypeID elementType = 100;
constexpr CFTypeID valueType = 101;

// The name tells the process, also when the window is gone.
ProcessId processOf(const AxElementRef& named)
{
    const auto& name = dynamic_cast<const SimulatedAxElement&>(*named);
    if (name.kind == SimulatedElementKind::application) {
        return static_cast<ProcessId>(name.id);
    }
    const auto* const window = fakes::FakeDesktop::current().desktop.windowServer.window(name.id);
    return window != nullptr ? window->process() : 0;
}

QuorvelAxElement* newElement(const AxElementRef& named)
{
    QuorvelAxElement* const result = [[QuorvelAxElement alloc] init];
    result->element = named;
    result->isApplication = dynamic_cast<const SimulatedAxElement&>(*named).kind == SimulatedElementKind::application;
    result->process = processOf(named);
    result->timeout = 6.0F; // the system's own
    return result;
}

// The object for each kind of value, with a reference for the caller.
struct Creation {
    id operator()(bool value) const { return [[NSNumber numberWithBool:value] retain]; }
    id operator()(const std::string& text) const { return [[NSString alloc] initWithUTF8String:text.c_str()]; }
    id operator()(const AxElementRef& named) const { return newElement(named); }

    id operator()(const AxPoint& point) const
    {
        const CGPoint native{point.x, point.y};
        return as<id>(make(kAXValueTypeCGPoint, &native));
    }

    id operator()(const Size& size) const
    {
        const CGSize native{size.width, size.height};
        return as<id>(make(kAXValueTypeCGSize, &native));
    }

    id operator()(const std::vector<AxElementRef>& named) const
    {
        NSMutableArray* const result = [[NSMutableArray alloc] init];
        for (const auto& each : named) {
            QuorvelAxElement* const member = newElement(each);
            [result addObject:member];
            [member release];
        }
        return result;
    }

    id operator()(std::monostate) const { return [[NSDate alloc] init]; } // a type that nobody asks for

    static QuorvelAxValue* make(AXValueType type, const void* value)
    {
        QuorvelAxValue* const result = [[QuorvelAxValue alloc] init];
        result->type = type;
        if (type == kAXValueTypeCGPoint) {
            result->point = *static_cast<const CGPoint*>(value);
        } else {
            result->size = *static_cast<const CGSize*>(value);
        }
        return result;
    }
};

} // namespace

@implementation QuorvelAxElement

- (CFTypeID)typeId
{
    return elementType;
}

- (BOOL)isEqual:(id)other
{
    return [other isKindOfClass:[QuorvelAxElement class]] &&
           element->isEqual(*static_cast<QuorvelAxElement*>(other)->element);
}

- (NSUInteger)hash
{
    return 0;
}

@end

@implementation QuorvelAxValue

- (CFTypeID)typeId
{
    return valueType;
}

@end

namespace quorvel::fakes {

CFTypeRef createCfValue(const AxValue& value)
{
    ownReferences(1);
    return std::visit(Creation{}, value);
}

AxValue axValueOf(CFTypeRef object)
{
    const id value = as<id>(object);
    if (CFGetTypeID(object) == CFBooleanGetTypeID()) {
        return [value boolValue] != NO;
    }
    if ([value isKindOfClass:[NSString class]]) {
        return std::string([value UTF8String]);
    }
    if ([value isKindOfClass:[QuorvelAxElement class]]) {
        return static_cast<QuorvelAxElement*>(value)->element;
    }
    if ([value isKindOfClass:[QuorvelAxValue class]]) {
        const auto* const geometry = static_cast<QuorvelAxValue*>(value);
        return geometry->type == kAXValueTypeCGPoint ? AxValue(AxPoint{geometry->point.x, geometry->point.y})
                                                     : AxValue(Size{geometry->size.width, geometry->size.height});
    }
    return {};
}

} // namespace quorvel::fakes

extern "C" {

CFTypeID AXUIElementGetTypeID()
{
    return elementType;
}

AXUIElementRef AXUIElementCreateApplication(pid_t process)
{
    ownReferences(1);
    const auto onDesktop = fakes::FakeDesktop::onDesktop(process);
    const auto named = fakes::FakeDesktop::current().desktop.accessibility.applicationElement(onDesktop);
    return reinterpret_cast<AXUIElementRef>(newElement(named));
}

CFTypeID AXValueGetTypeID()
{
    return valueType;
}

AXValueRef AXValueCreate(AXValueType type, const void* value)
{
    ownReferences(1);
    return reinterpret_cast<AXValueRef>(Creation::make(type, value));
}

AXValueType AXValueGetType(AXValueRef value)
{
    return as<QuorvelAxValue*>(value)->type;
}

Boolean AXValueGetValue(AXValueRef reference, AXValueType type, void* result)
{
    const auto* const value = as<QuorvelAxValue*>(reference);
    if (value->type != type) {
        return false;
    }
    if (type == kAXValueTypeCGPoint) {
        *static_cast<CGPoint*>(result) = value->point;
    } else {
        *static_cast<CGSize*>(result) = value->size;
    }
    return true;
}
}
