#include "platform/macos/overlays/DrawListPainting.h"

#include <algorithm>
#include <cmath>
#include <variant>

#import <AppKit/AppKit.h>

#include "base/DrawableCommands.h"
#include "base/RoundedOutline.h"
#include "platform/macos/Colors.h"
#include "platform/macos/Retained.h"
#include "platform/macos/overlays/Fonts.h"

namespace quorvel::macos {

namespace {

// What is painted in its life casts one shadow as a whole, so that the parts of a shape cast none on each other.
class ShadowCasting {
public:
    explicit ShadowCasting(const std::optional<Shadow>& shadow)
    {
        [NSGraphicsContext saveGraphicsState];
        if (shadow) {
            const auto cast = Retained<NSShadow*>::adopt([[NSShadow alloc] init]);
            [cast.get() setShadowColor:nsColor(shadow->color)];
            [cast.get() setShadowBlurRadius:shadow->blurRadius];
            [cast.get() setShadowOffset:NSZeroSize];
            [cast.get() set];
            layer = [[NSGraphicsContext currentContext] CGContext];
            CGContextBeginTransparencyLayer(layer, nullptr);
        }
    }
    ShadowCasting(const ShadowCasting&) = delete;
    ShadowCasting& operator=(const ShadowCasting&) = delete;
    ~ShadowCasting()
    {
        if (layer != nullptr) {
            CGContextEndTransparencyLayer(layer);
        }
        [NSGraphicsContext restoreGraphicsState];
    }

private:
    CGContextRef layer = nullptr;
};

struct BezierPath {
    NSBezierPath* path;

    void moveTo(double x, double y) const { [path moveToPoint:NSMakePoint(x, y)]; }
    void lineTo(double x, double y) const { [path lineToPoint:NSMakePoint(x, y)]; }
    void curveTo(double x1, double y1, double x2, double y2, double x, double y) const
    {
        [path curveToPoint:NSMakePoint(x, y) controlPoint1:NSMakePoint(x1, y1) controlPoint2:NSMakePoint(x2, y2)];
    }
    void close() const { [path closePath]; }
};

class ListPainter {
public:
    explicit ListPainter(double scale) : scale(scale) {}

    void operator()(const RoundedRectCommand& command) const
    {
        const ShadowCasting shadow(command.shadow);
        NSBezierPath* const path = [NSBezierPath bezierPath];
        traceRoundedRectangle(BezierPath{path}, aligned(command), command.cornerRadius, command.cornerStyle);
        if (command.fill) {
            [nsColor(*command.fill) setFill];
            [path fill];
        }
        if (command.stroke && command.stroke->width > 0.0) {
            [nsColor(command.stroke->color) setStroke];
            [path setLineWidth:command.stroke->width];
            [path stroke];
        }
    }

    void operator()(const TextCommand& command) const
    {
        const ShadowCasting shadow(command.shadow);
        NSFont* const font = nsFont(command.font);
        NSMutableAttributedString* const line = singleLine(command.text, font, command.alignment);
        [line addAttribute:NSForegroundColorAttributeName
                     value:nsColor(command.color)
                     range:NSMakeRange(0, [line length])];
        const double height = lineHeight(font);
        const double top = onPixel(command.box.midY() - height / 2.0);
        [line drawInRect:NSMakeRect(command.box.x, top, command.box.width, std::ceil(height))];
    }

private:
    double onPixel(double position) const { return std::round(position * scale) / scale; }

    // The stroke lies half outside of the rectangle; its outer edge is the one that shows.
    ViewRect aligned(const RoundedRectCommand& command) const
    {
        const double outside = command.stroke ? command.stroke->width / 2.0 : 0.0;
        const auto& rect = command.rect;
        const double left = onPixel(rect.minX() - outside) + outside;
        const double top = onPixel(rect.minY() - outside) + outside;
        const double right = onPixel(rect.maxX() + outside) - outside;
        const double bottom = onPixel(rect.maxY() + outside) - outside;
        return {left, top, std::max(right - left, 0.0), std::max(bottom - top, 0.0)};
    }

    double scale;
};

} // namespace

void paint(const DrawList& list, double scale)
{
    @autoreleasepool {
        const ListPainter painter(scale);
        for (const auto& command : list.commands) {
            if (canBeDrawn(command)) {
                std::visit(painter, command);
            }
        }
    }
}

} // namespace quorvel::macos
