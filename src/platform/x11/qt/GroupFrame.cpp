#include "platform/x11/qt/GroupFrame.h"

#include <QPainter>

namespace quorvel::x11 {

QColor separatorColor(const QPalette& palette)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.12F);
    return color;
}

namespace {

// Lighter than the window's ground, in light windows and in dark ones.
QColor cardColor(const QPalette& palette)
{
    const bool isLight = palette.color(QPalette::Window).lightnessF() > 0.5F;
    QColor ground = isLight ? palette.color(QPalette::Base) : palette.color(QPalette::WindowText);
    ground.setAlphaF(isLight ? 0.6F : 0.05F);
    return ground;
}

} // namespace

void GroupFrame::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    constexpr double radius = 8.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(separatorColor(palette()), 1.0));
    painter.setBrush(cardColor(palette()));
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
