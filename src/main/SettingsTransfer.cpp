#include "main/SettingsTransfer.h"

#include <cstdio>
#include <expected>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "platform/x11/settings/PlistUserDefaults.h"
#include "platform/x11/settings/PropertyList.h"
#include "platform/x11/settings/SettingsFile.h"
#include "settings/SettingsCheck.h"

namespace quorvel {

namespace {

void say(std::string_view line)
{
    fmt::print(stderr, "{}\n", line);
}

std::expected<x11::PropertyList, std::string> listIn(const x11::SettingsFile& file)
{
    const auto contents = file.read();
    if (!contents) {
        return std::unexpected(contents.error());
    }
    if (!*contents) {
        return std::unexpected("there is no such file");
    }
    return x11::PropertyList::parse((*contents)->bytes);
}

CheckedSettings checked(const x11::PropertyList& list)
{
    auto settings = checkSettings(list.entries());
    for (const auto& refusal : settings.refusals) {
        say(refusal);
    }
    return settings;
}

x11::SettingsFile fileOf(const std::filesystem::path& path)
{
    return x11::SettingsFile(std::filesystem::absolute(path));
}

} // namespace

bool exportSettings(const std::filesystem::path& file)
{
    const x11::SettingsFile settingsFile(x11::SettingsFile::defaultPath());
    x11::PropertyList exported;
    if (settingsFile.stamp()) {
        const auto stored = listIn(settingsFile);
        if (!stored) {
            say(fmt::format("The settings file {} cannot be read: {}.", settingsFile.path().string(), stored.error()));
            return false;
        }
        for (const auto& [key, value] : checked(*stored).accepted) {
            exported.set(key, value);
        }
    }
    const auto bytes = exported.bytes();
    const auto written = bytes ? fileOf(file).replace(*bytes) : std::unexpected(bytes.error());
    if (!written) {
        say(fmt::format("The settings cannot be written to {}: {}.", file.string(), written.error()));
    }
    return written.has_value();
}

bool importSettings(const std::filesystem::path& file)
{
    const auto list = listIn(fileOf(file));
    if (!list) {
        say(fmt::format("Nothing was imported from {}: {}.", file.string(), list.error()));
        return false;
    }
    x11::PlistUserDefaults userDefaults(x11::SettingsFile(x11::SettingsFile::defaultPath()), say);
    return userDefaults.setObjects(checked(*list).accepted);
}

} // namespace quorvel
