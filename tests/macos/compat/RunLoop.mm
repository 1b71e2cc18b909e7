// What the run loop does of itself: its time is that of the desktop in memory.

#include <chrono>
#include <memory>
#include <utility>

#include <Block.h>
#include <CoreFoundation/CoreFoundation.h>

#include "macos/fakes/FakeDesktop.h"
#include "macos/fakes/FakeObject.h"

using namespace quorvel;
using Handler = void (^)(CFRunLoopTimerRef);

@interface QuorvelTimer : QuorvelFakeObject {
@public
    std::shared_ptr<void> handler;
    CFAbsoluteTime fireDate;
}
@end

@implementation QuorvelTimer
@end

namespace {

template <class Block>
std::shared_ptr<void> copied(Block block)
{
    return {_Block_copy(block), [](void* each) { _Block_release(each); }};
}

SimulatedMainQueue& queue()
{
    return fakes::FakeDesktop::current().desktop.mainQueue;
}

void checkMode(const void* mode)
{
    if (![fakes::as<NSString*>(mode) isEqual:fakes::as<NSString*>(kCFRunLoopCommonModes)]) {
        fakes::complain("Work that stands still while a menu is open");
    }
}

} // namespace

extern "C" {

// A turn of the loop takes all blocks that there are: a loop inside one of them does not get at the others.
void CFRunLoopPerformBlock(CFRunLoopRef, CFTypeRef mode, void (^block)())
{
    checkMode(mode);
    auto& blocks = fakes::FakeDesktop::current().runLoopBlocks;
    if (blocks.empty()) {
        queue().async([&blocks] {
            for (const auto& each : std::exchange(blocks, {})) {
                reinterpret_cast<void (^)()>(each.get())();
            }
        });
    }
    blocks.push_back(copied(block));
}

void CFRunLoopWakeUp(CFRunLoopRef) {}

CFAbsoluteTime CFAbsoluteTimeGetCurrent()
{
    return queue().now().count();
}

CFRunLoopTimerRef CFRunLoopTimerCreateWithHandler(CFAllocatorRef, CFAbsoluteTime fireDate, CFTimeInterval,
                                                  CFOptionFlags, CFIndex, Handler handler)
{
    fakes::ownReferences(1);
    QuorvelTimer* const timer = [[QuorvelTimer alloc] init];
    timer->handler = copied(handler);
    timer->fireDate = fireDate;
    return reinterpret_cast<CFRunLoopTimerRef>(timer);
}

void CFRunLoopAddTimer(CFRunLoopRef, CFRunLoopTimerRef timer, CFRunLoopMode mode)
{
    checkMode(mode);
    const auto* const added = fakes::as<QuorvelTimer*>(timer);
    queue().after(std::chrono::duration<double>(added->fireDate - CFAbsoluteTimeGetCurrent()),
                  [handler = added->handler] { reinterpret_cast<Handler>(handler.get())(nullptr); });
}
}
