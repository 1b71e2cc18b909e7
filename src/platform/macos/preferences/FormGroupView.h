#pragma once

#include <memory>
#include <vector>

#include "platform/Form.h"
#include "platform/FormModel.h"
#include "platform/macos/preferences/FormRowView.h"
#include "platform/macos/preferences/PaneBox.h"
#include "platform/macos/preferences/PaneLabels.h"

namespace quorvel::macos {

// A group of a form: its title over a card with its rows. A group with a preview is as low as can be: whatever sets the
// picture up stands beside the title.
class FormGroupView {
public:
    FormGroupView(FormModel& model, const FormGroup& group);

    // The same rows as they are now.
    void show(const FormGroup& group);

    NSView* view() const { return box.view(); }
    double narrowest() const;
    double height(double width) const;
    void setFrame(const NSRect& frame) const;

    const std::vector<std::unique_ptr<FormRowView>>& allRows() const { return rows; }

private:
    bool isInHead(std::size_t row) const { return hasHead && !isPreview[row]; }
    double headHeight() const;
    void layOut() const;
    void layOutHead() const;

    PaneBox box;
    Label title;
    Retained<NSBox*> card;
    PaneBox inner; // of the card
    std::vector<std::unique_ptr<FormRowView>> rows;
    std::vector<bool> isPreview; // by row
    std::vector<Retained<NSBox*>> separators;
    bool hasHead;
};

} // namespace quorvel::macos
