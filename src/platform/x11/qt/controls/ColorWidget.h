#pragma once

#include <QColor>
#include <QColorDialog>
#include <QPointer>
#include <QPushButton>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A swatch over a chequered ground. A press opens a colour dialog whose colour holds while it is being chosen.
class ColorWidget final : public FormControlWidget {
public:
    ColorWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    void openDialog();

    QPushButton* swatch;
    QColor color;
    QPointer<QColorDialog> dialog; // while it is open
};

} // namespace quorvel::x11
