#pragma once

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

class ShownNumber;

// A number with arrows.
class StepperWidget final : public FormControlWidget {
public:
    StepperWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    ShownNumber* box;
};

} // namespace quorvel::x11
