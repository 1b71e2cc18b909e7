#include "platform/macos/desktop/MacLoginItem.h"

#import <ServiceManagement/ServiceManagement.h>

#include "platform/macos/Strings.h"

namespace quorvel::macos {

LoginItemStatus MacLoginItem::status() const
{
    return static_cast<LoginItemStatus>([[SMAppService mainAppService] status]);
}

std::expected<void, std::string> MacLoginItem::registerItem()
{
    NSError* error = nil;
    if ([[SMAppService mainAppService] registerAndReturnError:&error]) {
        return {};
    }
    if (status() == LoginItemStatus::enabled) {
        return {}; // it was already, which the system calls an error
    }
    return std::unexpected(utf8([error localizedDescription]));
}

std::expected<void, std::string> MacLoginItem::unregisterItem()
{
    NSError* error = nil;
    if (![[SMAppService mainAppService] unregisterAndReturnError:&error]) {
        return std::unexpected(utf8([error localizedDescription]));
    }
    return {};
}

} // namespace quorvel::macos
