#include <ApplicationServices/ApplicationServices.h>

#import "macos/fakes/AxValueObject.h"
#include "macos/fakes/FakeDesktop.h"

using namespace quorvel;
using fakes::as;
using fakes::FakeDesktop;

namespace {

constexpr std::string_view enhancedInterface = "AXEnhancedUserInterface";

SimulatedAccessibility& accessibility()
{
    return FakeDesktop::current().desktop.accessibility;
}

std::string text(CFStringRef string)
{
    return [as<NSString*>(string) UTF8String];
}

template <class T>
AXError status(const QuorvelAxElement* element, const std::expected<T, AxError>& result)
{
    if (result) {
        return kAXErrorSuccess;
    }
    if (result.error() == axErrors::cannotComplete) {
        FakeDesktop::current().secondsWaited += element->timeout;
    }
    return static_cast<AXError>(result.error().code);
}

// Of an application; null where it knows no such attribute.
bool* enhancedInterfaceOf(const QuorvelAxElement* element)
{
    auto& known = FakeDesktop::current().enhancedInterfaces;
    const auto entry = known.find(element->process);
    return element->isApplication && entry != known.end() ? &entry->second : nullptr;
}

} // namespace

extern "C" {

Boolean AXIsProcessTrusted()
{
    return FakeDesktop::current().desktop.permissions.isGranted(Permission::accessibility);
}

Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options)
{
    const id prompt = as<id>(CFDictionaryGetValue(options, kAXTrustedCheckOptionPrompt));
    if (prompt == nil || [prompt boolValue]) {
        fakes::complain("The system's own prompt for Accessibility");
    }
    FakeDesktop::current().desktop.permissions.request(Permission::accessibility);
    return AXIsProcessTrusted();
}

AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float seconds)
{
    as<QuorvelAxElement*>(element)->timeout = seconds;
    return kAXErrorSuccess;
}

AXError AXUIElementCopyAttributeValue(AXUIElementRef reference, CFStringRef name, CFTypeRef* value)
{
    const auto* const element = as<QuorvelAxElement*>(reference);
    const auto attribute = text(name);
    if (attribute == enhancedInterface && enhancedInterfaceOf(element) != nullptr) {
        *value = fakes::createCfValue(*enhancedInterfaceOf(element));
        return kAXErrorSuccess;
    }
    const auto result = accessibility().copyAttribute(element->element, attribute);
    if (result) {
        *value = fakes::createCfValue(*result);
    }
    return status(element, result);
}

AXError AXUIElementSetAttributeValue(AXUIElementRef reference, CFStringRef name, CFTypeRef value)
{
    const auto* const element = as<QuorvelAxElement*>(reference);
    const auto attribute = text(name);
    if (auto* const isEnhanced = enhancedInterfaceOf(element);
        attribute == enhancedInterface && isEnhanced != nullptr) {
        *isEnhanced = CFBooleanGetValue(static_cast<CFBooleanRef>(value));
        FakeDesktop::current().desktop.journal.record("AXEnhancedUserInterface = {}", *isEnhanced);
        return kAXErrorSuccess;
    }
    return status(element, accessibility().setAttribute(element->element, attribute, fakes::axValueOf(value)));
}

AXError AXUIElementPerformAction(AXUIElementRef reference, CFStringRef name)
{
    const auto* const element = as<QuorvelAxElement*>(reference);
    return status(element, accessibility().performAction(element->element, text(name)));
}

AXError AXUIElementGetPid(AXUIElementRef element, pid_t* process)
{
    *process = FakeDesktop::onSystem(as<QuorvelAxElement*>(element)->process);
    return kAXErrorSuccess;
}
}
