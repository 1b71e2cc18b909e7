#include "platform/x11/qt/GroupFrame.h"

#include <QPainter>

namespace quorvel::x11 {

QColor separatorColor(const QPalette& palette)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.12F);
    return color;
}

void GroupFrame::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    constexpr double radius = 8.0;
    QColor ground = palette().color(QPalette::WindowText);
    ground.setAlphaF(0.035F);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(separatorColor(palette()), 1.0));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

Separator::Separator(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(1);
}

void Separator::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter(this).fillRect(rect(), separatorColor(palette()));
}

} // namespace quorvel::x11
