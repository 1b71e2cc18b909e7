#pragma once

#include <QSpinBox>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A number with arrows.
class StepperWidget final : public FormControlWidget {
public:
    StepperWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    QSpinBox* box;
};

} // namespace quorvel::x11
