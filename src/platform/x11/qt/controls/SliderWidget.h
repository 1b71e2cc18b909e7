#pragma once

#include <QLabel>
#include <QSlider>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A slider in a column of one width, with its value beside it.
class SliderWidget final : public FormControlWidget {
public:
    SliderWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    QSlider* slider; // counts steps from the minimum
    QLabel* valueText;
    double minimum = 0.0;
    double step = 1.0;
};

} // namespace quorvel::x11
