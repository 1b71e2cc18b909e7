#pragma once

#import <AppKit/AppKit.h>

#include "platform/StatusBar.h"
#include "platform/macos/Retained.h"
#include "platform/macos/desktop/StatusMenuFiller.h"

namespace quorvel::macos {

class MacStatusItem final : public StatusItem {
public:
    explicit MacStatusItem(Retained<NSBundle*> bundle);
    MacStatusItem(const MacStatusItem&) = delete;
    MacStatusItem& operator=(const MacStatusItem&) = delete;
    ~MacStatusItem() override;

    bool hasButton() const override;
    void setImage(const Image& image) override;
    void setMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) override;

private:
    Retained<NSBundle*> bundle;
    Retained<NSStatusItem*> item;
    Retained<NSMenu*> shownMenu;
    Retained<QuorvelStatusMenuFiller*> filler;
};

} // namespace quorvel::macos
