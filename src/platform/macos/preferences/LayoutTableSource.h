#pragma once

#import <AppKit/AppKit.h>

namespace quorvel::macos {
class LayoutTable;
}

// What a table asks for its rows, its drags and its drops.
@interface QuorvelLayoutTableSource : NSObject <NSTableViewDataSource, NSTableViewDelegate> {
    quorvel::macos::LayoutTable* table; // null once that has gone
}

- (void)setTable:(quorvel::macos::LayoutTable*)newTable;

@end
