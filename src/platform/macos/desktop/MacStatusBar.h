#pragma once

#import <Foundation/Foundation.h>

#include "platform/StatusBar.h"
#include "platform/macos/Retained.h"

namespace quorvel::macos {

// Items of the menu bar. Their images are those of the bundle.
class MacStatusBar final : public StatusBar {
public:
    explicit MacStatusBar(NSBundle* bundle) : bundle(Retained<NSBundle*>::retain(bundle)) {}

    std::unique_ptr<StatusItem> createItem() override;

private:
    Retained<NSBundle*> bundle;
};

} // namespace quorvel::macos
