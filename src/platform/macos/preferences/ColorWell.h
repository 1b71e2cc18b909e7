#pragma once

#import <AppKit/AppKit.h>

// A colour well whose colour panel has alpha.
@interface QuorvelColorWell : NSColorWell
@end
