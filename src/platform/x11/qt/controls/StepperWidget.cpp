#include "platform/x11/qt/controls/StepperWidget.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSpinBox>
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

// Shows the model's text for the model's number: what is stored may lie beyond the range.
class ShownNumber final : public QSpinBox {
public:
    using QSpinBox::QSpinBox;

    void showControl(const StepperControl& control)
    {
        const QSignalBlocker quiet(this);
        number = inRangeOfInt(control.value);
        numberText = x11::text(control.valueText);
        setRange(inRangeOfInt(control.minimum), inRangeOfInt(control.maximum));
        setValue(number);
    }

protected:
    QString textFromValue(int value) const override
    {
        return value == number && !numberText.isEmpty() ? numberText : QSpinBox::textFromValue(value);
    }

    int valueFromText(const QString& shown) const override
    {
        return shown == numberText ? number : QSpinBox::valueFromText(shown);
    }

    QValidator::State validate(QString& shown, int& position) const override
    {
        return shown == numberText ? QValidator::Acceptable : QSpinBox::validate(shown, position);
    }

private:
    int number = 0;
    QString numberText;
};

StepperWidget::StepperWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent), box(new ShownNumber(this))
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
    box->showControl(std::get<StepperControl>(row.control));
    box->setAccessibleName(text(row.accessibleName));
    setEnabled(row.isEnabled);
}

} // namespace quorvel::x11
