#include "macos/compat/Blocks.h"

#include <cstring>
#include <initializer_list>

#include <Block.h>
#import <Foundation/Foundation.h>

extern "C" {
extern void* _NSConcreteStackBlock[32];
extern void* _NSConcreteMallocBlock[32];
extern void* _NSConcreteGlobalBlock[32];
}

@interface QuorvelBlock : NSObject
@end

@implementation QuorvelBlock

- (id)copy
{
    return static_cast<id>(_Block_copy(self));
}

- (id)copyWithZone:(NSZone*)zone
{
    return static_cast<id>(_Block_copy(self));
}

- (id)retain
{
    return static_cast<id>(_Block_copy(self));
}

- (oneway void)release
{
    _Block_release(self);
}

- (id)autorelease
{
    [NSAutoreleasePool addObject:self];
    return self;
}

- (NSUInteger)retainCount
{
    return 1;
}

@end

namespace quorvel::fakes {

void makeBlocksObjects()
{
    // A message initialises the class, whose record then goes over the run-time's empty ones.
    const Class blockClass = [QuorvelBlock class];
    constexpr auto wordsOfAClass = 17;
    for (void** record : {_NSConcreteStackBlock, _NSConcreteMallocBlock, _NSConcreteGlobalBlock}) {
        std::memcpy(record, reinterpret_cast<const void*>(blockClass), wordsOfAClass * sizeof(void*));
    }
}

} // namespace quorvel::fakes
