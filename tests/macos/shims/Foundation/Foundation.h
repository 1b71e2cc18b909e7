#pragma once

#include_next <Foundation/Foundation.h>

// GNUstep's are plain numbers, from which @YES cannot be made.
#undef YES
#undef NO
#define YES __objc_yes
#define NO __objc_no

// GNUstep's writes whole reals as integers. This one keeps its values as long as the desktop in memory, and tells of
// each change whoever observes the key.
#define NSUserDefaults QuorvelUserDefaults
@interface QuorvelUserDefaults : NSObject {
    NSMutableDictionary* values;
    NSMutableArray* observations;
}

+ (QuorvelUserDefaults*)standardUserDefaults;

- (id)objectForKey:(NSString*)key;
- (void)setObject:(id)object forKey:(NSString*)key;
- (void)removeObjectForKey:(NSString*)key;

@end
