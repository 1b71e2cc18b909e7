#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/macos/preferences/PaneBox.h"
#include "platform/macos/preferences/PaneLabels.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A row of a form: the title at the left, the control at the right, the help line under both. A control without title
// begins at the left; a preview stands in the middle.
class FormRowView {
public:
    FormRowView(FormModel& model, const FormRow& row);

    void show(const FormRow& row);

    NSView* view() const { return box.view(); }
    std::vector<NSControl*> keyViews() const { return control->keyViews(); }
    const std::string& id() const { return rowId; }

    // The least width at which nothing is cut, and the height at a width.
    double narrowest() const;
    double height(double width) const;

    void setFrame(const NSRect& frame) const;

private:
    double lineHeight() const;
    void layOut() const;

    PaneBox box;
    Label title;
    std::unique_ptr<FormControlView> control;
    Label help;
    bool isCentered;
    std::string rowId;
};

} // namespace quorvel::macos
