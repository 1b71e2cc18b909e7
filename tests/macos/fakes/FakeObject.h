#pragma once

#include <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>

// An object of the system's C interfaces that Foundation does not have.
@interface QuorvelFakeObject : NSObject

@property(nonatomic, readonly) CFTypeID typeId;

@end

namespace quorvel::fakes {

// The Objective-C object that a reference of a C interface is.
template <class T>
T as(const void* reference)
{
    return static_cast<T>(const_cast<void*>(reference));
}

} // namespace quorvel::fakes
