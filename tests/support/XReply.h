#pragma once

#include <cstdlib>
#include <memory>

namespace quorvel::xtest {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};

// Owns what xcb hands out: replies, events and errors.
template <class T>
using XReply = std::unique_ptr<T, FreeMemory>;

} // namespace quorvel::xtest
