#pragma once

#import <Foundation/Foundation.h>

#include "base/Geometry.h"

namespace quorvel::macos {

inline NSRect nsRect(const ScreenRect& rect)
{
    return NSMakeRect(rect.x, rect.y, rect.width, rect.height);
}

inline ScreenRect screenRect(NSRect rect)
{
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

} // namespace quorvel::macos
