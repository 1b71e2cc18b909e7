#include "macos/fakes/FakeObject.h"

@implementation QuorvelFakeObject

- (CFTypeID)typeId
{
    return 0;
}

@end
