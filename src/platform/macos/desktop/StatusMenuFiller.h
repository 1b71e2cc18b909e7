#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "platform/StatusBar.h"

// Fills a menu each time before it opens, and hears which of its entries was chosen.
@interface QuorvelStatusMenuFiller : NSObject <NSMenuDelegate> {
    quorvel::Menu content;
    std::function<void(quorvel::MenuCommand)> onCommand;
}

- (void)setMenu:(const quorvel::Menu&)menu onCommand:(std::function<void(quorvel::MenuCommand)>)newOnCommand;

@end
