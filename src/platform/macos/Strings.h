#pragma once

#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace quorvel::macos {

// The same text as an object of the surrounding autorelease pool. What is no UTF-8 is replaced.
NSString* nsString(std::string_view text);

// Empty for nil.
std::string utf8(NSString* string);

} // namespace quorvel::macos
