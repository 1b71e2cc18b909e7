#include "platform/x11/qt/PaneStyle.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "platform/x11/qt/GroupFrame.h"

namespace quorvel::x11 {

namespace {

constexpr int scrollBarExtent = 12;
constexpr int shortestHandle = 28;
constexpr int toolTipMargin = 5;

bool isVertical(const QStyleOptionSlider& bar)
{
    return bar.orientation == Qt::Vertical;
}

// A stretch of the bar along its way.
QRect stretch(const QStyleOptionSlider& bar, int start, int length)
{
    const auto& whole = bar.rect;
    const QRect part = isVertical(bar) ? QRect(whole.left(), whole.top() + start, whole.width(), length)
                                       : QRect(whole.left() + start, whole.top(), length, whole.height());
    return QStyle::visualRect(bar.direction, whole, part);
}

// There are no buttons at the ends.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part)
{
    const int length = isVertical(bar) ? bar.rect.height() : bar.rect.width();
    const qint64 range = qint64{bar.maximum} - bar.minimum;
    const auto share = range > 0 ? qint64{length} * bar.pageStep / (range + bar.pageStep) : qint64{length};
    const int handle = std::clamp(static_cast<int>(share), std::min(shortestHandle, length), length);
    const int start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - handle, bar.upsideDown);
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return stretch(bar, start, handle);
    case QStyle::SC_ScrollBarSubPage:
        return stretch(bar, 0, start);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(bar, start + handle, length - start - handle);
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    default:
        return {};
    }
}

// A scroll bar lies in a container in the area that it scrolls, and paints all of its own ground.
QColor groundOf(const QWidget* scrollBar, const QPalette& palette)
{
    const auto* const container = scrollBar != nullptr ? scrollBar->parentWidget() : nullptr;
    const bool isOfTable =
        container != nullptr && qobject_cast<const QAbstractItemView*>(container->parentWidget()) != nullptr;
    return palette.color(isOfTable ? QPalette::Base : QPalette::Window);
}

void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget)
{
    constexpr float restingAlpha = 0.3F;
    constexpr float activeAlpha = 0.5F;
    constexpr double inset = 3.0;
    painter.fillRect(bar.rect, groundOf(widget, bar.palette));
    if (bar.maximum <= bar.minimum) {
        return;
    }
    QColor color = bar.palette.color(QPalette::WindowText);
    color.setAlphaF((bar.state & QStyle::State_MouseOver) != 0 ? activeAlpha : restingAlpha);
    const QRectF handle = QRectF(scrollBarPart(bar, QStyle::SC_ScrollBarSlider)).adjusted(inset, inset, -inset, -inset);
    const double radius = std::min(handle.width(), handle.height()) / 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(handle, radius, radius);
    painter.restore();
}

void drawDropPlace(const QStyleOption& option, QPainter& painter)
{
    constexpr int thickness = 2;
    if (!option.rect.isNull()) {
        const QRect line(option.rect.left(), option.rect.top() - thickness / 2, option.rect.width(), thickness);
        painter.fillRect(line, option.palette.color(QPalette::Highlight));
    }
}

void drawToolTip(const QStyleOption& option, QPainter& painter)
{
    painter.fillRect(option.rect, option.palette.color(QPalette::ToolTipBase));
    painter.setPen(separatorColor(option.palette));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

} // namespace

PaneStyle::PaneStyle() : QProxyStyle("fusion") {}

int PaneStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return scrollBarExtent;
    case PM_ScrollBarSliderMin:
        return shortestHandle;
    case PM_ToolTipLabelFrameWidth:
        return toolTipMargin;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QRect PaneStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const
{
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    return control == CC_ScrollBar && bar != nullptr ? scrollBarPart(*bar, part)
                                                     : QProxyStyle::subControlRect(control, option, part, widget);
}

void PaneStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const
{
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr) {
        drawScrollBar(*bar, *painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void PaneStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    if (element == PE_IndicatorItemViewItemDrop) {
        drawDropPlace(*option, *painter);
    } else if (element == PE_PanelTipLabel) {
        drawToolTip(*option, *painter);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

} // namespace quorvel::x11
