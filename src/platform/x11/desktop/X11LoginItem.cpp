#include "platform/x11/desktop/X11LoginItem.h"

#include <cerrno>
#include <memory>
#include <system_error>
#include <utility>

#include <fmt/format.h>
#include <gio/gdesktopappinfo.h>
#include <glib.h>

#include "platform/x11/ConfigurationDirectory.h"
#include "platform/x11/GlibHandles.h"

namespace quorvel::x11 {

namespace {

namespace fs = std::filesystem;

constexpr auto entryName = "quorvel.desktop";
constexpr auto switchedOnBySession = "X-GNOME-Autostart-enabled";

using DesktopEntry = std::unique_ptr<GDesktopAppInfo, decltype(&g_object_unref)>;

// Empty where there is no file or no such file can be understood.
GlibKeyFile readKeyFile(const fs::path& file)
{
    constexpr auto everything = static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
    GlibKeyFile keyFile(g_key_file_new());
    if (g_key_file_load_from_file(keyFile.get(), file.c_str(), everything, nullptr) == FALSE) {
        keyFile.reset(g_key_file_new());
    }
    return keyFile;
}

void set(const GlibKeyFile& keyFile, const char* key, const std::string& value)
{
    g_key_file_set_string(keyFile.get(), G_KEY_FILE_DESKTOP_GROUP, key, value.c_str());
}

void set(const GlibKeyFile& keyFile, const char* key, bool value)
{
    g_key_file_set_boolean(keyFile.get(), G_KEY_FILE_DESKTOP_GROUP, key, value ? TRUE : FALSE);
}

bool isSet(const GlibKeyFile& keyFile, const char* key, bool absent)
{
    GError* problem = nullptr;
    const bool value = g_key_file_get_boolean(keyFile.get(), G_KEY_FILE_DESKTOP_GROUP, key, &problem) != FALSE;
    const GlibError error(problem);
    return error ? absent : value;
}

// A program's file as the command of an entry: quoted, since it may hold spaces, and without field codes.
std::string command(const fs::path& program)
{
    std::string quoted = "\"";
    for (const char character : program.string()) {
        if (std::string_view("\"`$\\").contains(character)) {
            quoted += '\\';
        } else if (character == '%') {
            quoted += '%';
        }
        quoted += character;
    }
    return quoted + '"';
}

std::expected<void, std::string> save(const GlibKeyFile& keyFile, const fs::path& file)
{
    constexpr int onlyTheUser = 0700;
    if (g_mkdir_with_parents(file.parent_path().c_str(), onlyTheUser) != 0) {
        return std::unexpected(fmt::format("The folder {} cannot be made: {}.", file.parent_path().string(),
                                           std::generic_category().message(errno)));
    }
    GError* problem = nullptr;
    if (g_key_file_save_to_file(keyFile.get(), file.c_str(), &problem) == FALSE) {
        const GlibError error(problem);
        return std::unexpected(fmt::format("The file {} cannot be written: {}.", file.string(), error->message));
    }
    return {};
}

} // namespace

AutostartPlaces AutostartPlaces::standard(fs::path program)
{
    AutostartPlaces places{configurationDirectory() / "autostart", {}, std::move(program)};
    for (const gchar* const* directory = g_get_system_config_dirs(); *directory != nullptr; ++directory) {
        places.systemDirectories.push_back(fs::path(*directory) / "autostart");
    }
    return places;
}

X11LoginItem::X11LoginItem(AutostartPlaces places) : places(std::move(places)) {}

fs::path X11LoginItem::userEntry() const
{
    return places.userDirectory / entryName;
}

fs::path X11LoginItem::systemEntry() const
{
    std::error_code error;
    for (const auto& directory : places.systemDirectories) {
        if (fs::exists(directory / entryName, error)) {
            return directory / entryName;
        }
    }
    return {};
}

LoginItemStatus X11LoginItem::status() const
{
    std::error_code error;
    const fs::path file = fs::exists(userEntry(), error) ? userEntry() : systemEntry();
    if (file.empty()) {
        return LoginItemStatus::notRegistered;
    }
    const GlibKeyFile keyFile = readKeyFile(file);
    if (isSet(keyFile, G_KEY_FILE_DESKTOP_KEY_HIDDEN, false) || !isSet(keyFile, switchedOnBySession, true)) {
        return LoginItemStatus::notRegistered;
    }
    // Null also where the program of the entry is not there.
    const DesktopEntry entry(g_desktop_app_info_new_from_filename(file.c_str()), &g_object_unref);
    if (!entry || g_app_info_get_commandline(G_APP_INFO(entry.get())) == nullptr) {
        return LoginItemStatus::notFound;
    }
    const bool isForThisDesktop = g_desktop_app_info_get_show_in(entry.get(), nullptr) != FALSE;
    return isForThisDesktop ? LoginItemStatus::enabled : LoginItemStatus::notRegistered;
}

std::expected<void, std::string> X11LoginItem::registerItem()
{
    const GlibKeyFile keyFile = readKeyFile(userEntry());
    set(keyFile, G_KEY_FILE_DESKTOP_KEY_TYPE, std::string(G_KEY_FILE_DESKTOP_TYPE_APPLICATION));
    set(keyFile, G_KEY_FILE_DESKTOP_KEY_NAME, std::string("Quorvel"));
    set(keyFile, G_KEY_FILE_DESKTOP_KEY_ICON, std::string("quorvel"));
    set(keyFile, G_KEY_FILE_DESKTOP_KEY_EXEC, command(places.program));
    set(keyFile, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC, places.program.string());
    set(keyFile, switchedOnBySession, true);
    for (const char* const restriction :
         {G_KEY_FILE_DESKTOP_KEY_HIDDEN, G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN, G_KEY_FILE_DESKTOP_KEY_NOT_SHOW_IN}) {
        g_key_file_remove_key(keyFile.get(), G_KEY_FILE_DESKTOP_GROUP, restriction, nullptr);
    }
    return save(keyFile, userEntry());
}

std::expected<void, std::string> X11LoginItem::unregisterItem()
{
    if (!systemEntry().empty()) {
        const GlibKeyFile keyFile = readKeyFile(userEntry());
        set(keyFile, G_KEY_FILE_DESKTOP_KEY_HIDDEN, true);
        return save(keyFile, userEntry());
    }
    std::error_code error;
    fs::remove(userEntry(), error);
    if (error && error != std::errc::not_a_directory) {
        return std::unexpected(
            fmt::format("The file {} cannot be removed: {}.", userEntry().string(), error.message()));
    }
    return {};
}

} // namespace quorvel::x11
