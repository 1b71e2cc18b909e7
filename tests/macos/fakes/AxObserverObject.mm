#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#import "macos/fakes/AxValueObject.h"
#include "macos/fakes/FakeDesktop.h"
#import "macos/fakes/RunLoopSource.h"

using namespace quorvel;
using fakes::as;
using fakes::FakeDesktop;

namespace {

struct Notification {
    QuorvelAxElement* element;
    std::string name;
    std::unique_ptr<AxObserver> observer;
};

} // namespace

@interface QuorvelAxObserver : QuorvelFakeObject {
@public
    ProcessId process;
    AXObserverCallback callback;
    QuorvelRunLoopSource* source;
    std::vector<Notification> notifications;
}
@end

@implementation QuorvelAxObserver

- (void)dealloc
{
    for (const auto& each : notifications) {
        [each.element release];
    }
    [source release];
    [super dealloc];
}

- (void)deliver:(const std::string&)name of:(QuorvelAxElement*)element to:(void*)context
{
    if ([source mode] == nil) {
        return;
    }
    @autoreleasepool {
        [[self retain] autorelease]; // the callback may let go of it
        callback(reinterpret_cast<AXObserverRef>(self),
                 reinterpret_cast<AXUIElementRef>([[element retain] autorelease]),
                 reinterpret_cast<CFStringRef>([NSString stringWithUTF8String:name.c_str()]), context);
    }
}

@end

namespace {

auto find(QuorvelAxObserver* observer, QuorvelAxElement* element, const std::string& name)
{
    return std::ranges::find_if(observer->notifications, [&](const Notification& each) {
        return each.name == name && [each.element isEqual:element];
    });
}

} // namespace

extern "C" {

AXError AXObserverCreate(pid_t process, AXObserverCallback callback, AXObserverRef* result)
{
    // Asked for what it says to the creation only; each notification gets one of its own.
    const auto created = FakeDesktop::current().desktop.accessibility.createObserver(process, [](std::string_view) {});
    if (!created) {
        return static_cast<AXError>(created.error().code);
    }
    fakes::ownReferences(1);
    QuorvelAxObserver* const observer = [[QuorvelAxObserver alloc] init];
    observer->process = FakeDesktop::onDesktop(process);
    observer->callback = callback;
    observer->source = [[QuorvelRunLoopSource alloc] init];
    *result = reinterpret_cast<AXObserverRef>(observer);
    return kAXErrorSuccess;
}

AXError AXObserverAddNotification(AXObserverRef reference, AXUIElementRef watched, CFStringRef nameString,
                                  void* context)
{
    QuorvelAxObserver* const observer = as<QuorvelAxObserver*>(reference);
    QuorvelAxElement* const element = as<QuorvelAxElement*>(watched);
    const std::string name = [as<NSString*>(nameString) UTF8String];
    auto inner = FakeDesktop::current().desktop.accessibility.createObserver(
        observer->process, [observer, element, context](std::string_view heard) {
            [observer deliver:std::string(heard) of:element to:context];
        });
    const auto added = (*inner)->addNotification(element->element, name);
    if (!added) {
        return static_cast<AXError>(added.error().code);
    }
    (*inner)->startDelivery();
    observer->notifications.push_back({[element retain], name, *std::move(inner)});
    return kAXErrorSuccess;
}

AXError AXObserverRemoveNotification(AXObserverRef reference, AXUIElementRef watched, CFStringRef name)
{
    QuorvelAxObserver* const observer = as<QuorvelAxObserver*>(reference);
    const auto found = find(observer, as<QuorvelAxElement*>(watched), [as<NSString*>(name) UTF8String]);
    if (found == observer->notifications.end()) {
        return kAXErrorNotificationUnsupported;
    }
    [found->element release];
    observer->notifications.erase(found);
    return kAXErrorSuccess;
}

CFRunLoopSourceRef AXObserverGetRunLoopSource(AXObserverRef observer)
{
    return reinterpret_cast<CFRunLoopSourceRef>(as<QuorvelAxObserver*>(observer)->source);
}
}
