#pragma once

#include <concepts>
#include <utility>

#include <CoreFoundation/CoreFoundation.h>

namespace quorvel::macos {

// Owns one reference to a Core Foundation object: CfRef<CFStringRef>.
template <class T>
class CfRef {
public:
    CfRef() = default;
    CfRef(const CfRef& other) : object(retained(other.object)) {}
    CfRef(CfRef&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
    // The same object as one of a more general type: a CFStringRef is a CFTypeRef.
    template <class Special>
        requires std::convertible_to<Special, T>
    CfRef(CfRef<Special> other) noexcept : object(other.release())
    {}
    ~CfRef()
    {
        if (object != nullptr) {
            CFRelease(object);
        }
    }

    CfRef& operator=(CfRef other) noexcept
    {
        std::swap(object, other.object);
        return *this;
    }

    // For what a function with Create or Copy in its name returned, which is the caller's.
    static CfRef adopt(T object)
    {
        CfRef result;
        result.object = object;
        return result;
    }

    // For what any other function returned, which is somebody else's.
    static CfRef retain(T object) { return adopt(retained(object)); }

    T get() const { return object; }

    // Hands the reference to the caller.
    T release() { return std::exchange(object, nullptr); }

    explicit operator bool() const { return object != nullptr; }

private:
    static T retained(T object)
    {
        if (object != nullptr) {
            CFRetain(object);
        }
        return object;
    }

    T object = nullptr;
};

} // namespace quorvel::macos
