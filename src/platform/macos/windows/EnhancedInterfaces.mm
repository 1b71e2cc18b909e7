#include "platform/macos/windows/EnhancedInterfaces.h"

#include <utility>

#include "platform/MainQueue.h"
#include "platform/macos/CfValues.h"
#include "platform/macos/windows/AxCalls.h"

namespace quorvel::macos {

namespace {

const auto enhancedInterface = CFSTR("AXEnhancedUserInterface");

} // namespace

std::expected<void, AxError> EnhancedInterfaces::pauseFor(AXUIElementRef window)
{
    pid_t process = 0;
    if (AXUIElementGetPid(window, &process) != kAXErrorSuccess) {
        return {};
    }
    if (asked.empty()) {
        mainQueue.async(weakly.guard([this] { restore(); }));
    }
    if (!asked.contains(process)) {
        asked.emplace(process, ask(process));
    }
    return asked.at(process).result;
}

EnhancedInterfaces::Answer EnhancedInterfaces::ask(ProcessId process)
{
    auto application = CfRef<AXUIElementRef>::adopt(AXUIElementCreateApplication(process));
    const auto value = readAttribute(application.get(), enhancedInterface, actingTimeout);
    if (!value) {
        const bool isHanging = value.error() == axErrors::cannotComplete;
        return {isHanging ? std::expected<void, AxError>(std::unexpected(value.error()))
                          : std::expected<void, AxError>(),
                {}};
    }
    const auto isEnhanced = asBoolean(value->get());
    if (isEnhanced == nullptr || !CFBooleanGetValue(isEnhanced) ||
        !writeAttribute(application.get(), enhancedInterface, kCFBooleanFalse)) {
        return {};
    }
    return {{}, std::move(application)};
}

void EnhancedInterfaces::restore()
{
    for (const auto& [process, answer] : std::exchange(asked, {})) {
        if (answer.paused) {
            static_cast<void>(writeAttribute(answer.paused.get(), enhancedInterface, kCFBooleanTrue));
        }
    }
}

} // namespace quorvel::macos
