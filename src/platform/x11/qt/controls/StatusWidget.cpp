#include "platform/x11/qt/controls/StatusWidget.h"

#include <QHBoxLayout>

#include "platform/x11/qt/PaneButtons.h"
#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

namespace {

// Readable on light and on dark ground.
QColor toneColor(StatusTone tone)
{
    return tone == StatusTone::positive ? QColor(40, 167, 69) : QColor(220, 53, 69);
}

} // namespace

StatusWidget::StatusWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent),
      symbol(new SymbolLabel(fontMetrics().height() * 5 / 4, QPalette::WindowText, this)),
      button(createPaneButton(
          std::get<StatusControl>(row.control).button, [this](const std::string& id) { press(id); }, this))
{
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(symbol);
    box->addWidget(button);
    setFocusProxy(button);
}

void StatusWidget::showRow(const FormRow& row)
{
    const auto& control = std::get<StatusControl>(row.control);
    symbol->showSymbol(control.symbol, toneColor(control.tone));
    symbol->setToolTip(text(control.symbolDescription));
    symbol->setAccessibleName(text(control.symbolDescription));
    showPaneButton(*button, control.button);
    setEnabled(row.isEnabled);
}

} // namespace quorvel::x11
