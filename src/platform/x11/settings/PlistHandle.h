#pragma once

#include <memory>

#include <plist/plist.h>

namespace quorvel::x11 {

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};

// Owns a value of libplist with everything in it.
using PlistHandle = std::unique_ptr<void, PlistDeleter>;

} // namespace quorvel::x11
