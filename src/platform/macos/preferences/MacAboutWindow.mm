#include "platform/macos/preferences/MacAboutWindow.h"

#include <algorithm>

#include "platform/macos/Strings.h"
#include "platform/macos/preferences/PaneLabels.h"
#include "platform/macos/preferences/PaneMetrics.h"
#include "platform/macos/preferences/WindowShowing.h"

namespace quorvel::macos {

namespace {

constexpr double imageSide = 128.0;
constexpr double sideMargin = 80.0;
constexpr double verticalMargin = 40.0; // leaves room for the title bar, which lies over the content

} // namespace

MacAboutWindow::MacAboutWindow(const AboutContent& content)
    : window(Retained<QuorvelShellWindow*>::adopt([[QuorvelShellWindow alloc]
          initWithContentRect:NSMakeRect(0.0, 0.0, imageSide, imageSide)
                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable | NSWindowStyleMaskFullSizeContentView
                      backing:NSBackingStoreBuffered
                        defer:YES]))
{
    fill(content);
    [window.get() setReleasedWhenClosed:NO];
    [window.get() setTitle:nsString(content.windowTitle)];
    [window.get() setTitlebarAppearsTransparent:YES];
    [window.get() setMovableByWindowBackground:YES];
    [window.get() setEscape:[view = window.get()] { [view performClose:nil]; }];
    [window.get() setContentSize:box.size()];
    [window.get() setContentView:box.view()];
}

MacAboutWindow::~MacAboutWindow()
{
    [window.get() setEscape:{}];
    [window.get() close];
}

void MacAboutWindow::show()
{
    showInTheMiddle(window.get());
}

void MacAboutWindow::fill(const AboutContent& content) const
{
    const auto image =
        Retained<NSImageView*>::adopt([[NSImageView alloc] initWithFrame:NSMakeRect(0.0, 0.0, imageSide, imageSide)]);
    [image.get() setImage:[NSImage imageNamed:nsString(content.imageName)]];
    [image.get() setImageScaling:NSImageScaleProportionallyUpOrDown];
    [image.get() setAccessibilityLabel:nsString(content.name)];
    const auto name = createHeading(content.name);
    const auto version = createLabel(content.version);
    [version.get() setTextColor:[NSColor secondaryLabelColor]];

    double width = 0.0;
    for (NSView* const part :
         {static_cast<NSView*>(image.get()), static_cast<NSView*>(name.get()), static_cast<NSView*>(version.get())}) {
        width = std::max(width, [part frame].size.width + 2.0 * sideMargin);
        box.add(part);
    }
    double y = verticalMargin;
    for (NSView* part in [box.view() subviews]) {
        const NSSize size = [part frame].size;
        [part setFrameOrigin:NSMakePoint((width - size.width) / 2.0, y)];
        y += size.height + paneMetrics::titleSpacing;
    }
    [box.view() setFrameSize:NSMakeSize(width, y - paneMetrics::titleSpacing + verticalMargin)];
}

} // namespace quorvel::macos
