#pragma once

#include <ApplicationServices/ApplicationServices.h>

#include "platform/Accessibility.h"
#include "platform/macos/CfRef.h"

namespace quorvel::macos {

class MacAxObserver final : public AxObserver {
public:
    using Callback = std::function<void(std::string_view name)>;

    static std::expected<std::unique_ptr<AxObserver>, AxError> create(ProcessId process, Callback callback);

    explicit MacAxObserver(Callback callback) : callback(std::move(callback)) {}
    MacAxObserver(const MacAxObserver&) = delete;
    MacAxObserver& operator=(const MacAxObserver&) = delete;
    ~MacAxObserver() override;

    std::expected<void, AxError> addNotification(const AxElementRef& element, std::string_view name) override;
    std::expected<void, AxError> removeNotification(const AxElementRef& element, std::string_view name) override;
    void startDelivery() override;

private:
    static void notified(AXObserverRef observer, AXUIElementRef element, CFStringRef name, void* context);

    CfRef<AXObserverRef> observer;
    Callback callback;
};

} // namespace quorvel::macos
