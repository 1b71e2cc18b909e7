#include "platform/x11/qt/controls/PreviewWidget.h"

#include <QPainter>
#include <cmath>

#include "platform/x11/desktop/ToolkitUi.h"
#include "platform/x11/qt/DrawListPainting.h"
#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

PreviewWidget::PreviewWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PreviewWidget::showRow(const FormRow& row)
{
    preview = std::get<PreviewControl>(row.control);
    setAccessibleName(text(row.accessibleName));
    setAccessibleDescription(text(preview.description));
    updateGeometry();
    update();
}

QSize PreviewWidget::sizeHint() const
{
    return {static_cast<int>(std::ceil(preview.size.width)), static_cast<int>(std::ceil(preview.size.height))};
}

void PreviewWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter(this).drawImage(0, 0, drawnImage(preview.content, preview.size, devicePixelRatioF(), host().textLayouts));
}

} // namespace quorvel::x11
