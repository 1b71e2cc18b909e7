#pragma once

#include <string_view>

#import <Foundation/Foundation.h>

#include "support/TemporaryDirectory.h"

namespace quorvel::contract {

// A bundle with what the build makes for the one of the program, and room for more resources. It lies as GNUstep wants
// it.
class BundleFolder {
public:
    BundleFolder();

    NSBundle* bundle() const;
    void addResource(std::string_view name, std::string_view extension, std::string_view content) const;
    void addUnreadableResource(std::string_view name, std::string_view extension) const;
    void removeResources(std::string_view subfolder) const;

private:
    xtest::TemporaryDirectory folder;
};

} // namespace quorvel::contract
