#include "platform/macos/preferences/MacPreferencesWindow.h"

#include <variant>

#include "platform/macos/Strings.h"
#include "platform/macos/preferences/FormPane.h"
#include "platform/macos/preferences/LayoutsPane.h"
#include "platform/macos/preferences/WindowShowing.h"

namespace quorvel::macos {

namespace {

NSSize nsSize(Size size)
{
    return NSMakeSize(size.width, size.height);
}

void keepAtLeast(NSView* view, NSLayoutAttribute side, double length)
{
    [view addConstraint:[NSLayoutConstraint constraintWithItem:view
                                                     attribute:side
                                                     relatedBy:NSLayoutRelationGreaterThanOrEqual
                                                        toItem:nil
                                                     attribute:NSLayoutAttributeNotAnAttribute
                                                    multiplier:1.0
                                                      constant:length]];
}

std::unique_ptr<Pane> createPane(const PreferencesTab& tab, MainQueue& mainQueue, double narrowest)
{
    if (auto* const* const form = std::get_if<FormModel*>(&tab.pane)) {
        return std::make_unique<FormPane>(**form, mainQueue, narrowest);
    }
    return std::make_unique<LayoutsPane>(*std::get<LayoutsPaneModel*>(tab.pane), mainQueue);
}

} // namespace

MacPreferencesWindow::MacPreferencesWindow(PreferencesWindowModel& model, MainQueue& mainQueue)
    : model(model),
      tabs(Retained<QuorvelPreferencesTabs*>::adopt([[QuorvelPreferencesTabs alloc] initWithNibName:nil bundle:nil])),
      events(Retained<QuorvelWindowEvents*>::adopt([[QuorvelWindowEvents alloc] init])),
      tellingOfActivity(mainQueue, [this] {
          if ([window.get() isVisible]) {
              this->model.windowDidBecomeActive();
          }
      })
{
    const auto content = model.content();
    addTabs(content, mainQueue);
    window = Retained<QuorvelShellWindow*>::retain(
        static_cast<QuorvelShellWindow*>([QuorvelShellWindow windowWithContentViewController:tabs.get()]));
    dress(content);
    [tabs.get() setChosen:[this](std::size_t tab) { this->model.selectTab(tab); }];
    [events.get() setBecameKey:[this] { tellingOfActivity.schedule(); } willClose:[this] { willClose(); }];
    [window.get() setDelegate:events.get()];
}

MacPreferencesWindow::~MacPreferencesWindow()
{
    if ([window.get() isVisible]) {
        [window.get() close];
    }
    [window.get() setDelegate:nil];
    [tabs.get() setChosen:{}];
}

void MacPreferencesWindow::show()
{
    showInTheMiddle(window.get());
    [[window.get() toolbar] setDisplayMode:NSToolbarDisplayModeIconAndLabel]; // which it has from now on
}

NotificationObject MacPreferencesWindow::notificationObject() const
{
    return reinterpret_cast<NotificationObject>(window.get());
}

void MacPreferencesWindow::addTabs(const PreferencesWindowContent& content, MainQueue& mainQueue)
{
    [tabs.get() setTabStyle:NSTabViewControllerTabStyleToolbar];
    [tabs.get() setTransitionOptions:NSViewControllerTransitionNone];
    // The window's title is bound to this one.
    [tabs.get() setCanPropagateSelectedChildViewControllerTitle:NO];
    [tabs.get() setTitle:nsString(content.title)];
    for (const auto& tab : content.tabs) {
        panes.push_back(createPane(tab, mainQueue, content.minimumSize.width));
        [panes.back()->view() setFrameSize:nsSize(content.size)];
        [panes.back()->view() setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
        [tabs.get() addTabWithTitle:nsString(tab.title) symbol:nsString(tab.symbol) view:panes.back()->view()];
    }
    [tabs.get() setSelectedTabViewItemIndex:static_cast<NSInteger>(model.selectedTab())];
}

void MacPreferencesWindow::dress(const PreferencesWindowContent& content) const
{
    NSWindow* const view = window.get();
    [view setReleasedWhenClosed:NO];
    [view setTitle:nsString(content.title)];
    [view setTitlebarAppearsTransparent:YES];
    [view setToolbarStyle:NSWindowToolbarStyleUnified];
    [view setAutorecalculatesKeyViewLoop:YES];
    [view setContentSize:nsSize(content.size)];
    // A window with a view controller heeds the constraints of its view instead of a minimum size of its own.
    keepAtLeast([view contentView], NSLayoutAttributeWidth, content.minimumSize.width);
    keepAtLeast([view contentView], NSLayoutAttributeHeight, content.minimumSize.height);
    // The title bar has an icon only where the window stands for a file.
    [view setRepresentedURL:[NSURL fileURLWithPath:[[NSBundle mainBundle] bundlePath]]];
    [[view standardWindowButton:NSWindowDocumentIconButton] setImage:[NSImage imageNamed:nsString(content.iconName)]];
}

void MacPreferencesWindow::willClose()
{
    if ([NSColorPanel sharedColorPanelExists]) {
        [[NSColorPanel sharedColorPanel] close]; // at which color wells let go of it
    }
    model.windowWillClose();
}

} // namespace quorvel::macos
