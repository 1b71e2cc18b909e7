#include "contract/macos/BundleFolder.h"

#include <filesystem>

#include <fmt/format.h>

namespace quorvel::contract {

namespace {

namespace fs = std::filesystem;

fs::path resourceName(std::string_view name, std::string_view extension)
{
    return fs::path("Resources") / fmt::format("{}.{}", name, extension);
}

} // namespace

BundleFolder::BundleFolder()
{
    const fs::path contents = QUORVEL_CONTENTS;
    fs::copy(contents / "Resources", folder.path() / "Resources", fs::copy_options::recursive);
    fs::copy(contents / "Info.plist", folder.path() / "Resources" / "Info-gnustep.plist");
}

NSBundle* BundleFolder::bundle() const
{
    return [NSBundle bundleWithPath:[NSString stringWithUTF8String:folder.path().c_str()]];
}

void BundleFolder::addResource(std::string_view name, std::string_view extension, std::string_view content) const
{
    folder.write(resourceName(name, extension), content);
}

void BundleFolder::addUnreadableResource(std::string_view name, std::string_view extension) const
{
    fs::create_directories(folder.path() / resourceName(name, extension));
}

void BundleFolder::removeResources(std::string_view subfolder) const
{
    fs::remove_all(folder.path() / "Resources" / subfolder);
}

} // namespace quorvel::contract
