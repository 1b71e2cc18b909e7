#pragma once

#import <Foundation/Foundation.h>

#include "platform/Bundle.h"
#include "platform/macos/Retained.h"

namespace quorvel::macos {

// The resources of an application bundle. The user guide is its folder "guide".
class MacBundle final : public Bundle {
public:
    explicit MacBundle(NSBundle* bundle) : bundle(Retained<NSBundle*>::retain(bundle)) {}

    std::expected<std::optional<std::string>, std::string> resource(std::string_view name,
                                                                    std::string_view extension) const override;
    std::optional<Image> image(std::string_view name) const override;
    std::string shortVersion() const override;
    std::string userGuideAddress() const override;

private:
    Retained<NSBundle*> bundle;
};

} // namespace quorvel::macos
