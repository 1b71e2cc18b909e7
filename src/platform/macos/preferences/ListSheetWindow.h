#pragma once

#include <memory>
#include <vector>

#include "platform/ListSheet.h"
#include "platform/macos/preferences/ListSheetRowView.h"
#include "platform/macos/preferences/PaneBox.h"
#include "platform/macos/preferences/PaneButtonView.h"
#include "platform/macos/preferences/PaneLabels.h"
#include "platform/macos/preferences/ShellWindow.h"

namespace quorvel::macos {

// A list sheet over a window, as long as this lives.
class ListSheetWindow {
public:
    using Press = PaneButtonView::Press;

    ListSheetWindow(const ListSheet& sheet, Press press, NSWindow* owner);
    ListSheetWindow(const ListSheetWindow&) = delete;
    ListSheetWindow& operator=(const ListSheetWindow&) = delete;
    ~ListSheetWindow();

    void show(const ListSheet& sheet);
    NSWindow* nsWindow() const { return window.get(); }

private:
    void fill(const ListSheet& sheet);
    void layOut() const;
    void layOutList() const;
    void layOutPlaceholder() const;

    Press press;
    Retained<NSWindow*> owner;
    ListSheet shown;
    PaneBox box;
    PaneBox list; // scrolls
    Retained<NSScrollView*> scroll;
    Label title;
    Label footer;
    PaneButtonView close;
    std::vector<std::unique_ptr<ListSheetRowView>> rows;
    Retained<NSImageView*> placeholderSymbol;
    Label placeholderHeading;
    Label placeholderLine;
    Retained<QuorvelShellWindow*> window;
};

} // namespace quorvel::macos
