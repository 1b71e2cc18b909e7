#include <chrono>
#include <memory>

#include <Block.h>
#include <dispatch/dispatch.h>

#include "macos/fakes/FakeDesktop.h"

namespace {

std::function<void()> work(dispatch_block_t block)
{
    return [copy = std::shared_ptr<void>(_Block_copy(block), [](void* each) { _Block_release(each); })] {
        reinterpret_cast<dispatch_block_t>(copy.get())();
    };
}

} // namespace

extern "C" {

dispatch_queue_t dispatch_get_main_queue()
{
    return nullptr;
}

dispatch_time_t dispatch_time(dispatch_time_t when, std::int64_t delta)
{
    return when + static_cast<dispatch_time_t>(delta);
}

void dispatch_async(dispatch_queue_t, dispatch_block_t block)
{
    quorvel::fakes::FakeDesktop::current().desktop.mainQueue.async(work(block));
}

void dispatch_after(dispatch_time_t when, dispatch_queue_t, dispatch_block_t block)
{
    quorvel::fakes::FakeDesktop::current().desktop.mainQueue.after(std::chrono::nanoseconds(when), work(block));
}
}
