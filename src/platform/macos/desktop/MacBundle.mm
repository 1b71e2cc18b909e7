#include "platform/macos/desktop/MacBundle.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Strings.h"

namespace quorvel::macos {

std::expected<std::optional<std::string>, std::string> MacBundle::resource(std::string_view name,
                                                                           std::string_view extension) const
{
    NSString* const fileName = [nsString(name) stringByAppendingPathExtension:nsString(extension)];
    NSString* const file = [[bundle.get() resourcePath] stringByAppendingPathComponent:fileName];
    if (![[NSFileManager defaultManager] fileExistsAtPath:file]) {
        return std::nullopt;
    }
    NSData* const content = [NSData dataWithContentsOfFile:file];
    if (content == nil) {
        return std::unexpected("cannot read " + utf8(file));
    }
    return std::string(static_cast<const char*>([content bytes]), [content length]);
}

std::optional<Image> MacBundle::image(std::string_view name) const
{
    if ([bundle.get() pathForImageResource:nsString(name)] == nil) {
        return std::nullopt;
    }
    return Image{std::string(name), false};
}

std::string MacBundle::shortVersion() const
{
    return utf8([bundle.get() objectForInfoDictionaryKey:@"CFBundleShortVersionString"]);
}

std::string MacBundle::userGuideAddress() const
{
    NSString* const page = [bundle.get() pathForResource:@"index" ofType:@"html" inDirectory:@"guide"];
    return page == nil ? std::string() : utf8([[NSURL fileURLWithPath:page] absoluteString]);
}

} // namespace quorvel::macos
