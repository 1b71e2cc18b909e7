#pragma once

#include_next <Foundation/Foundation.h>

// GNUstep's are plain numbers, from which @YES cannot be made.
#undef YES
#undef NO
#define YES __objc_yes
#define NO __objc_no
