#pragma once

#import <Foundation/Foundation.h>

#include "platform/Alerts.h"
#include "platform/macos/Retained.h"

namespace quorvel::macos {

// Alerts in windows of their own. Icons are images of the bundle.
class MacAlerts final : public Alerts {
public:
    explicit MacAlerts(NSBundle* bundle) : bundle(Retained<NSBundle*>::retain(bundle)) {}

    std::size_t runModal(const Alert& alert) override;

private:
    Retained<NSBundle*> bundle;
};

} // namespace quorvel::macos
