#include <cstring>

#include <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>

#include "macos/fakes/FakeDesktop.h"
#include "macos/fakes/FakeObject.h"

using quorvel::fakes::as;
using quorvel::fakes::complain;
using quorvel::fakes::ownReferences;

namespace {

enum : CFTypeID {
    stringType = 7,
    dictionaryType = 18,
    arrayType = 19,
    dataType = 20,
    booleanType = 21,
    numberType = 22
};

// Hands the object to a caller who then owns it.
const void* created(id object)
{
    ownReferences(object != nil ? 1 : 0);
    return object;
}

bool isBoolean(id object)
{
    return object == [NSNumber numberWithBool:YES] || object == [NSNumber numberWithBool:NO];
}

} // namespace

const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks{};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks{};

extern "C" {

CFTypeRef CFRetain(CFTypeRef object)
{
    ownReferences(1);
    return [as<id>(object) retain];
}

void CFRelease(CFTypeRef object)
{
    ownReferences(-1);
    if (object == nullptr) {
        complain("CFRelease of null");
    }
    [as<id>(object) release];
}

Boolean CFEqual(CFTypeRef one, CFTypeRef other)
{
    return [as<id>(one) isEqual:as<id>(other)];
}

CFTypeID CFGetTypeID(CFTypeRef reference)
{
    const id object = as<id>(reference);
    if ([object isKindOfClass:[NSString class]]) {
        return stringType;
    }
    if ([object isKindOfClass:[NSDictionary class]]) {
        return dictionaryType;
    }
    if ([object isKindOfClass:[NSArray class]]) {
        return arrayType;
    }
    if ([object isKindOfClass:[NSData class]]) {
        return dataType;
    }
    if ([object isKindOfClass:[NSNumber class]]) {
        return isBoolean(object) ? booleanType : numberType;
    }
    return [object isKindOfClass:[QuorvelFakeObject class]] ? [as<QuorvelFakeObject*>(reference) typeId] : 0;
}

CFTypeID CFStringGetTypeID()
{
    return stringType;
}

CFTypeID CFArrayGetTypeID()
{
    return arrayType;
}

CFTypeID CFDictionaryGetTypeID()
{
    return dictionaryType;
}

CFTypeID CFNumberGetTypeID()
{
    return numberType;
}

CFTypeID CFBooleanGetTypeID()
{
    return booleanType;
}

CFTypeID CFDataGetTypeID()
{
    return dataType;
}

CFStringRef CFStringCreateWithBytes(CFAllocatorRef, const UInt8* bytes, CFIndex count, CFStringEncoding, Boolean)
{
    return static_cast<CFStringRef>(created([[NSString alloc] initWithBytes:bytes
                                                                     length:static_cast<NSUInteger>(count)
                                                                   encoding:NSUTF8StringEncoding]));
}

CFIndex CFArrayGetCount(CFArrayRef array)
{
    return static_cast<CFIndex>([as<NSArray*>(array) count]);
}

const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index)
{
    return [as<NSArray*>(array) objectAtIndex:static_cast<NSUInteger>(index)];
}

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values, CFIndex count,
                                   const CFDictionaryKeyCallBacks*, const CFDictionaryValueCallBacks*)
{
    NSMutableDictionary* const dictionary = [[NSMutableDictionary alloc] init];
    for (CFIndex index = 0; index < count; ++index) {
        [dictionary setObject:as<id>(values[index]) forKey:as<id>(keys[index])];
    }
    return static_cast<CFDictionaryRef>(created(dictionary));
}

const void* CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key)
{
    return [as<NSDictionary*>(dictionary) objectForKey:as<id>(key)];
}

Boolean CFBooleanGetValue(CFBooleanRef boolean)
{
    return [as<NSNumber*>(boolean) boolValue];
}

Boolean CFNumberIsFloatType(CFNumberRef number)
{
    return std::strchr("fd", *[as<NSNumber*>(number) objCType]) != nullptr;
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value)
{
    NSNumber* const object = as<NSNumber*>(number);
    switch (type) {
    case kCFNumberSInt32Type:
        *static_cast<SInt32*>(value) = [object intValue];
        break;
    case kCFNumberSInt64Type:
        *static_cast<std::int64_t*>(value) = [object longLongValue];
        break;
    case kCFNumberFloat64Type:
        *static_cast<double*>(value) = [object doubleValue];
        break;
    }
    return true;
}

const UInt8* CFDataGetBytePtr(CFDataRef data)
{
    return static_cast<const UInt8*>([as<NSData*>(data) bytes]);
}
}
