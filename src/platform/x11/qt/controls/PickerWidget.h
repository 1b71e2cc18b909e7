#pragma once

#include <QComboBox>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A pop-up list.
class PickerWidget final : public FormControlWidget {
public:
    PickerWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    QComboBox* popUp;
};

} // namespace quorvel::x11
