#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A symbol that says whether all is well, with a button.
class StatusWidget final : public FormControlWidget {
public:
    StatusWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    QLabel* symbol;
    QAbstractButton* button;
};

} // namespace quorvel::x11
