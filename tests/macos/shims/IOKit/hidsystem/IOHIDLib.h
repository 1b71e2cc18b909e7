#pragma once

enum IOHIDRequestType { kIOHIDRequestTypePostEvent, kIOHIDRequestTypeListenEvent };
enum IOHIDAccessType { kIOHIDAccessTypeGranted, kIOHIDAccessTypeDenied, kIOHIDAccessTypeUnknown };

extern "C" {
IOHIDAccessType IOHIDCheckAccess(IOHIDRequestType type);
bool IOHIDRequestAccess(IOHIDRequestType type);
}
