#pragma once

#include <QAbstractButton>

#include "platform/x11/qt/SymbolLabel.h"
#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A symbol that says whether all is well, with a button.
class StatusWidget final : public FormControlWidget {
public:
    StatusWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    SymbolLabel* symbol;
    QAbstractButton* button;
};

} // namespace quorvel::x11
