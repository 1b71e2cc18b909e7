#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Subscription.h"
#include "platform/Accessibility.h"

namespace quorvel::x11 {

class ClientWindows;
class WindowWatcher;

class X11AxObserver : public AxObserver {
public:
    X11AxObserver(ClientWindows& windows, WindowWatcher& watcher, std::function<void(std::string_view name)> callback);

    std::expected<void, AxError> addNotification(const AxElementRef& element, std::string_view name) override;
    std::expected<void, AxError> removeNotification(const AxElementRef& element, std::string_view name) override;
    void startDelivery() override;

private:
    // Outlives the observer where the callback destroys it.
    struct Delivery {
        std::function<void(std::string_view name)> callback;
        bool isStarted = false;
    };

    struct Registration {
        AxElementRef element;
        std::string name;
        Subscription watch;
    };

    ClientWindows& windows;
    WindowWatcher& watcher;
    std::shared_ptr<Delivery> delivery;
    std::vector<Registration> registrations;
};

} // namespace quorvel::x11
