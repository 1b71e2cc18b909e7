#pragma once

#include <memory>
#include <vector>

#include "platform/ListSheet.h"
#include "platform/macos/preferences/PaneBox.h"
#include "platform/macos/preferences/PaneButtonView.h"
#include "platform/macos/preferences/PaneLabels.h"

namespace quorvel::macos {

// A row of a list sheet: two lines of text on a card, with buttons at the right.
class ListSheetRowView {
public:
    ListSheetRowView(const ListSheetRow& row, const PaneButtonView::Press& press);

    NSView* view() const { return box.view(); }
    double height() const;
    void setFrame(const NSRect& frame) const;

private:
    PaneBox box;
    Retained<NSBox*> card;
    Label title;
    Label subtitle;
    std::vector<std::unique_ptr<PaneButtonView>> buttons;
};

} // namespace quorvel::macos
