#include "platform/x11/qt/controls/PickerWidget.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <cstdint>

#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/controls/WheelGuard.h"

namespace quorvel::x11 {

PickerWidget::PickerWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent), popUp(new QComboBox(this))
{
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    popUp->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    keepWheelForScrolling(*popUp);
    box->addWidget(popUp);
    setFocusProxy(popUp);
    connect(popUp, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0) {
            send(static_cast<std::int64_t>(index));
        }
    });
}

void PickerWidget::showRow(const FormRow& row)
{
    const auto& control = std::get<PickerControl>(row.control);
    QStringList choices;
    for (const auto& choice : control.choices) {
        choices.append(text(choice));
    }
    QStringList shown;
    for (int index = 0; index < popUp->count(); ++index) {
        shown.append(popUp->itemText(index));
    }
    const QSignalBlocker quiet(popUp);
    if (shown != choices) {
        popUp->clear();
        popUp->addItems(choices);
    }
    popUp->setCurrentIndex(control.selected ? static_cast<int>(*control.selected) : -1);
    popUp->setAccessibleName(text(row.accessibleName));
    setEnabled(row.isEnabled);
}

} // namespace quorvel::x11
