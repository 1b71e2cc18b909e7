#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "platform/FormModel.h"

namespace quorvel::x11 {

struct ToolkitHost;

// What a control's widget needs of its pane. A control's id is that of its row; buttons have ids of their own.
struct ControlPane {
    FormModel& model;
    const ToolkitHost& host;
};

// The widget of one control of a form.
class FormControlWidget : public QWidget {
public:
    FormControlWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
        : QWidget(parent), pane(pane), rowId(row.id)
    {}

    // Shows the control of the row as it is now; the row's kind of control never changes.
    virtual void showRow(const FormRow& row) = 0;

protected:
    void send(const ControlValue& value) const { pane.model.set(rowId, value); }
    void press(const std::string& buttonId) const { pane.model.press(buttonId); }
    const ToolkitHost& host() const { return pane.host; }

private:
    ControlPane pane;
    std::string rowId;
};

// The widget for the row's control, showing it.
FormControlWidget* createControlWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

} // namespace quorvel::x11
