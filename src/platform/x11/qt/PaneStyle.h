#pragma once

#include <QProxyStyle>

namespace quorvel::x11 {

// The style Fusion with slim scroll bars, a place to drop at that can be seen, and tooltips with room in them.
class PaneStyle final : public QProxyStyle {
public:
    PaneStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace quorvel::x11
