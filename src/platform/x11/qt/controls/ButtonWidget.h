#pragma once

#include <QAbstractButton>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A push button.
class ButtonWidget final : public FormControlWidget {
public:
    ButtonWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    QAbstractButton* button;
};

} // namespace quorvel::x11
