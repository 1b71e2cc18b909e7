#include "platform/x11/qt/controls/ButtonWidget.h"

#include <QHBoxLayout>

#include "platform/x11/qt/PaneButtons.h"

namespace quorvel::x11 {

ButtonWidget::ButtonWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent),
      button(createPaneButton(
          std::get<ButtonControl>(row.control).button, [this](const std::string& id) { press(id); }, this))
{
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(button);
    setFocusProxy(button);
}

void ButtonWidget::showRow(const FormRow& row)
{
    showPaneButton(*button, std::get<ButtonControl>(row.control).button);
    setEnabled(row.isEnabled);
}

} // namespace quorvel::x11
