#include "platform/x11/qt/controls/StepperWidget.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/controls/WheelGuard.h"

namespace quorvel::x11 {

namespace {

int inRangeOfInt(std::int64_t value)
{
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace

StepperWidget::StepperWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent), box(new QSpinBox(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    box->setKeyboardTracking(false); // a number counts once it is typed in full
    keepWheelForScrolling(*box);
    setFocusProxy(box);
    connect(box, &QSpinBox::valueChanged, this, [this](int value) { send(static_cast<std::int64_t>(value)); });
}

void StepperWidget::showRow(const FormRow& row)
{
    const auto& control = std::get<StepperControl>(row.control);
    const QSignalBlocker quiet(box);
    box->setRange(inRangeOfInt(control.minimum), inRangeOfInt(control.maximum));
    box->setValue(inRangeOfInt(control.value));
    box->setAccessibleName(text(row.accessibleName));
    setEnabled(row.isEnabled);
}

} // namespace quorvel::x11
