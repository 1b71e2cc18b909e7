#include "platform/macos/overlays/Fonts.h"

#include "platform/macos/Retained.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

NSFontWeight nsWeight(FontWeight weight)
{
    switch (weight) {
    case FontWeight::regular:
        return NSFontWeightRegular;
    case FontWeight::semibold:
        return NSFontWeightSemibold;
    case FontWeight::bold:
        return NSFontWeightBold;
    }
    return NSFontWeightRegular;
}

NSTextAlignment nsAlignment(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::leading:
        return NSTextAlignmentLeft;
    case TextAlignment::center:
        return NSTextAlignmentCenter;
    case TextAlignment::trailing:
        return NSTextAlignmentRight;
    }
    return NSTextAlignmentLeft;
}

NSString* withoutLineBreaks(std::string_view text)
{
    NSCharacterSet* const breaks = [NSCharacterSet newlineCharacterSet];
    return [[nsString(text) componentsSeparatedByCharactersInSet:breaks] componentsJoinedByString:@" "];
}

} // namespace

NSFont* nsFont(const Font& font)
{
    return [NSFont systemFontOfSize:font.size weight:nsWeight(font.weight)];
}

double lineHeight(NSFont* font)
{
    return [font ascender] - [font descender] + [font leading];
}

NSMutableAttributedString* singleLine(std::string_view text, NSFont* font, TextAlignment alignment)
{
    const auto paragraph = Retained<NSMutableParagraphStyle*>::adopt([[NSMutableParagraphStyle alloc] init]);
    [paragraph.get() setAlignment:nsAlignment(alignment)];
    [paragraph.get() setLineBreakMode:NSLineBreakByTruncatingTail];
    NSDictionary* const attributes = @{
        NSFontAttributeName : font,
        NSParagraphStyleAttributeName : paragraph.get(),
    };
    return [[[NSMutableAttributedString alloc] initWithString:withoutLineBreaks(text)
                                                   attributes:attributes] autorelease];
}

} // namespace quorvel::macos
