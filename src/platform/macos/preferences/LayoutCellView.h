#pragma once

#include <string>

#import <AppKit/AppKit.h>

#include "platform/LayoutsPaneModel.h"
#include "platform/macos/Retained.h"
#include "platform/macos/preferences/PaneLabels.h"
#include "platform/macos/preferences/ThumbnailView.h"

// A layout in a table: its picture, its name, and in the table of selected ones its digit.
@interface QuorvelLayoutCellView : NSTableCellView {
    std::string layoutID;
    quorvel::macos::Retained<QuorvelThumbnailView*> thumbnail;
    quorvel::macos::Label name;
    quorvel::macos::Retained<NSTextField*> digitField;
}

+ (instancetype)viewForCell:(const quorvel::LayoutCell&)cell;

// A field at the trailing edge whose identifier is that of the layout.
- (NSTextField*)addDigitFieldNamed:(NSString*)accessibleName toolTip:(NSString*)toolTip;

@end
