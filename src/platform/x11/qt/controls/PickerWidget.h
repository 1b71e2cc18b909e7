#pragma once

#include <QButtonGroup>
#include <QComboBox>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A pop-up list, or one button for each choice side by side.
class PickerWidget final : public FormControlWidget {
public:
    PickerWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    void showPopUp(const PickerControl& control, const QString& name);
    void showSegments(const PickerControl& control, const QString& name);
    void sendIndex(int index);

    QComboBox* popUp = nullptr;
    QButtonGroup* segments = nullptr;
};

} // namespace quorvel::x11
