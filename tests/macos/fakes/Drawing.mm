#include "macos/fakes/Drawing.h"

#include <utility>

#import <AppKit/DPSOperators.h>
#include <objc/runtime.h>

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/Colors.h"
#include "platform/macos/Strings.h"

using namespace quorvel;
using fakes::Drawn;

namespace {

struct State {
    Color fill;
    Color stroke;
    std::optional<Shadow> shadow;
};

std::vector<State> states(1);
std::vector<Drawn> drawn;
int layers = 0;

void draw(Drawn item)
{
    item.shadow = states.back().shadow;
    if (item.shadow && layers == 0) {
        fakes::complain("Each part of a shape casts a shadow of its own");
    }
    drawn.push_back(std::move(item));
}

bool hasCurves(NSBezierPath* path)
{
    for (NSInteger index = 0; index < [path elementCount]; ++index) {
        if ([path elementAtIndex:index] == NSCurveToBezierPathElement) {
            return true;
        }
    }
    return false;
}

id setFill(id color, SEL, ...)
{
    states.back().fill = macos::color(color);
    return nil;
}

id setStroke(id color, SEL, ...)
{
    states.back().stroke = macos::color(color);
    return nil;
}

// Colours are of classes that no header names.
void watch(Class colorClass)
{
    class_replaceMethod(colorClass, @selector(setFill), setFill, "v@:");
    class_replaceMethod(colorClass, @selector(setStroke), setStroke, "v@:");
}

} // namespace

@implementation NSColorSpace (Standard)

+ (NSColorSpace*)sRGBColorSpace
{
    return [NSColorSpace genericRGBColorSpace];
}

@end

@implementation NSGraphicsContext (Drawing)

- (void)saveGraphicsState
{
    DPSgsave(self);
    watch([[NSColor colorWithSRGBRed:0.0 green:0.0 blue:0.0 alpha:0.0] class]);
    states.push_back(states.back());
}

- (void)restoreGraphicsState
{
    DPSgrestore(self);
    states.pop_back();
}

- (CGContextRef)CGContext
{
    return reinterpret_cast<CGContextRef>(self);
}

@end

@implementation NSShadow (Drawing)

- (void)set
{
    if (!NSEqualSizes([self shadowOffset], NSZeroSize)) {
        fakes::complain("A shadow lies beside its shape");
    }
    states.back().shadow = Shadow{macos::color([self shadowColor]), [self shadowBlurRadius]};
}

@end

@implementation NSBezierPath (Drawing)

- (void)fill
{
    draw({.text = {}, .rect = [self bounds], .fill = states.back().fill, .hasCurves = hasCurves(self)});
}

- (void)stroke
{
    draw({.text = {},
          .rect = [self bounds],
          .stroke = Stroke{states.back().stroke, [self lineWidth]},
          .hasCurves = hasCurves(self)});
}

@end

@implementation NSAttributedString (Drawing)

- (void)drawInRect:(NSRect)rect
{
    NSColor* const ink =
        [self length] == 0 ? nil : [self attribute:NSForegroundColorAttributeName atIndex:0 effectiveRange:nullptr];
    draw({.text = macos::utf8([self string]), .rect = rect, .fill = macos::color(ink)});
}

@end

extern "C" {

void CGContextBeginTransparencyLayer(CGContextRef, CFDictionaryRef)
{
    ++layers;
}

void CGContextEndTransparencyLayer(CGContextRef)
{
    --layers;
}
}

namespace quorvel::fakes {

std::vector<Drawn> takeDrawn()
{
    if (layers != 0 || states.size() != 1) {
        complain("The state of the graphics context is out of balance");
    }
    return std::exchange(drawn, {});
}

} // namespace quorvel::fakes
