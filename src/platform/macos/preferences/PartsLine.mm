#include "platform/macos/preferences/PartsLine.h"

#include <algorithm>
#include <cmath>

#include "platform/macos/preferences/PaneMetrics.h"

namespace quorvel::macos {

PartsLine::PartsLine(std::initializer_list<NSView*> parts)
{
    for (NSView* const part : parts) {
        box.add(part);
    }
    arrange();
}

void PartsLine::arrange() const
{
    CGFloat height = 0.0;
    for (NSView* part in [box.view() subviews]) {
        height = std::max(height, [part frame].size.height);
    }
    CGFloat x = 0.0;
    for (NSView* part in [box.view() subviews]) {
        const NSSize size = [part frame].size;
        [part setFrameOrigin:NSMakePoint(x, std::round((height - size.height) / 2.0))];
        x += size.width + paneMetrics::partSpacing;
    }
    [box.view() setFrameSize:NSMakeSize(std::max(0.0, x - paneMetrics::partSpacing), height)];
}

} // namespace quorvel::macos
