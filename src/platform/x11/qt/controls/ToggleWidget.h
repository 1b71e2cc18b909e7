#pragma once

#include <QAbstractButton>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A switch.
class ToggleWidget final : public FormControlWidget {
public:
    ToggleWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    QAbstractButton* toggle;
};

} // namespace quorvel::x11
