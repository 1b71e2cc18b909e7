#import <ServiceManagement/ServiceManagement.h>

#include "macos/fakes/FakeDesktop.h"

using quorvel::LoginItemStatus;
using quorvel::fakes::FakeDesktop;

namespace {

quorvel::SimulatedLoginItem& loginItem()
{
    return FakeDesktop::current().desktop.loginItem;
}

BOOL fail(NSError** error, const std::string& reason)
{
    if (error != nullptr) {
        NSString* const text = [NSString stringWithUTF8String:reason.c_str()];
        *error = [NSError errorWithDomain:@"SMAppServiceErrorDomain"
                                     code:1
                                 userInfo:[NSDictionary dictionaryWithObject:text forKey:NSLocalizedDescriptionKey]];
    }
    return NO;
}

} // namespace

@implementation SMAppService

+ (instancetype)mainAppService
{
    return [[[self alloc] init] autorelease];
}

- (SMAppServiceStatus)status
{
    return static_cast<SMAppServiceStatus>(loginItem().status());
}

// As macOS does, it refuses what is registered already.
- (BOOL)registerAndReturnError:(NSError**)error
{
    if (loginItem().status() == LoginItemStatus::enabled) {
        return fail(error, "Operation not permitted: already registered");
    }
    const auto result = loginItem().registerItem();
    return result ? YES : fail(error, result.error());
}

- (BOOL)unregisterAndReturnError:(NSError**)error
{
    const auto result = loginItem().unregisterItem();
    return result ? YES : fail(error, result.error());
}

@end
