#include "platform/x11/qt/QtToolkit.h"

// The module's one door; its type is ToolkitEntry.
extern "C" __attribute__((visibility("default"))) quorvel::x11::ToolkitUi*
quorvelCreateToolkit(const char* displayName, const quorvel::x11::ToolkitHost& host)
{
    return new quorvel::x11::QtToolkit(displayName, host);
}
