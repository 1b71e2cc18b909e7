#pragma once

#include <utility>

#import <Foundation/Foundation.h>

namespace quorvel::macos {

// Owns one reference to an Objective-C object: Retained<NSWindow*>. Nothing else retains or releases.
template <class T>
class Retained {
public:
    Retained() = default;
    Retained(const Retained& other) : object([other.object retain]) {}
    Retained(Retained&& other) noexcept : object(std::exchange(other.object, nil)) {}
    ~Retained() { [object release]; }

    Retained& operator=(Retained other) noexcept
    {
        std::swap(object, other.object);
        return *this;
    }

    // For what alloc, new, copy or mutableCopy returned, which is the caller's.
    static Retained adopt(T object)
    {
        Retained result;
        result.object = object;
        return result;
    }

    // For what any other method returned, which is somebody else's.
    static Retained retain(T object) { return adopt([object retain]); }

    T get() const { return object; }
    explicit operator bool() const { return object != nil; }

private:
    T object = nil;
};

} // namespace quorvel::macos
