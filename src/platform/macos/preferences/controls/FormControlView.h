#pragma once

#include <memory>
#include <string>
#include <vector>

#import <AppKit/AppKit.h>

#include "platform/FormModel.h"

namespace quorvel::macos {

// The view of one control of a form. A control's id is that of its row; buttons have ids of their own.
class FormControlView {
public:
    FormControlView(FormModel& model, const FormRow& row) : model(model), rowId(row.id) {}
    FormControlView(const FormControlView&) = delete;
    FormControlView& operator=(const FormControlView&) = delete;
    virtual ~FormControlView() = default;

    // Shows the control of the row as it is now; the row's kind of control never changes. The view is then as large as
    // it has to be.
    virtual void show(const FormRow& row) = 0;

    virtual NSView* view() const = 0;

    // What of the view takes the keyboard, in order.
    virtual std::vector<NSControl*> keyViews() const = 0;

protected:
    void send(const ControlValue& value) const { model.set(rowId, value); }
    void press(const std::string& buttonId) const { model.press(buttonId); }

private:
    FormModel& model;
    std::string rowId;
};

// The view for the row's control, showing it.
std::unique_ptr<FormControlView> createControlView(FormModel& model, const FormRow& row);

} // namespace quorvel::macos
