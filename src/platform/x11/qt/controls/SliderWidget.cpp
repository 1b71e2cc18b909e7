#include "platform/x11/qt/controls/SliderWidget.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <cmath>

#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/controls/WheelGuard.h"

namespace quorvel::x11 {

SliderWidget::SliderWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent), slider(new QSlider(Qt::Horizontal, this)), valueText(new QLabel(this))
{
    constexpr int widthInCharacters = 24;
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(slider);
    box->addWidget(valueText);
    slider->setFixedWidth(fontMetrics().averageCharWidth() * widthInCharacters);
    valueText->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    valueText->setFixedWidth(fontMetrics().horizontalAdvance("000.0"));
    keepWheelForScrolling(*slider);
    setFocusProxy(slider);
    connect(slider, &QSlider::valueChanged, this, [this](int steps) { send(minimum + steps * step); });
}

void SliderWidget::showRow(const FormRow& row)
{
    const auto& control = std::get<SliderControl>(row.control);
    minimum = control.minimum;
    step = control.step;
    const QSignalBlocker quiet(slider);
    slider->setRange(0, static_cast<int>(std::lround((control.maximum - minimum) / step)));
    slider->setSingleStep(1);
    slider->setPageStep(std::max(1, slider->maximum() / 10));
    slider->setValue(static_cast<int>(std::lround((control.value - minimum) / step)));
    slider->setAccessibleName(text(row.accessibleName));
    slider->setAccessibleDescription(text(control.valueText));
    valueText->setText(text(control.valueText));
    setEnabled(row.isEnabled);
}

} // namespace quorvel::x11
