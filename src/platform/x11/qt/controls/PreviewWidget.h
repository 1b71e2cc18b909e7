#pragma once

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A picture, drawn by the painter of the overlays.
class PreviewWidget final : public FormControlWidget {
public:
    PreviewWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PreviewControl preview;
};

} // namespace quorvel::x11
