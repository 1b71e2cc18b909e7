#include "main/StoredSettingsReading.h"

#include <filesystem>
#include <system_error>

#include <unistd.h>

#include "doctor/StoredSettings.h"
#include "platform/x11/settings/PropertyList.h"
#include "platform/x11/settings/SettingsFile.h"

namespace quorvel {

namespace {

namespace fs = std::filesystem;

bool isPrivate(const fs::path& file)
{
    constexpr auto others = fs::perms::group_all | fs::perms::others_all;
    std::error_code error;
    const auto status = fs::status(file, error);
    return !fs::exists(status) || (status.permissions() & others) == fs::perms::none;
}

// A file is replaced within its folder; folders that are missing are made.
bool isWritable(const fs::path& file)
{
    std::error_code error;
    fs::path folder = file.parent_path();
    while (!fs::exists(folder, error) && folder.has_relative_path()) {
        folder = folder.parent_path();
    }
    return access(folder.c_str(), W_OK | X_OK) == 0;
}

void read(const x11::SettingsFile& file, StoredSettings& settings)
{
    const auto contents = file.read();
    if (!contents) {
        settings.state = StoredSettings::State::unreadable;
        settings.problem = contents.error();
        return;
    }
    if (!*contents) {
        return;
    }
    const auto list = x11::PropertyList::parse((*contents)->bytes);
    if (!list) {
        settings.state = StoredSettings::State::damaged;
        settings.problem = list.error();
        return;
    }
    settings.state = StoredSettings::State::readable;
    settings.entries = list->entries();
}

} // namespace

StoredSettings readStoredSettings(const x11::SettingsFile& file)
{
    StoredSettings settings;
    settings.place = file.path().string();
    settings.isPrivate = isPrivate(file.path());
    settings.isWritable = isWritable(file.chain().back());
    read(file, settings);
    return settings;
}

} // namespace quorvel
