#pragma once

#import <Foundation/Foundation.h>

namespace quorvel::fakes {

// What is left to a pool goes before whatever was declared before this.
class Pool {
public:
    Pool() : pool([[NSAutoreleasePool alloc] init]) {}
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;
    ~Pool() { [pool release]; }

private:
    NSAutoreleasePool* pool;
};

} // namespace quorvel::fakes
