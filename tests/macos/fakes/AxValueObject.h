#pragma once

#include <ApplicationServices/ApplicationServices.h>

#import "macos/fakes/FakeObject.h"
#include "platform/Accessibility.h"

// An AXUIElement: a name of the desktop in memory, and how long calls with it may wait.
@interface QuorvelAxElement : QuorvelFakeObject {
@public
    quorvel::AxElementRef element;
    bool isApplication;
    quorvel::ProcessId process;
    float timeout; // seconds
}
@end

// An AXValue.
@interface QuorvelAxValue : QuorvelFakeObject {
@public
    AXValueType type;
    CGPoint point;
    CGSize size;
}
@end

namespace quorvel::fakes {

// A value of the desktop in memory as the system hands it out, owned by whoever asked.
CFTypeRef createCfValue(const AxValue& value);

// The reverse.
AxValue axValueOf(CFTypeRef object);

} // namespace quorvel::fakes
