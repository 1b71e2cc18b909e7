#include "platform/macos/windows/EnhancedInterfaces.h"

#include <utility>

#include "platform/MainQueue.h"
#include "platform/macos/CfValues.h"
#include "platform/macos/windows/AxCalls.h"

namespace quorvel::macos {

namespace {

const auto enhancedInterface = CFSTR("AXEnhancedUserInterface");

bool isEnhanced(AXUIElementRef application)
{
    const auto value = readAttribute(application, enhancedInterface);
    const auto boolean = value ? asBoolean(value->get()) : nullptr;
    return boolean != nullptr && CFBooleanGetValue(boolean);
}

} // namespace

void EnhancedInterfaces::pauseFor(AXUIElementRef window)
{
    pid_t process = 0;
    if (AXUIElementGetPid(window, &process) != kAXErrorSuccess || asked.contains(process)) {
        return;
    }
    if (asked.empty()) {
        mainQueue.async(weakly.guard([this] { restore(); }));
    }
    auto& paused = asked[process];
    auto application = CfRef<AXUIElementRef>::adopt(AXUIElementCreateApplication(process));
    if (isEnhanced(application.get()) && writeAttribute(application.get(), enhancedInterface, kCFBooleanFalse)) {
        paused = std::move(application);
    }
}

void EnhancedInterfaces::restore()
{
    for (const auto& [process, application] : std::exchange(asked, {})) {
        if (application) {
            static_cast<void>(writeAttribute(application.get(), enhancedInterface, kCFBooleanTrue));
        }
    }
}

} // namespace quorvel::macos
