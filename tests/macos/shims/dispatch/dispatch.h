#pragma once

// The main queue only; its clock is that of the desktop in memory.

#include <cstdint>

#define DISPATCH_TIME_NOW (0ULL)
#define NSEC_PER_SEC (1000000000ULL)

using dispatch_time_t = std::uint64_t;
using dispatch_queue_t = struct FakeDispatchQueue*;
using dispatch_block_t = void (^)();

extern "C" {
dispatch_queue_t dispatch_get_main_queue();
dispatch_time_t dispatch_time(dispatch_time_t when, std::int64_t delta);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
}
