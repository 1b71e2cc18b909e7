#pragma once

#include "platform/Accessibility.h"
#include "platform/macos/CfRef.h"

namespace quorvel::macos {

// The port's value for the system's. Elements in it keep theirs alive.
AxValue axValue(CFTypeRef object);

// The system's value for the port's; null for a value that cannot be written.
CfRef<CFTypeRef> cfValue(const AxValue& value);

} // namespace quorvel::macos
