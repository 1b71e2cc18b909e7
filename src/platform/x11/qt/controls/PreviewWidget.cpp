#include "platform/x11/qt/controls/PreviewWidget.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

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
    return {static_cast<int>(std::ceil(scale * preview.size.width)),
            static_cast<int>(std::ceil(scale * preview.size.height))};
}

void PreviewWidget::fitInto(int height)
{
    constexpr double smallest = 0.6;
    const double fitting = std::clamp(height / preview.size.height, smallest, 1.0);
    if (std::exchange(scale, fitting) != fitting) {
        updateGeometry();
        update();
    }
}

void PreviewWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const double ratio = devicePixelRatioF();
    QImage image = drawnImage(preview.content, preview.size, scale * ratio, host().textLayouts);
    image.setDevicePixelRatio(ratio);
    QPainter(this).drawImage(0, 0, image);
}

} // namespace quorvel::x11
