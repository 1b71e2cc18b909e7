#include "platform/x11/windows/DesktopEntries.h"

#include <algorithm>
#include <set>
#include <system_error>

#include "platform/x11/GlibHandles.h"

namespace quorvel::x11 {

namespace {

namespace fs = std::filesystem;

std::string lowerCase(std::string_view text)
{
    const GlibText lower(g_utf8_strdown(text.data(), static_cast<gssize>(text.size())));
    return lower.get();
}

// A file below a subdirectory is named with dashes for its slashes.
std::string identifierOf(const fs::path& file, const fs::path& directory)
{
    auto identifier = file.lexically_relative(directory).replace_extension().string();
    std::ranges::replace(identifier, '/', '-');
    return lowerCase(identifier);
}

const std::string* valueFor(const std::map<std::string, std::string, std::less<>>& names, std::string_view key)
{
    const auto entry = names.find(key);
    return entry != names.end() ? &entry->second : nullptr;
}

} // namespace

std::vector<fs::path> DesktopEntries::standardDirectories()
{
    std::vector<fs::path> result{fs::path(g_get_user_data_dir()) / "applications"};
    for (const auto* directory = g_get_system_data_dirs(); *directory != nullptr; ++directory) {
        result.push_back(fs::path(*directory) / "applications");
    }
    return result;
}

std::optional<std::string> DesktopEntries::nameOf(std::string_view instance, std::string_view className)
{
    const auto key = lowerCase(instance);
    const auto classKey = lowerCase(className);
    if (!loadedTimes) {
        load();
    }
    auto name = find(key, classKey);
    if (!name && loadedTimes != timesOfChange()) {
        load();
        name = find(key, classKey);
    }
    return name;
}

// The instance comes first: it is what tells applications apart that run inside a common host.
std::optional<std::string> DesktopEntries::find(std::string_view instance, std::string_view className) const
{
    for (const auto* names : {&byWindowClass, &byIdentifier, &byLastComponent}) {
        for (const auto key : {instance, className}) {
            if (const auto* const name = key.empty() ? nullptr : valueFor(*names, key)) {
                return *name;
            }
        }
    }
    return std::nullopt;
}

void DesktopEntries::load()
{
    loadedTimes = timesOfChange();
    byWindowClass.clear();
    byIdentifier.clear();
    byLastComponent.clear();
    for (const auto& directory : directories) {
        std::error_code error;
        const auto options = fs::directory_options::skip_permission_denied;
        std::set<fs::path> files; // sorted, so that the outcome does not depend on the file system
        for (auto entry = fs::recursive_directory_iterator(directory, options, error);
             !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
            if (entry->path().extension() == ".desktop") {
                files.insert(entry->path());
            }
        }
        for (const auto& file : files) {
            loadFile(file, directory);
        }
    }
}

void DesktopEntries::loadFile(const fs::path& file, const fs::path& directory)
{
    const GlibKeyFile content(g_key_file_new());
    if (g_key_file_load_from_file(content.get(), file.c_str(), G_KEY_FILE_NONE, nullptr) == FALSE ||
        g_key_file_get_boolean(content.get(), G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_HIDDEN, nullptr) !=
            FALSE) {
        return;
    }
    const GlibText name(g_key_file_get_locale_string(content.get(), G_KEY_FILE_DESKTOP_GROUP,
                                                     G_KEY_FILE_DESKTOP_KEY_NAME, nullptr, nullptr));
    if (!name) {
        return;
    }
    const GlibText windowClass(g_key_file_get_string(content.get(), G_KEY_FILE_DESKTOP_GROUP,
                                                     G_KEY_FILE_DESKTOP_KEY_STARTUP_WM_CLASS, nullptr));
    if (windowClass) {
        byWindowClass.emplace(lowerCase(windowClass.get()), name.get());
    }
    const auto identifier = identifierOf(file, directory);
    byIdentifier.emplace(identifier, name.get());
    if (const auto dot = identifier.rfind('.'); dot != std::string::npos) {
        byLastComponent.emplace(identifier.substr(dot + 1), name.get());
    }
}

DesktopEntries::Times DesktopEntries::timesOfChange() const
{
    Times times;
    for (const auto& directory : directories) {
        std::error_code error;
        times.push_back(fs::last_write_time(directory, error));
    }
    return times;
}

} // namespace quorvel::x11
