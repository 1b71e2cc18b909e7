#pragma once

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A picture, drawn by the painter of the overlays; smaller where there is no room for all of it.
class PreviewWidget final : public FormControlWidget {
public:
    PreviewWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;
    QSize sizeHint() const override;

    // As high as that, but neither larger than the picture is meant to be nor too small to be read.
    void fitInto(int height);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PreviewControl preview;
    double scale = 1.0;
};

} // namespace quorvel::x11
