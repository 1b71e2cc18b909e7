#pragma once

#include_next <AppKit/AppKit.h>
#import <Foundation/Foundation.h>

// GNUstep's headers define them again.
#undef YES
#undef NO
#define YES __objc_yes
#define NO __objc_no

#import <AppKit/Controls.h>
#import <AppKit/Desktop.h>
#import <AppKit/Events.h>
#import <AppKit/StatusBar.h>
#import <AppKit/Windows.h>
