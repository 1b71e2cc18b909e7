#include "platform/macos/preferences/LayoutCellView.h"

#include <algorithm>
#include <cmath>

#include "platform/macos/Strings.h"

using namespace quorvel;
using namespace quorvel::macos;

namespace {

constexpr double spacing = 8.0;
constexpr double digitWidth = 30.0;

void place(NSView* view, double x, double width, double room)
{
    const double height = [view frame].size.height;
    [view setFrame:NSMakeRect(x, std::round((room - height) / 2.0), std::max(0.0, width), height)];
}

} // namespace

@implementation QuorvelLayoutCellView

+ (instancetype)viewForCell:(const LayoutCell&)cell
{
    QuorvelLayoutCellView* const view = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    [view fillFrom:cell];
    return view;
}

- (void)fillFrom:(const LayoutCell&)cell
{
    layoutID = cell.layoutID;
    const NSSize size = NSMakeSize(cell.thumbnailSize.width, cell.thumbnailSize.height);
    thumbnail = Retained<QuorvelThumbnailView*>::retain([QuorvelThumbnailView thumbnailOfSize:size
                                                                                      content:cell.thumbnail]);
    name = createLabel(cell.name);
    [self addSubview:thumbnail.get()];
    [self addSubview:name.get()];
    [self setTextField:name.get()];
    [self setToolTip:nsString(cell.name)];
    [self layOut];
}

- (NSTextField*)addDigitFieldNamed:(NSString*)accessibleName toolTip:(NSString*)toolTip
{
    digitField = Retained<NSTextField*>::adopt([[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, digitWidth, 22)]);
    NSTextField* const field = digitField.get();
    [field setIdentifier:nsString(layoutID)];
    [field setAlignment:NSTextAlignmentCenter];
    [field setFont:[NSFont monospacedDigitSystemFontOfSize:[NSFont systemFontSize] weight:NSFontWeightSemibold]];
    [field setToolTip:toolTip];
    [field setAccessibilityLabel:accessibleName];
    [field setAccessibilityHelp:toolTip];
    [self addSubview:field];
    [self layOut];
    return field;
}

- (void)setFrameSize:(NSSize)size
{
    [super setFrameSize:size];
    [self layOut];
}

- (void)layOut
{
    const NSSize size = [self bounds].size;
    const double pictureWidth = [thumbnail.get() frame].size.width;
    // The picture's shadow reaches into the spacing.
    const double overhang = (pictureWidth - [thumbnail.get() pictureWidth]) / 2.0;
    place(thumbnail.get(), spacing - overhang, pictureWidth, size.height);
    const double nameX = 2.0 * spacing + [thumbnail.get() pictureWidth];
    double right = size.width - spacing;
    if (digitField) {
        place(digitField.get(), right - digitWidth, digitWidth, size.height);
        right -= digitWidth + spacing;
    }
    place(name.get(), nameX, right - nameX, size.height);
}

@end
