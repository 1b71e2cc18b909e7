#include "platform/x11/qt/controls/PickerWidget.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <cstddef>
#include <cstdint>

#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/controls/WheelGuard.h"

namespace quorvel::x11 {

PickerWidget::PickerWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent)
{
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    if (std::get<PickerControl>(row.control).style == PickerStyle::popUp) {
        popUp = new QComboBox(this);
        popUp->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        keepWheelForScrolling(*popUp);
        box->addWidget(popUp);
        setFocusProxy(popUp);
        connect(popUp, &QComboBox::currentIndexChanged, this, [this](int index) { sendIndex(index); });
    } else {
        box->setSpacing(0);
        segments = new QButtonGroup(this);
        connect(segments, &QButtonGroup::idClicked, this, [this](int index) { sendIndex(index); });
    }
}

void PickerWidget::showRow(const FormRow& row)
{
    const auto& control = std::get<PickerControl>(row.control);
    if (popUp != nullptr) {
        showPopUp(control, text(row.accessibleName));
    } else {
        showSegments(control, text(row.accessibleName));
    }
    setEnabled(row.isEnabled);
}

void PickerWidget::showPopUp(const PickerControl& control, const QString& name)
{
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
    popUp->setAccessibleName(name);
}

void PickerWidget::showSegments(const PickerControl& control, const QString& name)
{
    while (static_cast<std::size_t>(segments->buttons().size()) < control.choices.size()) {
        auto* const segment = new QPushButton(this);
        segment->setCheckable(true);
        segment->setAutoDefault(false);
        segments->addButton(segment, static_cast<int>(segments->buttons().size()));
        layout()->addWidget(segment);
        setFocusProxy(segments->button(0));
    }
    segments->setExclusive(false); // none may be chosen
    for (std::size_t index = 0; index < control.choices.size(); ++index) {
        auto* const segment = segments->button(static_cast<int>(index));
        segment->setText(labelText(control.choices[index]));
        segment->setAccessibleName(name + ": " + text(control.choices[index]));
        segment->setChecked(control.selected == index);
    }
    segments->setExclusive(true);
}

void PickerWidget::sendIndex(int index)
{
    if (index >= 0) {
        send(static_cast<std::int64_t>(index));
    }
}

} // namespace quorvel::x11
